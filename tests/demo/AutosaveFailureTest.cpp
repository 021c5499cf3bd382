#include <cerrno>
#include <csignal>
#include <cstring>
#include <sstream>
#include <sys/resource.h>
#include <QFile>
#include <QPlainTextEdit>
#include <QStatusBar>
#include <QTemporaryDir>
#include <gmock/gmock.h>
#include "demo/window/MainWindow.h"
#include "demo/session/Session.h"
#include "demo/session/SessionAutosave.h"
#include "host/kernel/JournalReplayer.h"
#include "host/kernel/Kernel.h"
#include "tests/support/TestSupport.h"

using orrery::kernel::JournalReplayer;
using testing::HasSubstr;

namespace {

// A file size limit fails the autosave's writes as a full disk does, for any
// user: the kernel cuts a write short, then refuses the next with an errno.
class FileSizeLimit
{
public:
    explicit FileSizeLimit(rlim_t bytes)
    {
        std::signal(SIGXFSZ, SIG_IGN);
        getrlimit(RLIMIT_FSIZE, &m_before);
        rlimit limited = m_before;
        limited.rlim_cur = bytes;
        setrlimit(RLIMIT_FSIZE, &limited);
    }
    ~FileSizeLimit()
    {
        setrlimit(RLIMIT_FSIZE, &m_before);
        std::signal(SIGXFSZ, SIG_DFL);
    }

private:
    rlimit m_before;
};

TEST(AutosaveFailure, TheWindowSaysWhyAndTheAutosaveCatchesUpOnceItCanWriteAgain)
{
    testsupport::Kernel::resetKernel();
    testsupport::Kernel::loadSampleDataSet();
    testsupport::Kernel::captureMessageBoxes();
    QTemporaryDir data;
    qputenv("XDG_DATA_HOME", data.path().toUtf8());
    MainWindow window;
    bool restoreFailed = false;
    std::unique_ptr<SessionAutosave> autosave =
        SessionAutosave::startFor(window, &window, window.session().replayOptions(), false, false, restoreFailed);
    ASSERT_TRUE(autosave);
    const auto play = [](const std::string& line) {
        std::istringstream in(line + "\n");
        ASSERT_TRUE(JournalReplayer::replay(in, "typed").ok);
    };
    const auto written = [&] {
        QFile file(autosave->path());
        return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
    };
    const auto logged = [&] { return window.findChild<QPlainTextEdit*>("answers")->toPlainText().toStdString(); };
    const QByteArray before = written();
    const std::string why = std::strerror(EFBIG);
    {
        FileSizeLimit limit(rlim_t(before.size() + 8));
        play("style GlobalScatter/RelativeSize 2.5");
        EXPECT_THAT(window.statusBar()->currentMessage().toStdString(), HasSubstr(why));
        EXPECT_THAT(logged(),
                    HasSubstr("cannot be autosaved in " + autosave->path().toStdString() + " for now: " + why));
        EXPECT_EQ(written(), before) << "a step is written whole or not at all";
        play("style GlobalScatter/RelativeSize 3.5");
        EXPECT_EQ(QString::fromStdString(logged()).count("cannot be autosaved"), 1) << "said once, tried again";
    }
    play("style GlobalScatter/RelativeSize 4.5");
    EXPECT_THAT(logged(), HasSubstr("The session is autosaved again"));
    std::string all;
    for (const std::string& line : orrery::kernel::Kernel::instance().journal().lines())
        all += line + "\n";
    EXPECT_EQ(written().toStdString(), all) << "the steps missed are written too";
    autosave->finish();
}

} // namespace
