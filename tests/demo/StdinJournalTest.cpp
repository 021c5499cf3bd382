#include <string>
#include <thread>
#include <QCoreApplication>
#include <QSocketNotifier>
#include <unistd.h>
#include "demo/session/StdinJournal.h"
#include "host/kernel/OrrUtilHost.h"
#include "tests/support/TestSupport.h"

using testsupport::styleValue;

namespace {

class StandardInput : public testsupport::SampleKernelTest
{
protected:
    // Writes text into a pipe the journal reads, and runs the event loop until
    // the journal has read all of it.
    void feed(const std::string& text)
    {
        int ends[2];
        ASSERT_EQ(::pipe(ends), 0);
        StdinJournal journal(nullptr, ends[0]);
        std::thread writer([&] {
            for (size_t done = 0; done < text.size();) {
                const ssize_t n = ::write(ends[1], text.data() + done, text.size() - done);
                if (n <= 0)
                    break;
                done += static_cast<size_t>(n);
            }
            ::close(ends[1]);
        });
        QSocketNotifier* notifier = journal.findChild<QSocketNotifier*>();
        ASSERT_TRUE(notifier);
        while (notifier->isEnabled())
            QCoreApplication::processEvents(QEventLoop::WaitForMoreEvents, 100);
        writer.join();
        ::close(ends[0]);
    }
};

TEST_F(StandardInput, AnOverlongLineIsSkippedWithoutKeepingItAndTheLinesAfterItArePlayed)
{
    // A hundred megabytes in one line: kept whole and searched again at every read,
    // this took minutes; bounded, it passes at the speed of the pipe.
    std::string text = "style GlobalScatter/RelativeSize 2\nbegin \"Step\"\nstyle GlobalScatter/RelativeSize 4\n";
    text += std::string(100 << 20, 'x');
    text += "\nend\nstyle GlobalScatter/RelativeSize 3\nstyle GlobalScatter/RelativeSize 3.5";
    feed(text + "\n");
    EXPECT_EQ(styleValue<double>({"GlobalScatter", "RelativeSize"}), 3.5)
        << "the lines after the long one are played, the step it was in is not";
    ASSERT_TRUE(OrrUtilUndoPerform());
    EXPECT_EQ(styleValue<double>({"GlobalScatter", "RelativeSize"}), 3.0);
    ASSERT_TRUE(OrrUtilUndoPerform());
    EXPECT_EQ(styleValue<double>({"GlobalScatter", "RelativeSize"}), 2.0) << "no step of the broken begin ... end";
}

} // namespace
