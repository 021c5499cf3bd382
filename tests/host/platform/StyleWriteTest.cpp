#include <gtest/gtest.h>
#include "StyleCalls.h"

using namespace stylecalls;

namespace {

typedef SampleKernelTest StyleWrite; // five variables

struct Refusal
{
    std::string name;
    StringList path;
    long value;
    std::string text;
};

class StyleWriteRefused : public StyleWrite, public ::testing::WithParamInterface<Refusal>
{
};

} // namespace

TEST_P(StyleWriteRefused, LeavesTheOldValueAndExplainsWhy)
{
    const Refusal& r = GetParam();
    const auto before = readLong(r.path);
    ASSERT_TRUE(before);
    EXPECT_EQ(SetValue_InvalidValue, writeLong(r.path, r.value));
    EXPECT_EQ(r.text, lastError());
    EXPECT_EQ(before, readLong(r.path));
}

INSTANTIATE_TEST_SUITE_P(
    IntegerRules, StyleWriteRefused,
    ::testing::Values(
        Refusal{"ChannelVariable", {"GlobalRGB", "RedChannelVar"}, 9, "Variable number 9 is out of range (1 to 5)."},
        Refusal{"AxisVariable", {"TwoDAxis", "XDetail", "VarNum"}, -1, "Variable number -1 is out of range (1 to 5)."},
        Refusal{"RGBMode", {"GlobalRGB", "RGBMode"}, 4, "RGB mode 4 is not valid (0 to 3)."},
        Refusal{"PlotType", {"FrameLayout", "PlotType"}, 0, "Plot type 0 is not valid (1 to 5)."}),
    [](const ::testing::TestParamInfo<Refusal>& info) { return info.param.name; });

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
    EXPECT_EQ(SetValue_Ok, writeLong({"GlobalRGB", "RGBMode"}, 2));
    EXPECT_EQ(2, readLong({"GlobalRGB", "RGBMode"}));
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
    EXPECT_EQ(SetValue_InvalidOperator, writeFinal<bool>({"GlobalScatter", "BaseFontIsBold"}, true, AssignOp_PlusEquals));
}

TEST_F(StyleWrite, DeclinedWritesAreSilentAndForcedOutcomesApplyToTheNextWriteOnly)
{
    Kernel::declineNextWrite();
    EXPECT_EQ(SetValue_Declined, writeLong({"GlobalRGB", "RGBMode"}, 1));
    EXPECT_EQ(0, readLong({"GlobalRGB", "RGBMode"}));
    Kernel::refuseNextWrite("Busy elsewhere.");
    EXPECT_EQ(SetValue_InvalidValue, writeLong({"GlobalRGB", "RGBMode"}, 1));
    EXPECT_EQ("Busy elsewhere.", lastError());
    EXPECT_EQ(SetValue_Ok, writeLong({"GlobalRGB", "RGBMode"}, 1));
    writeLong({"GlobalRGB", "RangeMin"}, 0);
    EXPECT_EQ(3, Kernel::styleWriteCount({"GlobalRGB", "RGBMode"}));
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
    EXPECT_EQ(0, readLong({"GlobalRGB", "RGBMode"}));
    EXPECT_EQ(SetValue_NoFrame, writeLong({"Frame", "7", "GlobalRGB", "RGBMode"}, 3));
    EXPECT_EQ("There is no frame 7.", lastError());

    Kernel::setFrameCount(0);
    EXPECT_EQ(SetValue_NoFrame, writeLong({"GlobalRGB", "RGBMode"}, 1));
    EXPECT_FALSE(readLong({"GlobalRGB", "RGBMode"}));
    EXPECT_EQ(PlotType_Sketch, OrrUtilFrameGetPlotType());
}
