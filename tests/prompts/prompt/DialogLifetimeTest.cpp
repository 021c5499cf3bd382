// Every dialog opened and destroyed many times over: no leak and no growth.
// Under the sanitizer build the loop runs 1,000 times and LeakSanitizer checks
// the process at exit; in the normal build a shorter loop keeps the run quick.
#include <functional>
#include <malloc.h>
#include <QApplication>
#include <QPixmapCache>
#include "tests/prompts/prompt/DialogTestSupport.h"
#include "tests/support/EveryDialog.h"

#if defined(__SANITIZE_ADDRESS__)
#define ORRERY_UNDER_ASAN 1
#elif defined(__has_feature)
#if __has_feature(address_sanitizer)
#define ORRERY_UNDER_ASAN 1
#endif
#endif
#ifdef ORRERY_UNDER_ASAN
// From the sanitizer runtime (its header does not ship with every compiler).
extern "C" size_t __sanitizer_get_current_allocated_bytes();
#endif

using namespace dialogtest;

namespace {

#ifdef ORRERY_UNDER_ASAN
const int Rounds = 1000;
size_t allocatedBytes()
{
    return __sanitizer_get_current_allocated_bytes();
}
#else
const int Rounds = 100;
size_t allocatedBytes()
{
    return mallinfo2().uordblks;
}
#endif

class DialogLifetimeTest : public DialogTest, public ::testing::WithParamInterface<everydialog::Opener>
{
protected:
    // Opens the dialog as a host would, lets it settle, then destroys it.
    void openAndDestroy(const std::function<QDialog*()>& open)
    {
        QPointer<QDialog> dialog = open();
        ASSERT_TRUE(dialog);
        dialog->show();
        runIdle();
        QApplication::processEvents();
        dialog->hide();
        delete dialog;
        runIdle();
        QApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
        QApplication::processEvents();
        // Qt keeps every icon's rendered pixmaps in its own bounded cache; that is not ours to count.
        QPixmapCache::clear();
    }

    // Heap in use after a warm-up against after the rounds; the bound is generous
    // (Qt's caches may settle late) but far below what a leak of one dialog per round adds.
    void expectFlat(const std::function<QDialog*()>& open)
    {
        const auto childrenBefore = parent.children().size();
        for (int i = 0; i < 20; ++i)
            openAndDestroy(open);
        const size_t before = allocatedBytes();
        for (int i = 0; i < Rounds; ++i)
            openAndDestroy(open);
        const size_t after = allocatedBytes();
        const size_t allowed = 256 * 1024 + size_t(Rounds) * 64;
        EXPECT_LE(after, before + allowed) << "grew by " << (after - before) << " bytes over " << Rounds << " rounds";
        EXPECT_EQ(parent.children().size(), childrenBefore);
    }
};

} // namespace

// One case per dialog, so that each runs in a process of its own within the time limit.
TEST_P(DialogLifetimeTest, LeavesTheHeapFlat)
{
    expectFlat([&] { return GetParam().open(parent); });
}

INSTANTIATE_TEST_SUITE_P(EveryDialog, DialogLifetimeTest, ::testing::ValuesIn(everydialog::openers()),
                         [](const ::testing::TestParamInfo<everydialog::Opener>& info) { return info.param.name; });
