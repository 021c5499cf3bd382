// The stand-in kernel's rules: refused writes and their texts, collection
// members, undo and redo, and the state changes it announces.
#include "host/kernel/UndoStack.h"
#include "tests/host/StyleCalls.h"

using namespace stylecalls;

namespace {

const StringList ScatterColor{"FieldMap", "Scatter", "Color"};
const StringList Mode{"GlobalRGB", "RGBMode"};
const StringList Red{"GlobalRGB", "RedChannelVar"};
using Events = StateChangeRecorder::Events;
using Values = std::vector<std::optional<long>>;
Values scatterColors()
{
    return {readLong(ScatterColor, 1), readLong(ScatterColor, 2), readLong(ScatterColor, 3)};
}

typedef SampleKernelTest StyleWrite; // five variables

} // namespace

TEST_F(StyleWrite, IntegerRulesRefuseLeavingTheOldValueAndExplainWhy)
{
    const struct
    {
        StringList path;
        long value;
        std::string text;
    } refusals[] = {{Red, 9, "Variable number 9 is out of range (1 to 5)."},
                    {{"TwoDAxis", "XDetail", "VarNum"}, -1, "Variable number -1 is out of range (1 to 5)."},
                    {Mode, 4, "RGB mode 4 is not valid (0 to 3)."},
                    {{"FrameLayout", "PlotType"}, 0, "Plot type 0 is not valid (1 to 5)."}};
    for (const auto& r : refusals) {
        SCOPED_TRACE(r.text);
        const auto before = readLong(r.path);
        ASSERT_TRUE(before);
        EXPECT_EQ(SetValue_InvalidValue, writeLong(r.path, r.value));
        EXPECT_EQ(r.text, lastError());
        EXPECT_EQ(before, readLong(r.path));
    }
}

TEST_F(StyleWrite, RangeTextAndSizeRules)
{
    EXPECT_EQ(SetValue_Ok, writeFinal<double>({"GlobalRGB", "RangeMax"}, 10.0));
    EXPECT_EQ(SetValue_InvalidValue, writeFinal<double>({"GlobalRGB", "RangeMin"}, 10.0));
    EXPECT_EQ("The minimum (10) must be less than the maximum (10).", lastError());
    EXPECT_EQ(0.0, readFinal<double>({"GlobalRGB", "RangeMin"}));
    EXPECT_EQ(SetValue_Ok, writeFinal<double>({"GlobalRGB", "RangeMin"}, 9.5));
    EXPECT_EQ(SetValue_InvalidValue, writeFinal<double>({"GlobalRGB", "RangeMax"}, 9.0));
    EXPECT_EQ("The maximum (9) must be greater than the minimum (9.5).", lastError());

    EXPECT_EQ(SetValue_InvalidValue, writeFinal<std::string>({"GlobalScatter", "BaseFontFamily"}, ""));
    EXPECT_EQ("The font family must not be empty.", lastError());
    EXPECT_EQ(SetValue_Ok, writeFinal<std::string>({"GlobalLinePlot", "BaseFontFamily"}, "Serif"));
    EXPECT_EQ("Serif", readFinal<std::string>({"GlobalLinePlot", "BaseFontFamily"}));
    EXPECT_EQ("Sans Serif", readFinal<std::string>({"GlobalScatter", "BaseFontFamily"}));

    EXPECT_EQ(SetValue_InvalidValue, writeFinal<double>({"GlobalScatter", "RelativeSize"}, 0.0));
    EXPECT_EQ("The relative size must be greater than zero.", lastError());
    EXPECT_EQ(SetValue_InvalidValue, writeFinal<double>({"BasicSize", "SymbolSizes", "Medium"}, 101.0));
    // A successful write clears the last error.
    ASSERT_FALSE(lastError().empty());
    EXPECT_EQ(SetValue_Ok, writeLong(Mode, 2));
    EXPECT_EQ(2, readLong(Mode));
    EXPECT_EQ(nullptr, OrrUtilStyleGetLastErrorString());
}

TEST_F(StyleWrite, UnknownPathsAndValuesOfTheWrongTypeAreRefused)
{
    EXPECT_EQ(SetValue_UnknownPath, writeLong({"GlobalRGB", "PurpleChannelVar"}, 1));
    EXPECT_EQ("Unknown style path: GlobalRGB/PurpleChannelVar", lastError());
    EXPECT_FALSE(readLong({"GlobalRGB", "PurpleChannelVar"}));
    EXPECT_FALSE(readLong({"GlobalRGB"})); // a group, not a value

    EXPECT_EQ(SetValue_TypeMismatch, writeFinal<double>({"GlobalScatter", "BaseFontFamily"}, 1.0));
    EXPECT_EQ("Style path GlobalScatter/BaseFontFamily takes a text value.", lastError());
    EXPECT_FALSE(readFinal<double>({"GlobalScatter", "BaseFontFamily"}));
    EXPECT_EQ(true, readFinal<bool>({"GlobalScatter", "RelativeSizeInGridUnits"}));

    EXPECT_EQ(SetValue_Ok, writeFinal<double>({"GlobalScatter", "RelativeSize"}, 1.5, AssignOp_TimesEquals));
    EXPECT_EQ(1.5, readFinal<double>({"GlobalScatter", "RelativeSize"}));
    EXPECT_EQ(SetValue_InvalidValue, writeFinal<double>({"GlobalScatter", "RelativeSize"}, 0.0, AssignOp_DivideEquals));
    EXPECT_EQ(SetValue_InvalidValue, writeFinal<double>({"GlobalScatter", "RelativeSize"}, 2.0, AssignOp_MinusEquals));
    EXPECT_EQ(1.5, readFinal<double>({"GlobalScatter", "RelativeSize"}));
    EXPECT_EQ(SetValue_InvalidOperator,
              writeFinal<bool>({"GlobalScatter", "BaseFontIsBold"}, true, AssignOp_PlusEquals));
}

TEST_F(StyleWrite, DeclinedWritesAreSilentAndForcedOutcomesApplyToTheNextWriteOnly)
{
    Kernel::declineNextWrite();
    EXPECT_EQ(SetValue_Declined, writeLong(Mode, 1));
    EXPECT_EQ(0, readLong(Mode));
    Kernel::refuseNextWrite("Busy elsewhere.");
    EXPECT_EQ(SetValue_InvalidValue, writeLong(Mode, 1));
    EXPECT_EQ("Busy elsewhere.", lastError());
    EXPECT_EQ(SetValue_Ok, writeLong(Mode, 1));
    writeLong({"GlobalRGB", "RangeMin"}, 0);
    EXPECT_EQ(3, Kernel::styleWriteCount(Mode));
    EXPECT_EQ(4, Kernel::styleWriteCount());

    // A variable write without variables is declined silently.
    Kernel::clearDataSet();
    EXPECT_EQ(SetValue_Declined, writeLong({"GlobalRGB", "GreenChannelVar"}, 2));
    EXPECT_EQ("", lastError());
    EXPECT_EQ(0, readLong({"GlobalRGB", "GreenChannelVar"}));
    EXPECT_EQ(SetValue_Ok, writeLong({"GlobalRGB", "GreenChannelVar"}, 0));
}

TEST_F(StyleWrite, FramePrefixAddressesAnotherFrameAndWithoutFramesThereIsNoStyle)
{
    Kernel::setFrameCount(2); // frame 2 is now current
    EXPECT_EQ(SetValue_Ok, writeLong({"Frame", "1", "GlobalRGB", "RGBMode"}, 3));
    EXPECT_EQ(3, readLong({"Frame", "1", "GlobalRGB", "RGBMode"}));
    EXPECT_EQ(0, readLong(Mode));
    EXPECT_EQ(SetValue_NoFrame, writeLong({"Frame", "7", "GlobalRGB", "RGBMode"}, 3));
    EXPECT_EQ("There is no frame 7.", lastError());

    Kernel::setFrameCount(0);
    EXPECT_EQ(SetValue_NoFrame, writeLong(Mode, 1));
    EXPECT_FALSE(readLong(Mode));
    EXPECT_EQ(PlotType_Sketch, OrrUtilFrameGetPlotType());
}

typedef SampleKernelTest StyleCollection; // three zones, so three field maps

TEST_F(StyleCollection, AnOffsetOrASetSelectsTheMembersWrittenOthersAreRefused)
{
    EXPECT_EQ(SetValue_Ok, writeLong(ScatterColor, 1, 2));
    EXPECT_EQ((Values{0, 1, 0}), scatterColors());
    const Set members{1, 3};
    EXPECT_EQ(SetValue_Ok, writeLong(ScatterColor, 5, -1, &members));
    EXPECT_EQ((Values{5, 1, 5}), scatterColors());
    // Members of removed zones are forgotten.
    Kernel::loadSampleDataSet("Small");
    Kernel::loadSampleDataSet("Sample");
    EXPECT_EQ(0, readLong(ScatterColor, 3));

    // Members outside the data set and bad values are refused.
    EXPECT_EQ(SetValue_InvalidOffset, writeLong(ScatterColor, 1, 4));
    EXPECT_EQ("Member 4 of FieldMap/Scatter/Color is out of range (the data set has 3 zones).", lastError());
    const Set badMembers{2, 4};
    EXPECT_EQ(SetValue_InvalidOffset, writeLong(ScatterColor, 1, -1, &badMembers));
    EXPECT_EQ(0, readLong(ScatterColor, 2)); // nothing written when one member is bad
    EXPECT_FALSE(readLong(ScatterColor, -1));
    EXPECT_FALSE(readLong(ScatterColor, 4));

    EXPECT_EQ(SetValue_Ok, writeLong(ScatterColor, -6, 1)); // colour by RGB
    EXPECT_EQ(SetValue_InvalidValue, writeLong(ScatterColor, -2, 1));
    EXPECT_EQ("Colour index -2 is not valid.", lastError());
    EXPECT_EQ(SetValue_InvalidValue, writeLong(ScatterColor, 64, 1));
}

typedef SampleKernelTest Undo;

TEST_F(Undo, BracketIsUndoneAndRedoneAsOneStepAndNestedBracketsJoinIt)
{
    OrrUtilUndoStateBegin(11);
    writeLong(Mode, 1);
    writeLong(Red, 4);
    OrrUtilUndoStateBegin(11);
    writeLong(Mode, 2);
    OrrUtilUndoStateEnd(false, false); // an inner bracket cannot drop its writes from the step
    OrrUtilUndoStateEnd(false, true);

    changes.events.clear();
    EXPECT_TRUE(OrrUtilUndoPerform());
    EXPECT_EQ(0, readLong(Mode));
    EXPECT_EQ(0, readLong(Red));
    EXPECT_EQ(std::vector<StateChange_e>(3, StateChange_Style), changes.codes());
    EXPECT_FALSE(OrrUtilUndoPerform());

    EXPECT_TRUE(OrrUtilRedoPerform());
    EXPECT_EQ(2, readLong(Mode));
    EXPECT_EQ(4, readLong(Red));
    EXPECT_FALSE(OrrUtilRedoPerform());
}

TEST_F(Undo, LoneWritesAreStepsANewWriteDropsRedoAndARevertTakesBackOnlyItsClosedBracket)
{
    writeLong(Mode, 1);
    writeLong(Mode, 2);
    OrrUtilUndoPerform();
    EXPECT_EQ(1, readLong(Mode));
    OrrUtilUndoPerform();
    EXPECT_EQ(0, readLong(Mode));
    writeLong(Mode, 3);
    EXPECT_FALSE(OrrUtilRedoPerform());
    EXPECT_EQ(3, readLong(Mode));

    OrrUtilUndoStateBegin(11);
    writeLong(Mode, 1);
    OrrUtilUndoStateBegin(11);
    writeLong(Red, 3);
    writeLong(Red, 5);
    OrrUtilUndoStateEnd(true, true);
    EXPECT_EQ(0, readLong(Red));
    EXPECT_EQ(1, readLong(Mode));
    OrrUtilUndoStateEnd(false, true);

    OrrUtilUndoStateBegin(11);
    writeLong(Mode, 2);
    OrrUtilUndoStateEnd(false, false);
    EXPECT_EQ(2, readLong(Mode));
    // An unrecorded bracket leaves nothing to undo: this takes back the recorded one.
    OrrUtilUndoPerform();
    EXPECT_EQ(3, readLong(Mode));
}

typedef SampleKernelTest StateChange;

TEST(UndoLimit, ASettingIsAWholeNumberInRangeOrIsRefusedInWords)
{
    using orrery::kernel::UndoStack;
    std::string problem;
    EXPECT_EQ(UndoStack::limitFromSetting("25", problem), 25u);
    EXPECT_EQ(UndoStack::limitFromSetting("1000000", problem), 1000000u);
    EXPECT_EQ(problem, "");
    for (const char* bad : {"0", "-1", "1e12", "1000001", "18446744073709551616", " 3", "abc", "3 "}) {
        problem.clear();
        EXPECT_EQ(UndoStack::limitFromSetting(bad, problem), UndoStack::DefaultLimit) << bad;
        EXPECT_EQ(problem, std::string("The setting UndoStepLimit = \"") + bad
                               + "\" is not a whole number from 1 to 1000000; Undo keeps 1000 steps.");
    }
}

TEST_F(StateChange, StyleDataSetFrameAndPageChangesAreAnnouncedWithTheirCodes)
{
    writeLong({"GlobalRGB", "BlueChannelVar"}, 3);
    writeLong({"GlobalRGB", "BlueChannelVar"}, 3);
    writeLong({"GlobalRGB", "BlueChannelVar"}, 30); // refused
    Kernel::setPlotType(PlotType_ThreeD);
    EXPECT_EQ((Events{{StateChange_Style, "GlobalRGB/BlueChannelVar"}, {StateChange_Style, "FrameLayout/PlotType"}}),
              changes.events);
    EXPECT_EQ(PlotType_ThreeD, OrrUtilFrameGetPlotType());

    changes.events.clear();
    Kernel::clearDataSet();
    Kernel::loadSampleDataSet("Small");
    Kernel::setEnabledVars({1});
    Kernel::setEnabledZones({1}); // already the only zone: no change
    Kernel::setFrameCount(3);
    Kernel::setFrameCount(1);
    Kernel::setPageCount(0);
    EXPECT_EQ(
        (std::vector<StateChange_e>{StateChange_DataSetReset, StateChange_DataSetReset, StateChange_EnabledVarsChanged,
                                    StateChange_FrameAdded, StateChange_NewTopFrame, StateChange_FrameDeleted,
                                    StateChange_NewTopFrame, StateChange_FrameDeleted, StateChange_PageCountChanged}),
        changes.codes());
    EXPECT_EQ(0, OrrUtilFrameGetCount());
}

TEST(MessageBox, CapturedTextsAreRecordedAndAnsweredAndOffscreenOnesDoNotBlock)
{
    Kernel::resetKernel();
    EXPECT_EQ(1, OrrUtilDialogMessageBox("Nobody is looking.", MessageBoxType_Error));
    Kernel::captureMessageBoxes(0);
    EXPECT_EQ(0, OrrUtilDialogMessageBox("Really?", MessageBoxType_Question));
    EXPECT_EQ(MessageBoxType_Question, Kernel::capturedMessageBoxes().at(0).type);
    EXPECT_EQ(std::vector<std::string>{"Really?"}, messageTexts());
}
