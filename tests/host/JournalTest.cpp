#include <fstream>
#include <sstream>
#include <QDir>
#include <QTemporaryDir>
#include "host/kernel/Journal.h"
#include "host/kernel/JournalReplayer.h"
#include "host/kernel/Kernel.h"
#include "host/kernel/OrrUtilHost.h"
#include "platform/sdk/AppLock.h"
#include "tests/support/TestSupport.h"

using orrery::kernel::Journal;
using orrery::kernel::JournalReplayer;
using orrery::kernel::StyleDatum;
using orrery::sdk::AppLock;
using orrery::toolbox::StringList;
using testsupport::Kernel;
using testsupport::SampleKernelTest;
using testsupport::styleValue;

namespace {

const std::vector<std::string>& journal()
{
    return orrery::kernel::Kernel::instance().journal().lines();
}

std::string undoName()
{
    char* name = OrrUtilUndoGetStepName();
    const std::string text = name ? name : "";
    OrrUtilStringDealloc(&name);
    return text;
}

JournalReplayer::Result replay(const std::string& text)
{
    std::istringstream in(text);
    return JournalReplayer::replay(in, "session.orj");
}

class JournalRecording : public SampleKernelTest
{};

TEST_F(JournalRecording, EachChangeIsOneLineUnlessRecordingIsSuppressedOrNothingChanged)
{
    {
        AppLock lock(AppLock::ImplicitMacroRecording_Allow);
        Kernel::setStyle({"GlobalRGB", "RedChannelVar"}, 4L);
        Kernel::setStyle({"GlobalRGB", "RedChannelVar"}, 4L); // unchanged
        Kernel::setStyle({"GlobalRGB", "RangeMin"}, 5.0);     // refused: above RangeMax
        Kernel::setStyle({"FieldMap", "Scatter", "Color"}, -6L, 2);
        Kernel::setStyle({"GlobalRGB", "RangeMax"}, 0.1 + 0.2);
        Kernel::setStyle({"GlobalScatter", "BaseFontFamily"}, std::string("Odd \"Font\" \\ 1"));
        Kernel::setStyle({"Frame", "1", "GlobalScatter", "RelativeSizeInGridUnits"}, false);
    }
    {
        AppLock outer(AppLock::ImplicitMacroRecording_Allow);
        AppLock quiet(AppLock::ImplicitMacroRecording_Suppress);
        Kernel::setStyle({"GlobalRGB", "GreenChannelVar"}, 3L);
    }
    EXPECT_EQ(journal(), (std::vector<std::string>{
                             "style GlobalRGB/RedChannelVar 4",
                             "style FieldMap/Scatter/Color[2] -6",
                             "style GlobalRGB/RangeMax 0.30000000000000004",
                             "style GlobalScatter/BaseFontFamily \"Odd \\\"Font\\\" \\\\ 1\"",
                             "style Frame/1/GlobalScatter/RelativeSizeInGridUnits false",
                         }));
    EXPECT_EQ(undoName(), "Change Green Channel Var") << "left out of the journal, not out of the undo steps";
}

TEST_F(JournalRecording, BracketLinesAppearWhenTheOutermostBracketClosesAndNotWhenTakenBack)
{
    AppLock lock(AppLock::ImplicitMacroRecording_Allow);
    std::vector<std::string> announced;
    boost::signals2::scoped_connection c = orrery::kernel::Kernel::instance().journal().lineAdded().connect(
        [&](const std::string& line) { announced.push_back(line); });

    OrrUtilUndoStateBegin(UndoCategory_AssignVariables);
    Kernel::setStyle({"TwoDAxis", "XDetail", "VarNum"}, 4L);
    OrrUtilUndoStateBeginNamed(0, "inner");
    Kernel::setStyle({"TwoDAxis", "YDetail", "VarNum"}, 5L);
    OrrUtilUndoStateEnd(false, true);
    EXPECT_TRUE(announced.empty());
    OrrUtilUndoStateEnd(false, true);

    OrrUtilUndoStateBeginNamed(0, "Taken back");
    Kernel::setStyle({"GlobalRGB", "RedChannelVar"}, 2L);
    OrrUtilUndoStateEnd(true, true);

    const std::vector<std::string> expected{"begin \"Assign Variables\"", "style TwoDAxis/XDetail/VarNum 4",
                                            "style TwoDAxis/YDetail/VarNum 5", "end"};
    EXPECT_EQ(journal(), expected);
    EXPECT_EQ(announced, expected);
    EXPECT_EQ(undoName(), "Assign Variables");

    EXPECT_TRUE(OrrUtilUndoPerform());
    EXPECT_EQ(journal().back(), "undo");
    EXPECT_TRUE(OrrUtilRedoPerform());
    EXPECT_EQ(journal().back(), "redo");
}

TEST_F(JournalRecording, SavedJournalReplayedOnTheSameDataSetGivesTheSameStyle)
{
    {
        AppLock lock(AppLock::ImplicitMacroRecording_Allow);
        OrrUtilUndoStateBegin(UndoCategory_AssignVariables);
        Kernel::setStyle({"GlobalRGB", "RedChannelVar"}, 4L);
        Kernel::setStyle({"GlobalRGB", "GreenChannelVar"}, 5L);
        OrrUtilUndoStateEnd(false, true);
        Kernel::setStyle({"FrameLayout", "PlotType"}, 1L);
        Kernel::setStyle({"GlobalScatter", "RelativeSize"}, 2.75);
        Kernel::setStyle({"FieldMap", "Scatter", "Show"}, true, 3);
        OrrUtilUndoPerform();
        Kernel::setStyle({"GlobalRGB", "RangeMin"}, -1e-300);
        Kernel::setStyle({"GlobalScatter", "BaseFontFamily"}, std::string("Serif \"x\""));
    }
    const std::vector<std::string> recorded = journal();
    QTemporaryDir folder;
    const std::string path = QDir(folder.path()).filePath("session.orj").toStdString();
    std::string error;
    ASSERT_TRUE(orrery::kernel::Kernel::instance().journal().save(path, error)) << error;

    Kernel::resetKernel();
    Kernel::loadSampleDataSet();
    const JournalReplayer::Result result = JournalReplayer::replayFile(path);
    ASSERT_TRUE(result.ok) << result.message;
    EXPECT_EQ(result.played, int(recorded.size()));
    EXPECT_EQ(journal(), recorded) << "a replay is itself recorded";
    EXPECT_EQ(styleValue<long>({"GlobalRGB", "RedChannelVar"}), 4);
    EXPECT_EQ(styleValue<long>({"GlobalRGB", "GreenChannelVar"}), 5);
    EXPECT_EQ(styleValue<long>({"FrameLayout", "PlotType"}), 1);
    EXPECT_DOUBLE_EQ(styleValue<double>({"GlobalScatter", "RelativeSize"}), 2.75);
    EXPECT_FALSE(styleValue<bool>({"FieldMap", "Scatter", "Show"}, 3)) << "undone before the save";
    EXPECT_EQ(styleValue<double>({"GlobalRGB", "RangeMin"}), -1e-300);
    EXPECT_EQ(styleValue<std::string>({"GlobalScatter", "BaseFontFamily"}), "Serif \"x\"");

    // The replayed bracket is one undo step again.
    for (int step = 0; step < 4; ++step)
        OrrUtilUndoPerform();
    EXPECT_EQ(undoName(), "Assign Variables");
    OrrUtilUndoPerform();
    EXPECT_EQ(styleValue<long>({"GlobalRGB", "RedChannelVar"}), 0);
    EXPECT_EQ(styleValue<long>({"GlobalRGB", "GreenChannelVar"}), 0);
}

TEST_F(JournalRecording, ABadLineStopsTheReplayWithItsNumberKeepingTheStepsBeforeItUndoable)
{
    const JournalReplayer::Result result = replay("# made by hand\n"
                                                  "style GlobalRGB/RedChannelVar 4\n"
                                                  "\n"
                                                  "begin \"Two\"\n"
                                                  "style GlobalRGB/GreenChannelVar 5\n"
                                                  "style GlobalRGB/Colour 1\n"
                                                  "end\n"
                                                  "style GlobalRGB/BlueChannelVar 3\n");
    EXPECT_FALSE(result.ok);
    EXPECT_EQ(result.line, 6);
    EXPECT_EQ(result.played, 1);
    EXPECT_EQ(result.message, "session.orj, line 6: unknown style path GlobalRGB/Colour.");
    EXPECT_EQ(styleValue<long>({"GlobalRGB", "GreenChannelVar"}), 0) << "the step it stopped in is taken back whole";
    EXPECT_EQ(styleValue<long>({"GlobalRGB", "BlueChannelVar"}), 0);
    EXPECT_EQ(journal().back(), "style GlobalRGB/RedChannelVar 4");
    OrrUtilUndoPerform();
    EXPECT_EQ(styleValue<long>({"GlobalRGB", "RedChannelVar"}), 0);

    // In a journal whose writer died, a step whose end never came is taken back too.
    std::istringstream autosaved("style GlobalRGB/RedChannelVar 2\nbegin\nstyle GlobalRGB/GreenChannelVar 5\n");
    JournalReplayer::Options options;
    options.lastLineNeedsEnd = true;
    const JournalReplayer::Result open = JournalReplayer::replay(autosaved, "session.orj", options);
    EXPECT_EQ(open.message, "session.orj, line 2: the step begun here has no end; it was taken back.");
    EXPECT_EQ(styleValue<long>({"GlobalRGB", "GreenChannelVar"}), 0);
    EXPECT_EQ(styleValue<long>({"GlobalRGB", "RedChannelVar"}), 2);
}

TEST_F(JournalRecording, EveryKindOfBadLineIsRefusedWithAReasonAndChangesNothing)
{
    const std::pair<std::string, std::string> bad[] = {
        {"paint it black", "unknown command \"paint\""},
        {"style GlobalRGB/RedChannelVar", "style takes a path and a value."},
        {"style GlobalRGB/RedChannelVar four", "GlobalRGB/RedChannelVar takes an integer, not four."},
        {"style GlobalRGB/RedChannelVar 4.5", "takes an integer"},
        {"style GlobalScatter/RelativeSize 1,5", "takes a number"},
        {"style GlobalScatter/RelativeSizeInGridUnits yes", "takes true or false"},
        {"style GlobalScatter/BaseFontFamily \"open", "takes a quoted text"},
        {"style GlobalRGB/RedChannelVar 99", "the kernel refused GlobalRGB/RedChannelVar = 99"},
        {"style GlobalRGB/RangeMin 7", "the kernel refused GlobalRGB/RangeMin = 7"},
        {"style FieldMap/Scatter/Show[9] true", "out of range"},
        {"style FieldMap/Scatter/Show[0] true", "[n] with n from 1"},
        {"style Frame/7/GlobalRGB/RedChannelVar 1", "There is no frame 7"},
        {"style Frame/1x/GlobalRGB/RedChannelVar 1", "There is no frame 1x"},
        {"style FieldMap/Mesh/Color[1] 4294967297", "4294967297 is out of range: whole numbers lie between"},
        {"style GlobalRGB//RedChannelVar 1", "is not a style path"},
        {"end", "end without a begin."},
        {"undo", "there is nothing to undo."},
        {"redo now", "redo takes no arguments."},
        {"begin \"a\" extra", "begin takes a quoted step name or nothing."},
        {"load \"a.csv\" loader \"CSV table\" size 9", "load takes \"FILE\" loader"},
        {"load \"a.csv\" loader \"CSV table\" size 9 sha256 " + std::string(64, 'A'), "load takes"},
        {"sample \"Moon\"", "there is no built-in data set \"Moon\"."},
        {std::string("style GlobalRGB/RedChannelVar 1") + '\x01' + '\x02', "control characters"},
        {"style X/" + std::string(JournalReplayer::MaxLineLength, 'x'), "longer than"},
    };
    for (const auto& [line, reason] : bad) {
        SCOPED_TRACE(line.substr(0, 60));
        Kernel::resetKernel();
        Kernel::loadSampleDataSet();
        const JournalReplayer::Result result = replay(line + "\n");
        EXPECT_FALSE(result.ok);
        EXPECT_EQ(result.line, 1);
        EXPECT_NE(result.message.find(reason), std::string::npos) << result.message.substr(0, 200);
        EXPECT_EQ(result.message.rfind("session.orj, line 1: ", 0), 0u) << result.message.substr(0, 200);
        EXPECT_TRUE(journal().empty());
        EXPECT_EQ(undoName(), "");
    }
}

TEST_F(JournalRecording, WhatTheKernelRecordsItsReplayTakesBackToTheSameState)
{
    const std::string control = std::string("a\x01b\x1f\x7f") + '\0' + "c";
    const std::string longText(70000, 'w');
    {
        AppLock lock(AppLock::ImplicitMacroRecording_Allow);
        Kernel::setStyle({"GlobalRGB", "RedChannelVar"}, 4L);
        Kernel::setStyle({"GlobalScatter", "BaseFontFamily"}, control);
        OrrUtilUndoStateBegin(UndoCategory_AssignVariables);
        Kernel::setStyle({"GlobalRGB", "GreenChannelVar"}, 5L);
        // Undo inside an open step would take back the step before it: refused.
        EXPECT_FALSE(OrrUtilUndoPerform());
        EXPECT_FALSE(OrrUtilRedoPerform());
        OrrUtilUndoStateEnd(false, true);
        Kernel::setStyle({"GlobalScatter", "BaseFontFamily"}, longText);
    }
    EXPECT_EQ(styleValue<long>({"GlobalRGB", "RedChannelVar"}), 4) << "the step before the bracket stays";
    const std::vector<std::string> recorded = journal();
    std::string text;
    for (const std::string& line : recorded)
        text += line + "\n";

    Kernel::resetKernel();
    Kernel::loadSampleDataSet();
    const JournalReplayer::Result result = replay(text);
    ASSERT_TRUE(result.ok) << result.message.substr(0, 200);
    EXPECT_EQ(journal(), recorded);
    EXPECT_EQ(styleValue<std::string>({"GlobalScatter", "BaseFontFamily"}), longText);
    OrrUtilUndoPerform();
    EXPECT_EQ(styleValue<std::string>({"GlobalScatter", "BaseFontFamily"}), control);
    EXPECT_EQ(styleValue<long>({"GlobalRGB", "GreenChannelVar"}), 5);
    EXPECT_EQ(styleValue<long>({"GlobalRGB", "RedChannelVar"}), 4);
}

TEST_F(JournalRecording, DeepBracketsCloseInLinearTimeAndTheHistoryKeepsItsNewestSteps)
{
    // Closing each inner bracket used to copy its lines into the enclosing one:
    // this many would take minutes.
    const int depth = 50000;
    std::string nested;
    for (int i = 0; i < depth; ++i)
        nested += "begin\nstyle GlobalRGB/RedChannelVar " + std::to_string(i % 5 + 1) + "\n";
    const JournalReplayer::Result result = replay(nested);
    ASSERT_TRUE(result.ok) << result.message;
    EXPECT_EQ(journal().size(), size_t(depth + 2)) << "one begin, every write, one end";
    OrrUtilUndoPerform();
    EXPECT_EQ(styleValue<long>({"GlobalRGB", "RedChannelVar"}), 0) << "the whole replay is one step";

    auto& undo = orrery::kernel::Kernel::instance().undoStack();
    undo.setLimit(3);
    for (long var = 1; var <= 5; ++var)
        Kernel::setStyle({"GlobalRGB", "BlueChannelVar"}, var);
    int undone = 0;
    while (OrrUtilUndoPerform())
        ++undone;
    EXPECT_EQ(undone, 3);
    EXPECT_EQ(styleValue<long>({"GlobalRGB", "BlueChannelVar"}), 2) << "the oldest steps were dropped";
    undo.setLimit(orrery::kernel::UndoStack::DefaultLimit);
}

TEST_F(JournalRecording, ValuesReadBackAsWritten)
{
    const StyleDatum values[] = {StyleDatum(-7L),
                                 StyleDatum(0.1),
                                 StyleDatum(-2.5e-310),
                                 StyleDatum(1e300),
                                 StyleDatum(true),
                                 StyleDatum(false),
                                 StyleDatum(std::string("tab\there \"q\" back\\slash\nline")),
                                 StyleDatum(std::string("\x01\x1b[0m\x7f", 7))};
    for (const StyleDatum& value : values)
        EXPECT_EQ(Journal::parse(Journal::format(value), value), value) << Journal::format(value);
    EXPECT_EQ(Journal::parse(" +12 ", StyleDatum(0L)), StyleDatum(12L));
    EXPECT_FALSE(Journal::parse("0x10", StyleDatum(0L)));
    EXPECT_FALSE(Journal::parse("nan-ish", StyleDatum(0.0)));
    EXPECT_FALSE(Journal::parse("\"a\" \"b\"", StyleDatum(std::string())));
    EXPECT_FALSE(Journal::parse("\"bad \\q escape\"", StyleDatum(std::string())));
    EXPECT_FALSE(Journal::parse("\"cut \\x4\"", StyleDatum(std::string())));
    EXPECT_EQ(Journal::format(StyleDatum(std::string("\x01"))), "\"\\x01\"");
}

} // namespace
