#include <QComboBox>
#include "tests/prompts/prompt/DialogTestSupport.h"
#include "host/kernel/OrrUtilHost.h"
#include "platform/ui/QScientificSpinBox.h"
#include "prompts/prompt/RGBColorOptsDialog.h"

using namespace dialogtest;
using orrery::ui::QScientificSpinBox;

namespace {

const char* const Channels[] = {"Red", "Green", "Blue"};

class RGBColorOptsDialogTest : public DialogTest
{
protected:
    // Channel candidates R, G, B (3, 4, 5) with ranges [0, 10], [-5, 2], [1, 4].
    static void loadChannelData()
    {
        orrery::kernel::DataSet data("Channels", {"X", "Y", "R", "G", "B"});
        data.addZone("Zone", {{0, 1}, {0, 100}, {0, 10}, {-5, 2}, {1, 4}});
        Kernel::setDataSet(data);
    }
    RGBColorOptsDialog* openDialog()
    {
        RGBColorOptsDialog* dialog = RGBColorOptsDialog::getInstance(parent);
        dialog->launch();
        runIdle();
        return dialog;
    }
    static QComboBox* combo(QWidget& d, const QString& name) { return d.findChild<QComboBox*>(name); }
    static QComboBox* channelCombo(QWidget& d, const char* channel)
    {
        return combo(d, QString("rGBColorOpts_%1Variable_CmbBox").arg(channel));
    }
    static QLabel* channelLabel(QWidget& d, const char* channel)
    {
        return d.findChild<QLabel*>(QString("rGBColorOpts_%1Variable_Label").arg(channel));
    }
    static std::vector<bool> channelsEnabled(QWidget& d)
    {
        std::vector<bool> enabled;
        for (const char* channel : Channels) {
            EXPECT_EQ(channelCombo(d, channel)->isEnabled(), channelLabel(d, channel)->isEnabled()) << channel;
            enabled.push_back(channelCombo(d, channel)->isEnabled());
        }
        return enabled;
    }
    static long channelVar(const char* channel)
    {
        return styleValue<long>({"GlobalRGB", std::string(channel) + "ChannelVar"});
    }
    static void choose(QComboBox& box, int row)
    {
        box.setFocus();
        box.setCurrentIndex(row);
        runIdle();
    }
};

TEST_F(RGBColorOptsDialogTest, OpeningReplacesUnacceptableChannelVariablesByTheHostsCandidates)
{
    loadChannelData();
    RGBColorOptsDialog* dialog = openDialog();
    EXPECT_EQ(channelVar("Red"), 3);
    EXPECT_EQ(channelVar("Green"), 4);
    EXPECT_EQ(channelVar("Blue"), 5);
    EXPECT_EQ(channelCombo(*dialog, "Red")->currentText(), "R");
    EXPECT_EQ(channelCombo(*dialog, "Blue")->currentText(), "B");
    EXPECT_EQ(channelCombo(*dialog, "Green")->count(), 5);

    // With only X and Y left the host finds no candidates: all three are taken anyway.
    dialog->close();
    delete dialog;
    Kernel::setEnabledVars(orrery::toolbox::Set({1, 2}));
    openDialog();
    EXPECT_EQ(channelVar("Red"), 1);
    EXPECT_EQ(channelVar("Green"), 2);
    EXPECT_EQ(channelVar("Blue"), 0);
}

TEST_F(RGBColorOptsDialogTest, ModeDisablesTheCalculatedChannelAndReachesTheStyleAtOnce)
{
    RGBColorOptsDialog* dialog = openDialog();
    QComboBox* mode = combo(*dialog, "rGBColorOpts_Mode_CmbBox");
    ASSERT_EQ(mode->count(), 4);
    EXPECT_EQ(channelsEnabled(*dialog), std::vector<bool>({true, true, true}));
    const std::vector<bool> expected[] = {
        {true, true, true}, {true, true, false}, {true, false, true}, {false, true, true}};
    for (int row : {1, 2, 3, 0}) {
        SCOPED_TRACE(row);
        choose(*mode, row);
        EXPECT_EQ(styleValue<long>({"GlobalRGB", "RGBMode"}), row);
        EXPECT_EQ(channelsEnabled(*dialog), expected[row]);
    }
}

TEST_F(RGBColorOptsDialogTest, FollowsOutsideChangesAndUndo)
{
    loadChannelData();
    RGBColorOptsDialog* dialog = openDialog();
    QComboBox* mode = combo(*dialog, "rGBColorOpts_Mode_CmbBox");
    choose(*mode, 1);
    choose(*channelCombo(*dialog, "Red"), 0);
    ASSERT_EQ(channelVar("Red"), 1);

    ASSERT_TRUE(OrrUtilUndoPerform());
    runIdle();
    EXPECT_EQ(channelCombo(*dialog, "Red")->currentText(), "R");
    ASSERT_TRUE(OrrUtilUndoPerform());
    runIdle();
    EXPECT_EQ(mode->currentIndex(), 0);
    EXPECT_EQ(channelsEnabled(*dialog), std::vector<bool>({true, true, true}));

    Kernel::setStyle({"GlobalRGB", "RGBMode"}, long(RGBMode_SpecifyGB));
    runIdle();
    EXPECT_EQ(mode->currentIndex(), 3);
    EXPECT_EQ(channelsEnabled(*dialog), std::vector<bool>({false, true, true}));
}

TEST_F(RGBColorOptsDialogTest, OnlyVariableInvalidatingChangesReassignTheChannelsOnIdle)
{
    loadChannelData();
    openDialog();
    Kernel::setStyle({"GlobalRGB", "RedChannelVar"}, long(1));
    Kernel::setEnabledVars(orrery::toolbox::Set({2, 3, 4, 5}));
    runIdle();
    // X is not enabled any more, but nothing has asked for a check yet.
    for (StateChange_e ignored : {StateChange_NodeMapsAltered, StateChange_Style, StateChange_e(45)}) {
        Kernel::fireStateChange(ignored);
        runIdle();
        EXPECT_EQ(channelVar("Red"), 1) << ignored;
    }
    Kernel::fireStateChange(StateChange_VarsDeleted);
    EXPECT_EQ(channelVar("Red"), 1); // not before the host is idle
    runIdle();
    EXPECT_EQ(channelVar("Red"), 3);
}

TEST_F(RGBColorOptsDialogTest, IntensityStepIsATenthOfTheChannelsCombinedRange)
{
    loadChannelData();
    RGBColorOptsDialog* dialog = openDialog();
    auto* maxSpin = dialog->findChild<QScientificSpinBox*>("maxValue_doubleSpinBox");
    auto* minSpin = dialog->findChild<QScientificSpinBox*>("minValue_doubleSpinBox");
    user::open(*dialog);
    maxSpin->setFocus();
    QTest::keyClick(maxSpin, Qt::Key_Up);
    runIdle();
    EXPECT_DOUBLE_EQ(styleValue<double>({"GlobalRGB", "RangeMax"}), 1.0 + 1.5);
    QTest::keyClick(maxSpin, Qt::Key_PageUp);
    runIdle();
    EXPECT_DOUBLE_EQ(styleValue<double>({"GlobalRGB", "RangeMax"}), 2.5 + 15.0);
    minSpin->setFocus();
    QTest::keyClick(minSpin, Qt::Key_Down);
    runIdle();
    EXPECT_DOUBLE_EQ(styleValue<double>({"GlobalRGB", "RangeMin"}), -1.5);

    // A channel without a range stops the stepping.
    Kernel::setStyle({"GlobalRGB", "BlueChannelVar"}, long(0));
    runIdle();
    maxSpin->setFocus();
    QTest::keyClick(maxSpin, Qt::Key_Up);
    runIdle();
    EXPECT_DOUBLE_EQ(styleValue<double>({"GlobalRGB", "RangeMax"}), 17.5);
}

TEST_F(RGBColorOptsDialogTest, RefusedWriteIsReportedOnceAndTheControlShowsTheKernelsValue)
{
    RGBColorOptsDialog* dialog = openDialog();
    QComboBox* mode = combo(*dialog, "rGBColorOpts_Mode_CmbBox");
    Kernel::refuseNextWrite("The RGB mode cannot change now.");
    choose(*mode, 2);
    runIdle();
    EXPECT_EQ(messageTexts(), std::vector<std::string>({"The RGB mode cannot change now."}));
    EXPECT_EQ(styleValue<long>({"GlobalRGB", "RGBMode"}), 0);
    EXPECT_EQ(mode->currentIndex(), 0);
    EXPECT_EQ(channelsEnabled(*dialog), std::vector<bool>({true, true, true}));
}

TEST_F(RGBColorOptsDialogTest, UnusableOutsideFieldPlotsAndWithoutDataButNeverBroken)
{
    Kernel::setPlotType(PlotType_XYLine);
    RGBColorOptsDialog* dialog = RGBColorOptsDialog::getInstance(parent);
    dialog->launch();
    EXPECT_FALSE(dialog->isVisible());
    Kernel::setPlotType(PlotType_TwoD);
    dialog->launch();
    EXPECT_TRUE(dialog->isVisible());
    EXPECT_TRUE(dialog->isEnabled());

    Kernel::clearDataSet();
    runIdle();
    EXPECT_EQ(channelCombo(*dialog, "Red")->count(), 0);
    QComboBox* mode = combo(*dialog, "rGBColorOpts_Mode_CmbBox");
    choose(*mode, 1);
    EXPECT_EQ(styleValue<long>({"GlobalRGB", "RGBMode"}), 1);
    EXPECT_TRUE(messageTexts().empty());
    Kernel::setPlotType(PlotType_Sketch);
    runIdle();
    EXPECT_FALSE(contentEnabled(*dialog));
    Kernel::setFrameCount(0);
    runIdle();
    EXPECT_FALSE(contentEnabled(*dialog));
    EXPECT_TRUE(messageTexts().empty());
}

} // namespace
