#include <gtest/gtest.h>
#include "StyleCalls.h"

using namespace stylecalls;
using orrery::kernel::testing::KernelTestSupport;
using Events = std::vector<std::pair<StateChange_e, std::string>>;

namespace {

class StateChange : public ::testing::Test
{
protected:
    void SetUp() override
    {
        KernelTestSupport::resetKernel();
        KernelTestSupport::loadSampleDataSet();
        recorder.events.clear();
    }
    StateChangeRecorder recorder;
};

} // namespace

TEST_F(StateChange, StyleWriteAnnouncesItsPathOnlyWhenTheValueChanges)
{
    writeLong({"GlobalRGB", "BlueChannelVar"}, 3);
    writeLong({"GlobalRGB", "BlueChannelVar"}, 3);
    writeLong({"GlobalRGB", "BlueChannelVar"}, 30); // refused
    EXPECT_EQ((Events{{StateChange_Style, "GlobalRGB/BlueChannelVar"}}), recorder.events);
}

TEST_F(StateChange, PlotTypeIsAStyleChangeNamedPlotType)
{
    KernelTestSupport::setPlotType(PlotType_ThreeD);
    ASSERT_EQ(1u, recorder.events.size());
    EXPECT_EQ(StateChange_Style, recorder.events[0].first);
    EXPECT_EQ("FrameLayout/PlotType", recorder.events[0].second);
    EXPECT_EQ(PlotType_ThreeD, OrrUtilFrameGetPlotType());
}

TEST_F(StateChange, OutsideStyleWriteIsAnnouncedLikeAnyOther)
{
    EXPECT_EQ(SetValue_Ok, KernelTestSupport::setStyle({"GlobalScatter", "RelativeSize"}, 2.0));
    EXPECT_EQ((Events{{StateChange_Style, "GlobalScatter/RelativeSize"}}), recorder.events);
    EXPECT_EQ(2.0, std::get<double>(KernelTestSupport::styleValue({"GlobalScatter", "RelativeSize"})));
}

TEST_F(StateChange, DataSetChangesAreAnnouncedWithDataCodes)
{
    KernelTestSupport::clearDataSet();
    KernelTestSupport::loadSampleDataSet("Small");
    KernelTestSupport::setEnabledVars({1});
    KernelTestSupport::setEnabledZones({1});  // already the only zone: no change
    EXPECT_EQ((std::vector<StateChange_e>{StateChange_DataSetReset, StateChange_DataSetReset,
                                          StateChange_EnabledVarsChanged}),
              recorder.codes());
}

TEST_F(StateChange, FrameAndPageChangesAreAnnounced)
{
    KernelTestSupport::setFrameCount(3);
    KernelTestSupport::setFrameCount(1);
    KernelTestSupport::setPageCount(0);
    EXPECT_EQ((std::vector<StateChange_e>{StateChange_FrameAdded, StateChange_NewTopFrame,
                                          StateChange_FrameDeleted, StateChange_NewTopFrame,
                                          StateChange_FrameDeleted, StateChange_PageCountChanged}),
              recorder.codes());
    EXPECT_EQ(0, OrrUtilFrameGetCount());
}

TEST_F(StateChange, FiredChangeReachesListeners)
{
    KernelTestSupport::fireStateChange(StateChange_VarsDeleted);
    KernelTestSupport::fireStateChange(StateChange_Style, {"GlobalRGB", "RangeMin"});
    EXPECT_EQ((Events{{StateChange_VarsDeleted, ""}, {StateChange_Style, "GlobalRGB/RangeMin"}}),
              recorder.events);
}

TEST(MessageBox, CapturedTextsAreRecordedAndAnswered)
{
    KernelTestSupport::resetKernel();
    KernelTestSupport::captureMessageBoxes(0);
    EXPECT_EQ(0, OrrUtilDialogMessageBox("Really?", MessageBoxType_Question));
    ASSERT_EQ(1u, KernelTestSupport::capturedMessageBoxes().size());
    EXPECT_EQ("Really?", KernelTestSupport::capturedMessageBoxes()[0].text);
    EXPECT_EQ(MessageBoxType_Question, KernelTestSupport::capturedMessageBoxes()[0].type);
}

TEST(MessageBox, OffscreenWithoutCaptureDoesNotBlock)
{
    KernelTestSupport::resetKernel();
    EXPECT_EQ(1, OrrUtilDialogMessageBox("Nobody is looking.", MessageBoxType_Error));
}
