#include <fstream>
#include <sstream>
#include <sys/stat.h>
#include <unistd.h>
#include <QDir>
#include <QDirIterator>
#include <QElapsedTimer>
#include <QProcess>
#include <QTemporaryDir>
#include <QThread>
#include "host/kernel/FileLoad.h"
#include "host/kernel/JournalReplayer.h"
#include "host/kernel/OrrUtilHost.h"
#include "platform/loaders/DataLoaderRepository.h"
#include "platform/sdk/AppLock.h"
#include "tests/support/DemoProcess.h"
#include "tests/support/KernelSnapshot.h"
#include "tests/support/TestSupport.h"

using orrery::kernel::JournalReplayer;
using orrery::sdk::AppLock;
using testsupport::Kernel;
using testsupport::kernelSnapshot;

namespace {

// A demo killed in the middle of its work, and its next start.
class SessionCrash : public testsupport::SampleKernelTest, public testsupport::DemoProcess
{
protected:
    // The state a session leaves on a fresh demo's starting point.
    std::string replayed(const QString& session)
    {
        Kernel::resetKernel();
        Kernel::loadSampleDataSet();
        const JournalReplayer::Result result = JournalReplayer::replayFile(session.toStdString());
        EXPECT_TRUE(result.ok) << result.message;
        return kernelSnapshot();
    }

    QStringList keptAside() const
    {
        return QDir(at("data/orrery-demo"))
            .entryList({"autosave.orrery-journal.*"}, QDir::AllEntries | QDir::System | QDir::NoDotAndDotDot);
    }
};

const char* const LinesTyped = "style GlobalRGB/RedChannelVar 2\n"
                               "begin \"Two\"\n"
                               "style GlobalScatter/RelativeSize 2.5\n"
                               "style FieldLayers/ShowVector true\n"
                               "end\n"
                               "undo\n"
                               "style GlobalThreeDVector/UVar 4\n"
                               "style FieldMap/Mesh/Color[1] 3\n";

TEST_F(SessionCrash, AKilledDemoIsRestoredWithItsStyleAndDataSetUpToItsLastLine)
{
    // The session the demo starts from, recorded here on a file of its own.
    std::ofstream(at("data.csv").toStdString()) << "a,b,c,u,v\n1,2,3,0.5,1\n2,1,5,1,0.5\n4,4,1,-1,2\n";
    {
        AppLock lock(AppLock::ImplicitMacroRecording_Allow);
        std::string error;
        auto csv = orrery::sdk::DataLoaderRepository::getInstance().loaderNamed("CSV table");
        ASSERT_TRUE(orrery::kernel::FileLoad::load(*csv, at("data.csv").toStdString(), error)) << error;
        Kernel::setPlotType(PlotType_ThreeD);
        OrrUtilUndoStateBegin(UndoCategory_AssignVariables);
        Kernel::setStyle({"ThreeDAxis", "XDetail", "VarNum"}, 3L);
        Kernel::setStyle({"ThreeDAxis", "ZDetail", "VarNum"}, 1L);
        OrrUtilUndoStateEnd(false, true);
    }
    std::string error;
    ASSERT_TRUE(orrery::kernel::Kernel::instance().journal().save(at("start.orrery-journal").toStdString(), error));
    std::istringstream typed(LinesTyped);
    ASSERT_TRUE(JournalReplayer::replay(typed, "typed").ok);
    const std::string expected = kernelSnapshot();

    QProcess demo;
    start(demo, {"--replay", at("start.orrery-journal"), "--stdin"});
    demo.write(LinesTyped);
    ASSERT_TRUE(demo.waitForBytesWritten());
    QElapsedTimer clock;
    clock.start();
    QByteArray saved;
    while (!saved.endsWith("style FieldMap/Mesh/Color[1] 3\n") && clock.elapsed() < 30000) {
        QThread::msleep(50);
        QFile file(autosave());
        if (file.open(QIODevice::ReadOnly))
            saved = file.readAll();
    }
    ASSERT_TRUE(saved.endsWith("style FieldMap/Mesh/Color[1] 3\n"))
        << saved.toStdString() << demo.readAllStandardError().toStdString();
    demo.kill();
    ASSERT_TRUE(demo.waitForFinished());
    ASSERT_EQ(demo.exitStatus(), QProcess::CrashExit);

    ASSERT_EQ(run({"--recover", "--save-session", at("out.orrery-journal")}), 0);
    EXPECT_FALSE(QFile::exists(autosave())) << "restored, saved and ended normally";
    EXPECT_TRUE(keptAside().isEmpty()) << keptAside().join(" ").toStdString();
    EXPECT_EQ(replayed(at("out.orrery-journal")), expected);
}

TEST_F(SessionCrash, AnAutosaveCutOffMidLineIsRestoredUpToTheCutAndABrokenOneIsKeptAside)
{
    ASSERT_TRUE(QDir().mkpath(at("data/orrery-demo")));
    const QByteArray cut = "sample \"Sample\"\nstyle FrameLayout/PlotType 3\nstyle GlobalScatter/RelativeSize 2";
    QFile file(autosave());
    ASSERT_TRUE(file.open(QIODevice::WriteOnly));
    file.write(cut);
    file.close();

    std::string said;
    ASSERT_EQ(run({"--recover", "--save-session", at("out.orrery-journal")}, &said), 0) << said;
    EXPECT_NE(said.find(autosave().toStdString() + ", line 3: the line was cut off"), std::string::npos) << said;
    ASSERT_EQ(keptAside().size(), 1) << said;
    QFile aside(at("data/orrery-demo/" + keptAside().front()));
    ASSERT_TRUE(aside.open(QIODevice::ReadOnly));
    EXPECT_EQ(aside.readAll(), cut);
    EXPECT_FALSE(QFile::exists(autosave()));
    replayed(at("out.orrery-journal"));
    EXPECT_EQ(testsupport::styleValue<long>({"FrameLayout", "PlotType"}), 3);
    EXPECT_EQ(testsupport::styleValue<double>({"GlobalScatter", "RelativeSize"}), 1.0) << "the cut line is left out";

    // Not a journal at all: nothing is applied and the file is kept.
    file.open(QIODevice::WriteOnly);
    file.write("\x7f"
               "ELF\x02\x01 binary\n");
    file.close();
    EXPECT_EQ(run({"--recover", "--save-session", at("out.orrery-journal")}, &said), 1);
    EXPECT_NE(said.find(autosave().toStdString() + ", line 1: the line holds control characters"), std::string::npos)
        << said;
    EXPECT_EQ(keptAside().size(), 2) << said;
}

TEST_F(SessionCrash, ARestoredSessionIsWhatAnExportShowsAndItsAutosaveStaysUntilItIsSaved)
{
    ASSERT_TRUE(QDir().mkpath(at("data/orrery-demo")));
    std::ofstream(autosave().toStdString()) << "sample \"Sample\"\nstyle FrameLayout/Title \"Restored here\"\n";
    std::string said;
    ASSERT_EQ(run({"--recover", "--export", at("plot.svg")}, &said), 0) << said;
    QFile plot(at("plot.svg"));
    ASSERT_TRUE(plot.open(QIODevice::ReadOnly));
    EXPECT_TRUE(plot.readAll().contains(">Restored here<")) << "the restored session, not the sample";
    EXPECT_TRUE(QFile::exists(autosave())) << "the restored session is saved nowhere else";

    ASSERT_EQ(run({"--recover", "--save-session", at("out.orrery-journal")}), 0);
    EXPECT_FALSE(QFile::exists(autosave()));
    // Nothing left to restore: the run fails rather than export the sample.
    EXPECT_EQ(run({"--recover", "--export", at("sample.svg")}, &said), 1);
    EXPECT_NE(said.find("There is no autosaved session to restore"), std::string::npos) << said;
    EXPECT_FALSE(QFile::exists(at("sample.svg")));
}

TEST_F(SessionCrash, AFifoOrAFolderInTheAutosavesPlaceIsNamedLeftAloneAndFailsTheRecovery)
{
    ASSERT_TRUE(QDir().mkpath(at("data/orrery-demo")));
    const QByteArray name = QFile::encodeName(autosave());
    ASSERT_EQ(::mkfifo(name.constData(), 0600), 0);
    std::string said;
    EXPECT_EQ(run({"--recover", "--save-session", at("out.orrery-journal")}, &said), 1) << said;
    EXPECT_NE(said.find(autosave().toStdString() + " is not a regular file (a FIFO)"), std::string::npos) << said;
    struct stat status;
    ASSERT_EQ(::lstat(name.constData(), &status), 0);
    EXPECT_TRUE(S_ISFIFO(status.st_mode));
    EXPECT_FALSE(QFile::exists(at("out.orrery-journal")));

    ASSERT_EQ(::unlink(name.constData()), 0);
    ASSERT_TRUE(QDir().mkdir(autosave()));
    EXPECT_EQ(run({"--recover", "--save-session", at("out.orrery-journal")}, &said), 1) << said;
    EXPECT_NE(said.find(autosave().toStdString() + " is not a regular file (a folder)"), std::string::npos) << said;
    EXPECT_EQ(said.find("Restored"), std::string::npos) << said;
    EXPECT_TRUE(QFileInfo(autosave()).isDir());
    EXPECT_TRUE(keptAside().isEmpty()) << keptAside().join(" ").toStdString();
}

} // namespace
