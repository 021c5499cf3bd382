#include <gtest/gtest.h>
#include "demo/scene/HostScene.h"
#include "host/kernel/DataSet.h"
#include "plot/PlotScene.h"
#include "tests/support/TestSupport.h"

using testsupport::Kernel;

class HostSceneRead : public testsupport::SampleKernelTest
{};

TEST_F(HostSceneRead, RangesFollowEachNewDataSetEvenOfTheSameShapeAndNames)
{
    for (double top : {1.0, 5.0, 1.0, -3.0}) {
        orrery::kernel::DataSet data("Same", {"x", "y"});
        data.addZone("Zone", {{0.0, 1.0, 2.0}, {0.0, top / 2, top}});
        Kernel::setDataSet(data);
        Kernel::setStyle({"TwoDAxis", "XDetail", "VarNum"}, 1L);
        Kernel::setStyle({"TwoDAxis", "YDetail", "VarNum"}, 2L);
        const PlotScene scene = HostScene::read();
        ASSERT_TRUE(scene.problem.isEmpty()) << scene.problem.toStdString();
        EXPECT_EQ(std::max(top, 0.0), scene.axes[1].max) << top;
        EXPECT_EQ(std::min(top, 0.0), scene.axes[1].min) << top;
        ASSERT_EQ(1u, scene.zones.size());
        EXPECT_EQ(top, scene.zones[0].values[1][2]) << "the scene points at the new values";
    }
}
