#include <gtest/gtest.h>
#include "StyleCalls.h"
#include "platform/kernel/DataSet.h"

using namespace stylecalls;
using orrery::kernel::DataSet;
using orrery::kernel::testing::KernelTestSupport;

namespace {

class KernelDataSet : public ::testing::Test
{
protected:
    void SetUp() override
    {
        KernelTestSupport::resetKernel();
        KernelTestSupport::loadSampleDataSet(); // zones Inlet, Channel, Outlet; X runs 0..9 across them
    }
};

std::string owned(char* text)
{
    const std::string copy = text ? text : "<null>";
    OrrUtilStringDealloc(&text);
    EXPECT_EQ(nullptr, text);
    return copy;
}

} // namespace

TEST_F(KernelDataSet, NamesAndCounts)
{
    EXPECT_TRUE(OrrUtilDataSetIsAvailable());
    EXPECT_EQ(3, OrrUtilDataSetGetNumZones());
    EXPECT_EQ(5, OrrUtilDataSetGetNumVars());
    EXPECT_EQ("Heated plate", owned(OrrUtilDataSetGetTitle()));
    EXPECT_EQ("Channel", owned(OrrUtilZoneGetName(2)));
    EXPECT_EQ("Temperature", owned(OrrUtilVarGetName(5)));
    EXPECT_EQ("<null>", owned(OrrUtilVarGetName(6)));
    EXPECT_EQ("<null>", owned(OrrUtilZoneGetName(0)));
    KernelTestSupport::clearDataSet();
    EXPECT_FALSE(OrrUtilDataSetIsAvailable());
}

TEST_F(KernelDataSet, RangesCoverTheEnabledZonesOnly)
{
    double min = 0, max = 0;
    ASSERT_TRUE(OrrUtilVarGetMinMax(1, &min, &max));
    EXPECT_DOUBLE_EQ(0.0, min);
    EXPECT_DOUBLE_EQ(9.0, max);
    ASSERT_TRUE(OrrUtilVarGetMinMax(4, &min, &max));
    EXPECT_DOUBLE_EQ(101325.0 - 150.0 * 9, min);
    EXPECT_DOUBLE_EQ(101325.0 + 20.0, max);

    KernelTestSupport::setEnabledZones({2, 7}); // zone 7 does not exist and is dropped
    EXPECT_FALSE(OrrUtilZoneIsEnabled(1));
    EXPECT_TRUE(OrrUtilZoneIsEnabled(2));
    EXPECT_FALSE(OrrUtilZoneIsEnabled(7));
    ASSERT_TRUE(OrrUtilVarGetMinMax(1, &min, &max));
    EXPECT_DOUBLE_EQ(3.0, min);
    EXPECT_DOUBLE_EQ(6.0, max);
    EXPECT_FALSE(OrrUtilVarGetMinMax(6, &min, &max));
    KernelTestSupport::setEnabledZones({});
    EXPECT_FALSE(OrrUtilVarGetMinMax(1, &min, &max));
}

TEST_F(KernelDataSet, GridRangeFollowsTheAxisVariables)
{
    double x0, y0, x1, y1;
    OrrUtilAxisGetGridRange(&x0, &y0, &x1, &y1);
    EXPECT_EQ((std::vector<double>{0, 0, 9, 1}), (std::vector<double>{x0, y0, x1, y1}));

    writeLong({"TwoDAxis", "YDetail", "VarNum"}, 1);
    OrrUtilAxisGetGridRange(&x0, &y0, &x1, &y1);
    EXPECT_EQ(9.0, y1);

    KernelTestSupport::setPlotType(PlotType_ThreeD); // its own axis assignment, still X and Y
    OrrUtilAxisGetGridRange(&x0, &y0, &x1, &y1);
    EXPECT_EQ(1.0, y1);

    KernelTestSupport::clearDataSet();
    OrrUtilAxisGetGridRange(&x0, &y0, &x1, &y1);
    EXPECT_EQ((std::vector<double>{0, 0, 1, 1}), (std::vector<double>{x0, y0, x1, y1}));
}

TEST_F(KernelDataSet, UnitsConvertThroughTheFrameSize)
{
    EXPECT_DOUBLE_EQ(2.54, OrrUtilConvertUnits(Units_Point, Units_Centimetre, 72.0));
    EXPECT_DOUBLE_EQ(18.0, OrrUtilConvertUnits(Units_Frame, Units_Centimetre, 100.0));
    // The Y grid range is 1 unit over 80% of an 18 cm frame.
    EXPECT_DOUBLE_EQ(14.4, OrrUtilConvertUnits(Units_Grid, Units_Centimetre, 1.0));
    writeLong({"TwoDAxis", "YDetail", "VarNum"}, 1); // now 9 units
    EXPECT_DOUBLE_EQ(1.6, OrrUtilConvertUnits(Units_Grid, Units_Centimetre, 1.0));
    EXPECT_DOUBLE_EQ(0.5, OrrUtilConvertUnits(Units_Point, Units_Grid, OrrUtilConvertUnits(Units_Grid, Units_Point, 0.5)));
    EXPECT_EQ(3.0, OrrUtilConvertUnits(Units_Grid, 99, 3.0));
}

TEST_F(KernelDataSet, VariablesLeavingTheDataSetAreCleared)
{
    writeLong({"ThreeDAxis", "ZDetail", "VarNum"}, 5);
    writeLong({"GlobalRGB", "RedChannelVar"}, 2);
    KernelTestSupport::loadSampleDataSet("Small"); // X and Y only
    EXPECT_EQ(0, readLong({"ThreeDAxis", "ZDetail", "VarNum"}));
    EXPECT_EQ(2, readLong({"GlobalRGB", "RedChannelVar"}));
    EXPECT_EQ(1, readLong({"TwoDAxis", "XDetail", "VarNum"}));
}

TEST(ColorMap, BasicCustomAndOutOfRangeColours)
{
    unsigned char r, g, b;
    OrrUtilColorMapGetBasicColorRGB(1, &r, &g, &b);
    EXPECT_EQ((std::vector<int>{255, 0, 0}), (std::vector<int>{r, g, b}));
    OrrUtilColorMapGetBasicColorRGB(6, &r, &g, &b);
    EXPECT_EQ((std::vector<int>{255, 0, 255}), (std::vector<int>{r, g, b}));
    OrrUtilColorMapGetBasicColorRGB(9, &r, &g, &b);
    const std::vector<int> custom{r, g, b};
    OrrUtilColorMapGetBasicColorRGB(10, &r, &g, &b);
    EXPECT_NE(custom, (std::vector<int>{r, g, b}));
    EXPECT_NE((std::vector<int>{0, 0, 0}), custom);
    OrrUtilColorMapGetBasicColorRGB(64, &r, &g, &b);
    EXPECT_EQ((std::vector<int>{0, 0, 0}), (std::vector<int>{r, g, b}));
}

TEST(DataSetBuilding, ZonesNeedOneEqualRowPerVariable)
{
    DataSet data("t", {"A", "B"});
    EXPECT_THROW(data.addZone("z", {{1.0, 2.0}}), std::invalid_argument);
    EXPECT_THROW(data.addZone("z", {{1.0, 2.0}, {1.0}}), std::invalid_argument);
    data.addZone("z", {{1.0, 2.0}, {3.0, 4.0}});
    EXPECT_EQ(2u, data.pointCount(1));
}
