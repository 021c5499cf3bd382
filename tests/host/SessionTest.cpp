#include <fstream>
#include <QDir>
#include <QTemporaryDir>
#include "host/kernel/FileLoad.h"
#include "host/kernel/JournalReplayer.h"
#include "host/kernel/OrrUtilHost.h"
#include "platform/loaders/DataLoaderRepository.h"
#include "platform/sdk/AppLock.h"
#include "tests/support/KernelSnapshot.h"
#include "tests/support/TestSupport.h"

using orrery::kernel::FileLoad;
using orrery::kernel::JournalReplayer;
using orrery::sdk::AppLock;
using testsupport::Kernel;
using testsupport::kernelSnapshot;
using testsupport::styleValue;

namespace {

class Session : public testsupport::SampleKernelTest
{
protected:
    std::string file(const std::string& name, const std::string& text)
    {
        const std::string path = QDir(folder.path()).filePath(QString::fromStdString(name)).toStdString();
        std::ofstream(path, std::ios::binary) << text;
        return path;
    }
    bool load(const std::string& path)
    {
        std::string error;
        auto csv = orrery::sdk::DataLoaderRepository::getInstance().loaderNamed("CSV table");
        const bool loaded = FileLoad::load(*csv, path, error);
        EXPECT_TRUE(loaded) << error;
        return loaded;
    }
    std::string saved()
    {
        const std::string path = QDir(folder.path()).filePath("session.orrery-journal").toStdString();
        std::string error;
        EXPECT_TRUE(orrery::kernel::Kernel::instance().journal().save(path, error)) << error;
        return path;
    }
    QTemporaryDir folder;
};

TEST_F(Session, ASavedSessionReplaysToTheSameStateDataSetIncluded)
{
    ASSERT_TRUE(QDir(folder.path()).mkdir("data"));
    const std::string first = file("data/a.csv", "x,y\n1,2\n3,5\n");
    const std::string second = file("data/b.csv", "p,q,r,s\n1,2,3,4\n2,4,6,9\n5,1,0,2\n");
    {
        AppLock lock(AppLock::ImplicitMacroRecording_Allow);
        ASSERT_TRUE(load(first));
        Kernel::setStyle({"TwoDAxis", "XDetail", "VarNum"}, 2L);
        ASSERT_TRUE(load(second));
        Kernel::setPlotType(PlotType_ThreeD);
        Kernel::setStyle({"ThreeDAxis", "ZDetail", "VarNum"}, 4L);
        Kernel::setStyle({"GlobalRGB", "GreenChannelVar"}, 3L);
        OrrUtilUndoPerform();
        Kernel::setStyle({"FieldMap", "Scatter", "Color"}, 5L, 1);
    }
    const std::string expected = kernelSnapshot();
    const std::string session = saved();
    std::ifstream in(session);
    std::string line;
    std::getline(in, line);
    EXPECT_EQ(line.rfind("load \"data/a.csv\" loader \"CSV table\" size 12 sha256 ", 0), 0u)
        << "named relative to the session: " << line;

    Kernel::resetKernel();
    Kernel::loadSampleDataSet();
    const JournalReplayer::Result result = JournalReplayer::replayFile(session);
    ASSERT_TRUE(result.ok) << result.message;
    EXPECT_EQ(kernelSnapshot(), expected);
}

TEST_F(Session, AFileThatChangedOrWentAwayIsRefusedWithItsLineAndNothingIsApplied)
{
    const std::string data = file("a.csv", "x,y,z\n1,2,3\n4,5,6\n");
    {
        AppLock lock(AppLock::ImplicitMacroRecording_Allow);
        Kernel::setPlotType(PlotType_XYLine);
        ASSERT_TRUE(load(data));
    }
    const std::string session = saved();
    Kernel::resetKernel();
    Kernel::loadSampleDataSet();
    const std::string untouched = kernelSnapshot();

    file("a.csv", "x,y,z\n1,2,3\n4,5,7\n");
    JournalReplayer::Result result = JournalReplayer::replayFile(session);
    EXPECT_FALSE(result.ok);
    EXPECT_EQ(result.line, 2);
    EXPECT_NE(result.message.find(session + ", line 2: the data file "), std::string::npos) << result.message;
    EXPECT_NE(result.message.find("a.csv has changed since the session was recorded"), std::string::npos)
        << result.message;
    EXPECT_EQ(kernelSnapshot(), untouched) << "not even the plot type of line 1";

    // Confirmed, the file is read as it is now and journalled as such.
    std::string asked;
    JournalReplayer::Options options;
    options.acceptChangedFile = [&](const std::string& message) {
        asked = message;
        return true;
    };
    result = JournalReplayer::replayFile(session, options);
    ASSERT_TRUE(result.ok) << result.message;
    EXPECT_EQ(asked.rfind(session + ", line 2: ", 0), 0u) << asked;
    EXPECT_EQ(orrery::kernel::Kernel::instance().dataSet().values(1, 3).back(), 7);

    QFile::remove(QString::fromStdString(data));
    result = JournalReplayer::replayFile(session, options);
    EXPECT_NE(result.message.find(", line 2: the data file " + data + " is missing."), std::string::npos)
        << result.message;
    std::ifstream in(session);
    std::string text((std::istreambuf_iterator<char>(in)), std::istreambuf_iterator<char>());
    std::ofstream(session) << std::string(text).replace(text.find("CSV table"), 9, "Gone") << "\n";
    result = JournalReplayer::replayFile(session);
    EXPECT_NE(result.message.find(", line 2: the loader \"Gone\" for "), std::string::npos) << result.message;
}

TEST_F(Session, ANewDataSetKeepsTheChoicesItCanAndFillsTheOthersWithNoUndoLeft)
{
    Kernel::setPlotType(PlotType_ThreeD);
    Kernel::setStyle({"GlobalRGB", "RedChannelVar"}, 5L);
    Kernel::setStyle({"GlobalThreeDVector", "WVar"}, 4L);
    Kernel::setStyle({"FrameLayout", "ActiveZone"}, 3L);
    Kernel::setStyle({"IndexRange", "Begin"}, 5L);
    ASSERT_TRUE(load(file("two.csv", "x,y\n1,2\n3,4\n")));
    EXPECT_EQ(styleValue<long>({"FrameLayout", "ActiveZone"}), 0) << "the file has one zone: none is picked out";
    EXPECT_EQ(styleValue<long>({"IndexRange", "Begin"}), 1) << "two points: the range starts at the first";
    EXPECT_EQ(orrery::kernel::Kernel::instance().undoStack().undoName(), "") << "no step may apply to another data set";
    ASSERT_TRUE(load(file("four.csv", "x,y,u,v\n1,2,3,4\n5,6,7,9\n2,2,2,1\n")));
    EXPECT_EQ(styleValue<long>({"ThreeDAxis", "XDetail", "VarNum"}), 1);
    EXPECT_EQ(styleValue<long>({"ThreeDAxis", "YDetail", "VarNum"}), 2);
    EXPECT_EQ(styleValue<long>({"ThreeDAxis", "ZDetail", "VarNum"}), 3) << "an axis the small file doubled";
    for (const std::string& key : orrery::kernel::Kernel::instance().schema().variableKeys()) {
        const long var = std::get<long>(orrery::kernel::Kernel::instance().currentStyle(key));
        EXPECT_TRUE(var >= 0 && var <= 4) << key << " " << var;
    }

    Kernel::setStyle({"ThreeDAxis", "XDetail", "VarNum"}, 4L);
    Kernel::setStyle({"ThreeDAxis", "ZDetail", "VarNum"}, 2L);
    Kernel::setStyle({"ThreeDAxis", "YDetail", "VarNum"}, 1L);
    ASSERT_TRUE(load(file("five.csv", "a,b,c,d,e\n1,2,3,4,5\n2,3,4,5,6\n")));
    EXPECT_EQ(styleValue<long>({"ThreeDAxis", "XDetail", "VarNum"}), 4) << "a valid choice stays";
    EXPECT_EQ(styleValue<long>({"ThreeDAxis", "YDetail", "VarNum"}), 1);
    EXPECT_EQ(styleValue<long>({"ThreeDAxis", "ZDetail", "VarNum"}), 2);
    // A vector the data set cannot give is replaced whole, by names where it can.
    Kernel::setStyle({"GlobalTwoDVector", "UVar"}, 5L);
    ASSERT_TRUE(load(file("uv.csv", "x,y,V,U\n1,2,3,4\n2,3,5,7\n")));
    EXPECT_EQ(styleValue<long>({"GlobalTwoDVector", "UVar"}), 4);
    EXPECT_EQ(styleValue<long>({"GlobalTwoDVector", "VVar"}), 3);
}

} // namespace
