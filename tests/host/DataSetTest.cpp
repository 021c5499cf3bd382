// The stand-in kernel's data set and the queries the host makes on it.
#include "tests/host/StyleCalls.h"
#include "host/kernel/DataSet.h"
#include "host/kernel/Kernel.h"
#include "platform/sdk/DataSetQueries.h"

using namespace stylecalls;
using orrery::kernel::DataSet;
using namespace orrery::sdk;

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

typedef std::vector<int> Triple;
typedef bool (*CandidateQuery)(PlotType_e, int&, int&, int&);

// Whether candidates were found, and the three variables proposed.
std::pair<bool, Triple> candidates(CandidateQuery query, PlotType_e plotType)
{
    int a = -1, b = -1, c = -1;
    const bool found = query(plotType, a, b, c);
    return {found, Triple{a, b, c}};
}

} // namespace

// Variables 1 X, 2 Y, 3 Z, 4 Pressure, 5 Temperature, X running 0..9 across the
// three zones; 2D axes on X and Y.
typedef SampleKernelTest KernelDataSet;

TEST_F(KernelDataSet, NamesCountsAndRangesOfTheEnabledZones)
{
    EXPECT_TRUE(OrrUtilDataSetIsAvailable());
    EXPECT_EQ((std::vector<int>{3, 5}), (std::vector<int>{OrrUtilDataSetGetNumZones(), OrrUtilDataSetGetNumVars()}));
    EXPECT_EQ((std::vector<std::string>{"Heated plate", "Channel", "Temperature", "<null>", "<null>"}),
              (std::vector<std::string>{owned(OrrUtilDataSetGetTitle()), owned(OrrUtilZoneGetName(2)),
                                        owned(OrrUtilVarGetName(5)), owned(OrrUtilVarGetName(6)),
                                        owned(OrrUtilZoneGetName(0))}));

    EXPECT_EQ((std::vector<double>{0.0, 9.0}), minMax(1));
    const std::vector<double> pressure = minMax(4);
    ASSERT_EQ(2u, pressure.size());
    EXPECT_DOUBLE_EQ(101325.0 - 150.0 * 9, pressure[0]);
    EXPECT_DOUBLE_EQ(101325.0 + 20.0, pressure[1]);

    Kernel::setEnabledZones({2, 7}); // zone 7 does not exist and is dropped
    EXPECT_EQ((std::vector<bool>{false, true, false}),
              (std::vector<bool>{OrrUtilZoneIsEnabled(1), OrrUtilZoneIsEnabled(2), OrrUtilZoneIsEnabled(7)}));
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
    EXPECT_DOUBLE_EQ(0.5,
                     OrrUtilConvertUnits(Units_Point, Units_Grid, OrrUtilConvertUnits(Units_Grid, Units_Point, 0.5)));

    Kernel::setPlotType(PlotType_ThreeD); // its own axis assignment, still X and Y
    EXPECT_EQ(1.0, gridRange()[3]);
    Kernel::clearDataSet();
    EXPECT_EQ((std::vector<double>{0, 0, 1, 1}), gridRange());
}

TEST(DataSetBuilding, ZonesNeedOneEqualRowPerVariable)
{
    DataSet data("t", {"A", "B"});
    EXPECT_THROW(data.addZone("z", {{1.0, 2.0}}), std::invalid_argument);
    EXPECT_THROW(data.addZone("z", {{1.0, 2.0}, {1.0}}), std::invalid_argument);
    data.addZone("z", {{1.0, 2.0}, {3.0, 4.0}});
    EXPECT_EQ(2u, data.pointCount(1));
}

TEST_F(KernelDataSet, MissingValuesAreLeftOutOfRangesAndCategoriesStayWithTheirVariable)
{
    const double gap = DataSet::missingValue();
    DataSet data("gaps", {"X", "Kind", "Empty"});
    data.addZone("a", {{gap, 4.0, -2.0}, {1.0, 2.0, 1.0}, {gap, gap, gap}});
    data.addZone("b", {{7.0, gap}, {3.0, gap}, {gap, gap}});
    data.setCategories(2, {"low", "mid", "high"});
    EXPECT_THROW(data.setCategories(4, {"x"}), std::out_of_range);
    Kernel::setDataSet(data);

    EXPECT_EQ((std::vector<double>{-2.0, 7.0}), minMax(1));
    EXPECT_EQ((std::vector<double>{1.0, 3.0}), minMax(2));
    EXPECT_TRUE(minMax(3).empty()); // nothing but gaps has no range
    Kernel::setEnabledZones({2});
    EXPECT_EQ((std::vector<double>{7.0, 7.0}), minMax(1));

    const DataSet& held = orrery::kernel::Kernel::instance().dataSet();
    EXPECT_EQ((std::vector<std::string>{"low", "mid", "high"}), held.categories(2));
    EXPECT_TRUE(held.categories(1).empty());
    EXPECT_EQ((std::vector<size_t>{1, 0, 3, 1}),
              (std::vector<size_t>{held.missingCount(1, 1), held.missingCount(1, 2), held.missingCount(1, 3),
                                   held.missingCount(2, 2)}));
}

TEST_F(KernelDataSet, EnabledSetsBelongToTheirFrame)
{
    const long first = OrrUtilFrameGetUniqueID();
    Kernel::setEnabledZones({2, 3});
    Kernel::setFrameCount(2);
    const long second = OrrUtilFrameGetUniqueID();
    Kernel::setEnabledVars({1, 4});
    EXPECT_EQ((Set{2, 3}), getEnabledZonesForFrame(first));
    EXPECT_EQ((Set{1, 2, 3}), getEnabledZonesForFrame(second));
    EXPECT_EQ((Set{1, 2, 3, 4, 5}), getEnabledVarsForFrame(first));
    EXPECT_EQ((Set{1, 4}), getEnabledVarsForFrame(second));
    EXPECT_TRUE(getEnabledZonesForFrame(second + 100).isEmpty());
}

TEST_F(KernelDataSet, VectorAndRGBCandidatesAvoidTheAxesWhenTheyCan)
{
    EXPECT_EQ(std::make_pair(true, Triple{3, 4, 0}), candidates(getValidVectorVarCandidates, PlotType_TwoD));
    // 3D axes take X, Y and Z, leaving two variables for three components.
    EXPECT_EQ(std::make_pair(false, Triple{0, 0, 0}), candidates(getValidVectorVarCandidates, PlotType_ThreeD));
    EXPECT_FALSE(candidates(getValidVectorVarCandidates, PlotType_XYLine).first);
    EXPECT_EQ(std::make_pair(true, Triple{3, 4, 5}), candidates(getValidRGBVarCandidates, PlotType_TwoD));
    EXPECT_EQ(std::make_pair(true, Triple{4, 5, 1}), candidates(getValidRGBVarCandidates, PlotType_ThreeD));
    Kernel::setEnabledVars({1, 2, 3, 5});
    EXPECT_EQ(std::make_pair(true, Triple{3, 5, 0}), candidates(getValidVectorVarCandidates, PlotType_TwoD));
    Kernel::loadSampleDataSet("Small");
    EXPECT_EQ(std::make_pair(false, Triple{1, 2, 0}), candidates(getValidRGBVarCandidates, PlotType_TwoD));
}

TEST_F(KernelDataSet, VectorCandidatesAreVelocityComponentsAndNeverConstant)
{
    // Named as writers name velocities: found whatever their case and separators.
    DataSet flow("Vortex", {"x", "y", "Z", "speed", "velocity_X", "Vel-y"});
    flow.addZone("grid", {{0, 1, 2}, {0, 1, 0}, {0, 0, 0}, {1, 2, 3}, {1, -1, 0}, {0, 1, -1}});
    Kernel::setDataSet(flow);
    EXPECT_EQ(std::make_pair(true, Triple{5, 6, 0}), candidates(getValidVectorVarCandidates, PlotType_TwoD));

    // Without such names the first free variables serve, but a constant one never does.
    DataSet plain("Plain", {"x", "y", "level", "p", "q"});
    plain.addZone("grid", {{0, 1}, {0, 1}, {7, 7}, {1, 2}, {3, 4}});
    Kernel::setDataSet(plain);
    EXPECT_EQ(std::make_pair(true, Triple{4, 5, 0}), candidates(getValidVectorVarCandidates, PlotType_TwoD));
}

TEST_F(KernelDataSet, RGBCandidatesAreNamedChannelsWhateverTheirCaseButNoLongerNames)
{
    // "Redshift" only begins like a channel; "Grün" is not "green" in any case.
    DataSet colours("Colours", {"x", "y", "Redshift", "Grün", "BLUE", "g", "R_"});
    colours.addZone("grid", std::vector<std::vector<double>>(7, {0.0}));
    Kernel::setDataSet(colours);
    EXPECT_EQ(std::make_pair(true, Triple{7, 6, 5}), candidates(getValidRGBVarCandidates, PlotType_TwoD));
}

TEST_F(KernelDataSet, VectorLayerAndRGBChannelsNeedEnabledVariables)
{
    EXPECT_FALSE(okToTurnOnVectorLayer(PlotType_TwoD));
    writeLong({"GlobalTwoDVector", "UVar"}, 3);
    writeLong({"GlobalTwoDVector", "VVar"}, 3);
    EXPECT_FALSE(okToTurnOnVectorLayer(PlotType_TwoD));
    writeLong({"GlobalTwoDVector", "VVar"}, 4);
    EXPECT_TRUE(okToTurnOnVectorLayer(PlotType_TwoD));
    EXPECT_FALSE(okToTurnOnVectorLayer(PlotType_ThreeD)); // not what the frame shows

    EXPECT_EQ((std::vector<bool>{true, true, false, false}),
              (std::vector<bool>{checkRGBChannelVars(3, 4, 5), checkRGBChannelVars(3, 3, 3),
                                 checkRGBChannelVars(3, 4, 0), checkRGBChannelVars(3, 4, 6)}));
    const StyleValue group("GlobalRGB");
    EXPECT_FALSE(checkRGBChannelVars(group));
    writeLong({"GlobalRGB", "RedChannelVar"}, 1);
    writeLong({"GlobalRGB", "GreenChannelVar"}, 2);
    writeLong({"GlobalRGB", "BlueChannelVar"}, 4);
    EXPECT_TRUE(checkRGBChannelVars(group));

    Kernel::setEnabledVars({1, 2, 3});
    EXPECT_FALSE(okToTurnOnVectorLayer(PlotType_TwoD));
    EXPECT_FALSE(checkRGBChannelVars(3, 4, 5));
}

TEST_F(KernelDataSet, ScatterVariableIsAssignedOnlyWhenMissingOrUnusableAndLeavingVariablesAreReplaced)
{
    const StringList path{"GlobalScatter", "Var"};
    autoAssignScatterVariable();
    EXPECT_EQ(3, readLong(path));
    EXPECT_EQ(1u, changes.events.size());

    writeLong(path, 5);
    autoAssignScatterVariable();
    EXPECT_EQ(5, readLong(path));

    Kernel::setEnabledVars({1, 2, 4});
    autoAssignScatterVariable();
    EXPECT_EQ(4, readLong(path));

    // An axis whose variable left takes one the data set has; a kept one stays.
    writeLong({"ThreeDAxis", "ZDetail", "VarNum"}, 5);
    writeLong({"GlobalRGB", "RedChannelVar"}, 2);
    Kernel::loadSampleDataSet("Small"); // X and Y only
    EXPECT_EQ((std::vector<std::optional<long>>{2, 2, 1}),
              (std::vector<std::optional<long>>{readLong({"ThreeDAxis", "ZDetail", "VarNum"}),
                                                readLong({"GlobalRGB", "RedChannelVar"}),
                                                readLong({"TwoDAxis", "XDetail", "VarNum"})}));
}
