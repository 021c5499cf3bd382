#include <gtest/gtest.h>
#include "StyleCalls.h"
#include "platform/sdk/DataSetQueries.h"

using namespace stylecalls;
using namespace orrery::sdk;
using orrery::kernel::testing::KernelTestSupport;

namespace {

// Sample data set: 1 X, 2 Y, 3 Z, 4 Pressure, 5 Temperature; 2D axes on X and Y.
class SdkDataSetQueries : public ::testing::Test
{
protected:
    void SetUp() override
    {
        KernelTestSupport::resetKernel();
        KernelTestSupport::loadSampleDataSet();
    }
};

std::vector<int> triple(int a, int b, int c)
{
    return {a, b, c};
}

} // namespace

TEST_F(SdkDataSetQueries, EnabledSetsBelongToTheirFrame)
{
    const long first = OrrUtilFrameGetUniqueID();
    KernelTestSupport::setEnabledZones({2, 3});
    KernelTestSupport::setFrameCount(2);
    const long second = OrrUtilFrameGetUniqueID();
    KernelTestSupport::setEnabledVars({1, 4});
    EXPECT_EQ((Set{2, 3}), getEnabledZonesForFrame(first));
    EXPECT_EQ((Set{1, 2, 3}), getEnabledZonesForFrame(second));
    EXPECT_EQ((Set{1, 2, 3, 4, 5}), getEnabledVarsForFrame(first));
    EXPECT_EQ((Set{1, 4}), getEnabledVarsForFrame(second));
    EXPECT_TRUE(getEnabledZonesForFrame(second + 100).isEmpty());
}

TEST_F(SdkDataSetQueries, VectorCandidatesAvoidTheAxes)
{
    int u, v, w;
    EXPECT_TRUE(getValidVectorVarCandidates(PlotType_TwoD, u, v, w));
    EXPECT_EQ(triple(3, 4, 0), triple(u, v, w));
    // 3D axes take X, Y and Z, leaving two variables for three components.
    EXPECT_FALSE(getValidVectorVarCandidates(PlotType_ThreeD, u, v, w));
    EXPECT_EQ(triple(0, 0, 0), triple(u, v, w));
    EXPECT_FALSE(getValidVectorVarCandidates(PlotType_XYLine, u, v, w));
    KernelTestSupport::setEnabledVars({1, 2, 3, 5});
    EXPECT_TRUE(getValidVectorVarCandidates(PlotType_TwoD, u, v, w));
    EXPECT_EQ(triple(3, 5, 0), triple(u, v, w));
}

TEST_F(SdkDataSetQueries, RGBCandidatesFallBackOnAxisVariables)
{
    int r, g, b;
    EXPECT_TRUE(getValidRGBVarCandidates(PlotType_TwoD, r, g, b));
    EXPECT_EQ(triple(3, 4, 5), triple(r, g, b));
    EXPECT_TRUE(getValidRGBVarCandidates(PlotType_ThreeD, r, g, b));
    EXPECT_EQ(triple(4, 5, 1), triple(r, g, b));
    KernelTestSupport::loadSampleDataSet("Small");
    EXPECT_FALSE(getValidRGBVarCandidates(PlotType_TwoD, r, g, b));
    EXPECT_EQ(triple(1, 2, 0), triple(r, g, b));
}

TEST_F(SdkDataSetQueries, VectorLayerNeedsDistinctEnabledVariables)
{
    EXPECT_FALSE(okToTurnOnVectorLayer(PlotType_TwoD));
    writeLong({"GlobalTwoDVector", "UVar"}, 3);
    writeLong({"GlobalTwoDVector", "VVar"}, 3);
    EXPECT_FALSE(okToTurnOnVectorLayer(PlotType_TwoD));
    writeLong({"GlobalTwoDVector", "VVar"}, 4);
    EXPECT_TRUE(okToTurnOnVectorLayer(PlotType_TwoD));
    EXPECT_FALSE(okToTurnOnVectorLayer(PlotType_ThreeD)); // not what the frame shows
    KernelTestSupport::setEnabledVars({1, 2, 3});
    EXPECT_FALSE(okToTurnOnVectorLayer(PlotType_TwoD));
}

TEST_F(SdkDataSetQueries, RGBChannelsMustBeEnabledVariables)
{
    EXPECT_TRUE(checkRGBChannelVars(3, 4, 5));
    EXPECT_TRUE(checkRGBChannelVars(3, 3, 3));
    EXPECT_FALSE(checkRGBChannelVars(3, 4, 0));
    EXPECT_FALSE(checkRGBChannelVars(3, 4, 6));
    KernelTestSupport::setEnabledVars({1, 2, 3, 4});
    EXPECT_FALSE(checkRGBChannelVars(3, 4, 5));

    const StyleValue group("GlobalRGB");
    EXPECT_FALSE(checkRGBChannelVars(group));
    writeLong({"GlobalRGB", "RedChannelVar"}, 1);
    writeLong({"GlobalRGB", "GreenChannelVar"}, 2);
    writeLong({"GlobalRGB", "BlueChannelVar"}, 4);
    EXPECT_TRUE(checkRGBChannelVars(group));
}

TEST_F(SdkDataSetQueries, ScatterVariableIsAssignedOnlyWhenMissingOrUnusable)
{
    const StringList path{"GlobalScatter", "Var"};
    StateChangeRecorder recorder;
    autoAssignScatterVariable();
    EXPECT_EQ(3, readLong(path));
    EXPECT_EQ(1u, recorder.events.size());

    writeLong(path, 5);
    autoAssignScatterVariable();
    EXPECT_EQ(5, readLong(path));

    KernelTestSupport::setEnabledVars({1, 2, 4});
    autoAssignScatterVariable();
    EXPECT_EQ(4, readLong(path));
}
