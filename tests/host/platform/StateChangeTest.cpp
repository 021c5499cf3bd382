#include <gtest/gtest.h>
#include "StyleCalls.h"

using namespace stylecalls;
using Events = std::vector<std::pair<StateChange_e, std::string>>;

typedef SampleKernelTest StateChange;

TEST_F(StateChange, StyleWritesAnnounceTheirPathOnlyWhenTheValueChanges)
{
    writeLong({"GlobalRGB", "BlueChannelVar"}, 3);
    writeLong({"GlobalRGB", "BlueChannelVar"}, 3);
    writeLong({"GlobalRGB", "BlueChannelVar"}, 30); // refused
    Kernel::setPlotType(PlotType_ThreeD);
    EXPECT_EQ((Events{{StateChange_Style, "GlobalRGB/BlueChannelVar"}, {StateChange_Style, "FrameLayout/PlotType"}}),
              changes.events);
    EXPECT_EQ(PlotType_ThreeD, OrrUtilFrameGetPlotType());
}

TEST_F(StateChange, DataSetFrameAndPageChangesAreAnnouncedWithTheirCodes)
{
    Kernel::clearDataSet();
    Kernel::loadSampleDataSet("Small");
    Kernel::setEnabledVars({1});
    Kernel::setEnabledZones({1}); // already the only zone: no change
    Kernel::setFrameCount(3);
    Kernel::setFrameCount(1);
    Kernel::setPageCount(0);
    EXPECT_EQ((std::vector<StateChange_e>{StateChange_DataSetReset, StateChange_DataSetReset,
                                          StateChange_EnabledVarsChanged, StateChange_FrameAdded,
                                          StateChange_NewTopFrame, StateChange_FrameDeleted, StateChange_NewTopFrame,
                                          StateChange_FrameDeleted, StateChange_PageCountChanged}),
              changes.codes());
    EXPECT_EQ(0, OrrUtilFrameGetCount());
}

TEST(MessageBox, CapturedTextsAreRecordedAndAnsweredAndOffscreenOnesDoNotBlock)
{
    Kernel::resetKernel();
    EXPECT_EQ(1, OrrUtilDialogMessageBox("Nobody is looking.", MessageBoxType_Error));
    Kernel::captureMessageBoxes(0);
    EXPECT_EQ(0, OrrUtilDialogMessageBox("Really?", MessageBoxType_Question));
    ASSERT_EQ(1u, Kernel::capturedMessageBoxes().size());
    EXPECT_EQ("Really?", Kernel::capturedMessageBoxes()[0].text);
    EXPECT_EQ(MessageBoxType_Question, Kernel::capturedMessageBoxes()[0].type);
}
