#include <fstream>
#include <sstream>
#include <streambuf>
#include <sys/stat.h>
#include <unistd.h>
#include <QCryptographicHash>
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

std::string digestOf(const std::string& bytes)
{
    return QCryptographicHash::hash(QByteArray::fromStdString(bytes), QCryptographicHash::Sha256).toHex().toStdString();
}

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

TEST_F(Session, AFileThatChangedOrWentAwayIsRefusedWithItsLine)
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
    const int sampleVars = orrery::kernel::Kernel::instance().dataSet().numVars();

    // Another size is seen before anything is played or read.
    file("a.csv", "x,y,z\n1,2,3\n4,5,67\n");
    JournalReplayer::Result result = JournalReplayer::replayFile(session);
    EXPECT_FALSE(result.ok);
    EXPECT_EQ(result.line, 2);
    EXPECT_NE(result.message.find(session + ", line 2: the data file "), std::string::npos) << result.message;
    EXPECT_NE(result.message.find("a.csv has changed since the session was recorded (18 bytes then, 19 now)"),
              std::string::npos)
        << result.message;
    EXPECT_EQ(kernelSnapshot(), untouched) << "not even the plot type of line 1";

    // Other bytes of the same size are found as the file loads: the data set stays the one before.
    file("a.csv", "x,y,z\n1,2,3\n4,5,7\n");
    result = JournalReplayer::replayFile(session);
    EXPECT_EQ(result.line, 2);
    EXPECT_NE(result.message.find("a.csv has changed since the session was recorded (18 bytes then and now, other "
                                  "content)"),
              std::string::npos)
        << result.message;
    EXPECT_EQ(orrery::kernel::Kernel::instance().dataSet().numVars(), sampleVars) << "still the sample";

    // Confirmed, the file is read as it is now and journalled as such.
    std::string asked;
    JournalReplayer::Options options;
    options.acceptChangedFile = [&](const std::string& message) {
        asked = message;
        return true;
    };
    orrery::kernel::Kernel::instance().journal().clear();
    result = JournalReplayer::replayFile(session, options);
    ASSERT_TRUE(result.ok) << result.message;
    EXPECT_EQ(asked.rfind(session + ", line 2: ", 0), 0u) << asked;
    EXPECT_EQ(orrery::kernel::Kernel::instance().dataSet().values(1, 3).back(), 7);
    const std::vector<std::string> lines = orrery::kernel::Kernel::instance().journal().lines();
    ASSERT_FALSE(lines.empty());
    EXPECT_NE(lines.back().find("sha256 " + digestOf("x,y,z\n1,2,3\n4,5,7\n")), std::string::npos) << lines.back();

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

TEST_F(Session, ALoadJournalsTheSizeAndDigestOfTheBytesItRead)
{
    const std::string text = "x,y\n1,2\n3,4\n5,9\n";
    {
        AppLock lock(AppLock::ImplicitMacroRecording_Allow);
        ASSERT_TRUE(load(file("d.csv", text)));
    }
    const std::vector<std::string> lines = orrery::kernel::Kernel::instance().journal().lines();
    ASSERT_FALSE(lines.empty());
    EXPECT_NE(lines.back().find("size 16 sha256 d88ff803c8b72a5a388b094504990b68a581d309327fca28928a6e91ddf6d5f9"),
              std::string::npos)
        << lines.back();
    // A file of several blocks, hashed beside a load that reads it in two parts at once.
    std::string big = "a,b\n";
    for (int i = 0; big.size() < 9 * 1024 * 1024; ++i)
        big += std::to_string(i) + "," + std::to_string(i % 97) + "\n";
    {
        AppLock lock(AppLock::ImplicitMacroRecording_Allow);
        ASSERT_TRUE(load(file("big.csv", big)));
    }
    EXPECT_NE(orrery::kernel::Kernel::instance().journal().lines().back().find("size " + std::to_string(big.size())
                                                                               + " sha256 " + digestOf(big)),
              std::string::npos);
}

// Each of these would block, read without end or read the wrong file.
TEST_F(Session, LoadLinesNamingWhatIsNotAFileOfDataAreRefusedByWhatTheyNameBeforeAnythingIsPlayed)
{
    const QString base = folder.path();
    ASSERT_EQ(::mkfifo(QDir(base).filePath("fifo.csv").toLocal8Bit().constData(), 0600), 0);
    ASSERT_TRUE(QDir(base).mkdir("folder.csv"));
    file("d.csv", "x,y\n1,2\n3,4\n5,9\n");
    const std::string untouched = kernelSnapshot();
    const struct
    {
        std::string path, says;
    } cases[] = {
        {"fifo.csv", "it is a named pipe"},
        {"folder.csv", "it is a folder"},
        {"/dev/zero", "it is a device"},
        {"/proc/self/pagemap", "a file of the operating system"},
        {"d.csv\\x00.txt", "its name holds a NUL byte"},
    };
    for (const auto& odd : cases) {
        std::istringstream journal("style GlobalScatter/RelativeSize 2.5\nload \"" + odd.path
                                   + "\" loader \"CSV table\" size 16 sha256 "
                                     "d88ff803c8b72a5a388b094504990b68a581d309327fca28928a6e91ddf6d5f9\n");
        JournalReplayer::Options options;
        options.folder = base.toStdString();
        const JournalReplayer::Result result = JournalReplayer::replay(journal, "s", options);
        EXPECT_EQ(result.line, 2) << odd.path;
        EXPECT_NE(result.message.find(odd.says), std::string::npos) << result.message;
        EXPECT_EQ(kernelSnapshot(), untouched) << odd.path;
    }
}

TEST_F(Session, ADeclaredSizeIsComparedBeforeAnyByteIsRead)
{
    // Hashing these whole would take a minute; the size alone tells they changed.
    const std::string sparse = file("sparse.csv", "");
    ASSERT_EQ(::truncate(sparse.c_str(), 2LL << 30), 0);
    std::string journal;
    for (int i = 0; i < 3; ++i)
        journal += "load \"sparse.csv\" loader \"CSV table\" size 16 sha256 "
                   "d88ff803c8b72a5a388b094504990b68a581d309327fca28928a6e91ddf6d5f9\n";
    std::istringstream in(journal);
    JournalReplayer::Options options;
    options.folder = folder.path().toStdString();
    int asked = 0;
    options.acceptChangedFile = [&](const std::string&) { return ++asked < 3; };
    const JournalReplayer::Result result = JournalReplayer::replay(in, "s", options);
    EXPECT_EQ(result.line, 3);
    EXPECT_NE(result.message.find("(16 bytes then, 2147483648 now)"), std::string::npos) << result.message;
}

// A stream that hands out a line at a time and, before each further line,
// checks that the line before it was played already.
class LineByLine : public std::streambuf
{
public:
    explicit LineByLine(int lines) : m_lines(lines) {}
    int playedLate = 0;

private:
    int_type underflow() override
    {
        if (m_next == m_lines)
            return traits_type::eof();
        if (m_next > 0 && styleValue<double>({"GlobalScatter", "RelativeSize"}) != m_next)
            ++playedLate;
        ++m_next;
        m_line = "style GlobalScatter/RelativeSize " + std::to_string(m_next) + "\n";
        setg(&m_line[0], &m_line[0], &m_line[0] + m_line.size());
        return traits_type::to_int_type(m_line[0]);
    }
    int m_lines;
    int m_next = 0;
    std::string m_line;
};

TEST_F(Session, LinesArePlayedAsTheyAreReadNotKeptUntilTheEnd)
{
    LineByLine lines(200);
    std::istream in(&lines);
    const JournalReplayer::Result result = JournalReplayer::replay(in, "stream");
    ASSERT_TRUE(result.ok) << result.message;
    EXPECT_EQ(result.played, 200);
    EXPECT_EQ(lines.playedLate, 0);
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
