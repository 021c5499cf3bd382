#include <gtest/gtest.h>
#include "StyleCalls.h"
#include "platform/kernel/DataSet.h"

using namespace stylecalls;
using orrery::kernel::DataSet;

namespace {

std::string owned(char* text)
{
    const std::string copy = text ? text : "<null>";
    OrrUtilStringDealloc(&text);
    EXPECT_EQ(nullptr, text);
    return copy;
}

std::vector<double> minMax(int var)
{
    double min = 0, max = 0;
    if (!OrrUtilVarGetMinMax(var, &min, &max))
        return {};
    return {min, max};
}

std::vector<double> gridRange()
{
    double x0, y0, x1, y1;
    OrrUtilAxisGetGridRange(&x0, &y0, &x1, &y1);
    return {x0, y0, x1, y1};
}

} // namespace

typedef SampleKernelTest KernelDataSet; // X runs 0..9 across the three zones

TEST_F(KernelDataSet, NamesCountsAndRangesOfTheEnabledZones)
{
    EXPECT_TRUE(OrrUtilDataSetIsAvailable());
    EXPECT_EQ(3, OrrUtilDataSetGetNumZones());
    EXPECT_EQ(5, OrrUtilDataSetGetNumVars());
    EXPECT_EQ("Heated plate", owned(OrrUtilDataSetGetTitle()));
    EXPECT_EQ("Channel", owned(OrrUtilZoneGetName(2)));
    EXPECT_EQ("Temperature", owned(OrrUtilVarGetName(5)));
    EXPECT_EQ("<null>", owned(OrrUtilVarGetName(6)));
    EXPECT_EQ("<null>", owned(OrrUtilZoneGetName(0)));

    EXPECT_EQ((std::vector<double>{0.0, 9.0}), minMax(1));
    const std::vector<double> pressure = minMax(4);
    ASSERT_EQ(2u, pressure.size());
    EXPECT_DOUBLE_EQ(101325.0 - 150.0 * 9, pressure[0]);
    EXPECT_DOUBLE_EQ(101325.0 + 20.0, pressure[1]);

    Kernel::setEnabledZones({2, 7}); // zone 7 does not exist and is dropped
    EXPECT_FALSE(OrrUtilZoneIsEnabled(1));
    EXPECT_TRUE(OrrUtilZoneIsEnabled(2));
    EXPECT_FALSE(OrrUtilZoneIsEnabled(7));
    EXPECT_EQ((std::vector<double>{3.0, 6.0}), minMax(1));
    EXPECT_TRUE(minMax(6).empty());
    Kernel::setEnabledZones({});
    EXPECT_TRUE(minMax(1).empty());
    Kernel::clearDataSet();
    EXPECT_FALSE(OrrUtilDataSetIsAvailable());
}

TEST_F(KernelDataSet, GridRangeAndUnitsFollowTheAxisVariables)
{
    EXPECT_EQ((std::vector<double>{0, 0, 9, 1}), gridRange());
    EXPECT_DOUBLE_EQ(2.54, OrrUtilConvertUnits(Units_Point, Units_Centimetre, 72.0));
    EXPECT_DOUBLE_EQ(18.0, OrrUtilConvertUnits(Units_Frame, Units_Centimetre, 100.0));
    // The Y grid range is 1 unit over 80% of an 18 cm frame.
    EXPECT_DOUBLE_EQ(14.4, OrrUtilConvertUnits(Units_Grid, Units_Centimetre, 1.0));
    EXPECT_EQ(3.0, OrrUtilConvertUnits(Units_Grid, 99, 3.0));

    writeLong({"TwoDAxis", "YDetail", "VarNum"}, 1); // now 9 units
    EXPECT_EQ(9.0, gridRange()[3]);
    EXPECT_DOUBLE_EQ(1.6, OrrUtilConvertUnits(Units_Grid, Units_Centimetre, 1.0));
    EXPECT_DOUBLE_EQ(0.5, OrrUtilConvertUnits(Units_Point, Units_Grid, OrrUtilConvertUnits(Units_Grid, Units_Point, 0.5)));

    Kernel::setPlotType(PlotType_ThreeD); // its own axis assignment, still X and Y
    EXPECT_EQ(1.0, gridRange()[3]);
    Kernel::clearDataSet();
    EXPECT_EQ((std::vector<double>{0, 0, 1, 1}), gridRange());
}

TEST_F(KernelDataSet, VariablesLeavingTheDataSetAreCleared)
{
    writeLong({"ThreeDAxis", "ZDetail", "VarNum"}, 5);
    writeLong({"GlobalRGB", "RedChannelVar"}, 2);
    Kernel::loadSampleDataSet("Small"); // X and Y only
    EXPECT_EQ(0, readLong({"ThreeDAxis", "ZDetail", "VarNum"}));
    EXPECT_EQ(2, readLong({"GlobalRGB", "RedChannelVar"}));
    EXPECT_EQ(1, readLong({"TwoDAxis", "XDetail", "VarNum"}));
}

TEST(ColorMap, BasicCustomAndOutOfRangeColours)
{
    auto rgb = [](int colour) {
        unsigned char r, g, b;
        OrrUtilColorMapGetBasicColorRGB(colour, &r, &g, &b);
        return std::vector<int>{r, g, b};
    };
    EXPECT_EQ((std::vector<int>{255, 0, 0}), rgb(1));
    EXPECT_EQ((std::vector<int>{255, 0, 255}), rgb(6));
    EXPECT_NE(rgb(9), rgb(10));
    EXPECT_NE((std::vector<int>{0, 0, 0}), rgb(9));
    EXPECT_EQ((std::vector<int>{0, 0, 0}), rgb(64));
}

TEST(DataSetBuilding, ZonesNeedOneEqualRowPerVariable)
{
    DataSet data("t", {"A", "B"});
    EXPECT_THROW(data.addZone("z", {{1.0, 2.0}}), std::invalid_argument);
    EXPECT_THROW(data.addZone("z", {{1.0, 2.0}, {1.0}}), std::invalid_argument);
    data.addZone("z", {{1.0, 2.0}, {3.0, 4.0}});
    EXPECT_EQ(2u, data.pointCount(1));
}
