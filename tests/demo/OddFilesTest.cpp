// What is not a file of data is refused at once, whichever way it arrives: a
// pipe would block the load, a device or a file of /proc would never end.
#include <QApplication>
#include <QDir>
#include <QDropEvent>
#include <QFile>
#include <QMimeData>
#include <QTemporaryDir>
#include <QUrl>
#include <gmock/gmock.h>
#include <sys/stat.h>
#include "demo/window/MainWindow.h"
#include "demo/session/Session.h"
#include "host/kernel/Kernel.h"
#include "tests/support/DemoProcess.h"
#include "tests/support/TestSupport.h"

using testing::HasSubstr;

namespace {

class OddFiles : public testsupport::SampleKernelTest, public testsupport::DemoProcess
{
protected:
    void SetUp() override
    {
        testsupport::SampleKernelTest::SetUp();
        const QDir dir(home.path());
        ASSERT_EQ(::mkfifo(QFile::encodeName(dir.filePath("pipe.csv")).constData(), 0600), 0);
        ASSERT_EQ(::mkfifo(QFile::encodeName(dir.filePath("pipe.orrery-journal")).constData(), 0600), 0);
        ASSERT_TRUE(dir.mkdir("folder.csv"));
        ASSERT_TRUE(QFile::link("/dev/zero", dir.filePath("zero.csv")));
        ASSERT_TRUE(QFile::link("/proc/self/pagemap", dir.filePath("pagemap.vtk")));
    }
    // Each odd file and what the refusal calls it.
    const std::vector<std::pair<QString, std::string>> odd{{"pipe.csv", "a named pipe"},
                                                           {"folder.csv", "a folder"},
                                                           {"zero.csv", "a device"},
                                                           {"pagemap.vtk", "a file of the operating system"},
                                                           {"pipe.orrery-journal", "not a regular file"}};
    std::string lastMessage() const
    {
        return testsupport::messageTexts().empty() ? std::string() : testsupport::messageTexts().back();
    }
};

TEST_F(OddFiles, AreRefusedByWhatTheyAreFromFileOpenRecentFilesAndADrop)
{
    MainWindow window;
    for (const auto& [name, what] : odd) {
        EXPECT_FALSE(window.session().open(at(name))) << name.toStdString(); // File > Open and File > Open Recent
        EXPECT_THAT(lastMessage(), HasSubstr(what));
        const size_t told = testsupport::messageTexts().size();
        QMimeData dragged;
        dragged.setUrls({QUrl::fromLocalFile(at(name))});
        QDragEnterEvent enter(QPoint(10, 10), Qt::CopyAction, &dragged, Qt::LeftButton, Qt::NoModifier);
        QApplication::sendEvent(&window, &enter);
        QDropEvent drop(QPointF(10, 10), Qt::CopyAction, &dragged, Qt::LeftButton, Qt::NoModifier);
        QApplication::sendEvent(&window, &drop);
        QApplication::processEvents();
        EXPECT_EQ(testsupport::messageTexts().size(), told + 1) << name.toStdString();
        EXPECT_THAT(lastMessage(), HasSubstr(what));
    }
    EXPECT_EQ(orrery::kernel::Kernel::instance().dataSet().title(), "Heated plate") << "the data set stays";
}

TEST_F(OddFiles, AreRefusedFromTheCommandLine)
{
    for (const auto& [name, what] : odd) {
        std::string said;
        const bool session = name.endsWith(".orrery-journal");
        EXPECT_EQ(run(session ? QStringList{"--replay", at(name), "--export", at("p.png")}
                              : QStringList{at(name), "--export", at("p.png")},
                      &said),
                  1)
            << name.toStdString();
        EXPECT_THAT(said, HasSubstr(what));
    }
}

} // namespace
