#include <gtest/gtest.h>
#include "StyleCalls.h"
#include "platform/sdk/DataSetQueries.h"

using namespace stylecalls;
using namespace orrery::sdk;

namespace {

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

// Sample data set: 1 X, 2 Y, 3 Z, 4 Pressure, 5 Temperature; 2D axes on X and Y.
typedef SampleKernelTest SdkDataSetQueries;

TEST_F(SdkDataSetQueries, EnabledSetsBelongToTheirFrame)
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

TEST_F(SdkDataSetQueries, VectorAndRGBCandidatesAvoidTheAxesWhenTheyCan)
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

TEST_F(SdkDataSetQueries, VectorLayerAndRGBChannelsNeedEnabledVariables)
{
    EXPECT_FALSE(okToTurnOnVectorLayer(PlotType_TwoD));
    writeLong({"GlobalTwoDVector", "UVar"}, 3);
    writeLong({"GlobalTwoDVector", "VVar"}, 3);
    EXPECT_FALSE(okToTurnOnVectorLayer(PlotType_TwoD));
    writeLong({"GlobalTwoDVector", "VVar"}, 4);
    EXPECT_TRUE(okToTurnOnVectorLayer(PlotType_TwoD));
    EXPECT_FALSE(okToTurnOnVectorLayer(PlotType_ThreeD)); // not what the frame shows

    EXPECT_TRUE(checkRGBChannelVars(3, 4, 5));
    EXPECT_TRUE(checkRGBChannelVars(3, 3, 3));
    EXPECT_FALSE(checkRGBChannelVars(3, 4, 0));
    EXPECT_FALSE(checkRGBChannelVars(3, 4, 6));
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

TEST_F(SdkDataSetQueries, ScatterVariableIsAssignedOnlyWhenMissingOrUnusable)
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
}
