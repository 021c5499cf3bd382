// The dialogs on a host that is not the stand-in, the shipped example host of
// examples/tiny-host: whatever they need of a host must come through the host
// interface, or this program does not even link.
#include <QComboBox>
#include <QDialogButtonBox>
#include <QLabel>
#include <QPushButton>
#include <QLineEdit>
#include <QListView>
#include <QSpinBox>
#include <QTimer>
#include <variant>
#include <gtest/gtest.h>
#include "platform/common/IdleQueue.h"
#include "prompts/prompt/AxisVariableSelectDialog.h"
#include "prompts/prompt/EnterTextStringDialog.h"
#include "prompts/prompt/EnterThreeIntValuesDialog.h"
#include "prompts/prompt/RGBColorOptsDialog.h"
#include "prompts/prompt/VariableSelectDialog.h"
#include "prompts/prompt/ZoneSelectDialog.h"
#include "tests/support/UserActions.h"
#include "examples/tiny-host/TinyHost.h"

using namespace orrery::dialogs::prompt;
using tinyhost::Host;

namespace {

void runIdle()
{
    orrery::sdk::ui::common::IdleQueue::instance().flush();
}

long style(const std::string& path)
{
    return std::get<long>(Host::instance().style.at(path));
}

// Runs a modal dialog as a host does: whileOpen acts as the user and closes it.
int run(orrery::dialogs::common::QtDialogAbstract& dialog, const std::function<void()>& whileOpen)
{
    QTimer::singleShot(0, &dialog, [&] {
        runIdle();
        whileOpen();
        if (dialog.isVisible())
            dialog.reject();
    });
    dialog.launch();
    return dialog.result();
}

class TinyHostTest : public ::testing::Test
{
protected:
    void SetUp() override { Host::instance().reset(); }
    QWidget parent;
};

TEST_F(TinyHostTest, PlainPromptsAnswerFromWhatTheUserEntered)
{
    EnterTextStringDialog text(parent, "Title of the new frame:", "Frame 1", "", false);
    text.show();
    QLineEdit* edit = text.findChild<QLineEdit*>("EnterTextString_lineEdit");
    user::type(*edit, "Two blocks, cooled");
    user::press(text, QDialogButtonBox::Ok);
    EXPECT_EQ(text.result(), QDialog::Accepted);
    EXPECT_EQ(text.text(), "Two blocks, cooled");

    EnterThreeIntValuesDialog* range =
        EnterThreeIntValuesDialog::getInstance(parent, 1, 3, 1, "Index range", "", "&Begin", "&End", "&Skip", 1, 1, 1);
    EXPECT_EQ(QDialog::Accepted, run(*range, [&] {
                  range->findChild<QSpinBox*>("value2")->setValue(2);
                  user::press(*range, QDialogButtonBox::Ok);
              }));
    EXPECT_EQ(range->value1(), 1);
    EXPECT_EQ(range->value2(), 2);
    EXPECT_EQ(range->value3(), 1);
    delete range;
}

TEST_F(TinyHostTest, TextsAHostPassesAsStdStringAreReadAsUtf8)
{
    EnterThreeIntValuesDialog* range =
        EnterThreeIntValuesDialog::getInstance(parent, 1, 3, 1,
                                               "Gr\xc3\xb6\xc3\x9f"
                                               "e (\xc2\xb5m)",
                                               "", "&L\xc3\xa4nge", "&Ende", "&Schritt", 1, 1, 1);
    EXPECT_EQ(range->windowTitle(), QString::fromUtf8(u8"Gr\u00f6\u00dfe (\u00b5m)"));
    EXPECT_EQ(range->findChild<QLabel*>("valueLabel1")->text(), QString::fromUtf8(u8"&L\u00e4nge"));
    delete range;
    EnterTextStringDialog text(parent, "Titel:", "", "", false);
    text.setOkButtonText("\xc3\x9c"
                         "bernehmen");
    EXPECT_EQ(text.findChild<QDialogButtonBox*>()->button(QDialogButtonBox::Ok)->text(),
              QString::fromUtf8(u8"\u00dcbernehmen"));
}

TEST_F(TinyHostTest, ZonePromptListsTheHostsZonesAndAnswersTheChosenOne)
{
    ZoneSelectDialog* dialog = ZoneSelectDialog::getInstance(parent, 1);
    EXPECT_EQ(QDialog::Accepted, run(*dialog, [&] {
                  QListView* list = dialog->findChild<QListView*>("Zone_Source_MList");
                  ASSERT_EQ(list->model()->rowCount(), 2);
                  EXPECT_EQ(list->model()->index(1, 0).data().toString(), "Right block");
                  user::clickRow(*list, 1);
                  user::press(*dialog, QDialogButtonBox::Ok);
              }));
    EXPECT_EQ(dialog->selectedZone(), 2);
    delete dialog;
}

TEST_F(TinyHostTest, VariablePromptWritesTheHostsStyleOnOkAsOneStep)
{
    VariableSelectDialog* dialog = AxisVariableSelectDialog::getInstance(parent);
    EXPECT_EQ(QDialog::Accepted, run(*dialog, [&] {
                  QComboBox* y = dialog->findChild<QComboBox*>("var2_comboBox");
                  EXPECT_EQ(y->currentText(), "y");
                  y->setCurrentIndex(y->findText("Speed"));
                  runIdle();
                  EXPECT_EQ(style("TwoDAxis/YDetail/VarNum"), 2) << "written before OK";
                  user::press(*dialog, QDialogButtonBox::Ok);
              }));
    EXPECT_EQ(style("TwoDAxis/XDetail/VarNum"), 1);
    EXPECT_EQ(style("TwoDAxis/YDetail/VarNum"), 4);
    EXPECT_EQ(Host::instance().steps.size(), 1u);
    EXPECT_EQ(Host::instance().bracketDepth, 0);
    delete dialog;
}

TEST_F(TinyHostTest, AnOkWithARefusedWriteWritesNothingAndCancelLeavesTheHostAsItWas)
{
    Host::instance().refusals["TwoDAxis/YDetail/VarNum"] = "The Y axis is locked by a template.";
    VariableSelectDialog* dialog = AxisVariableSelectDialog::getInstance(parent);
    EXPECT_EQ(QDialog::Rejected, run(*dialog, [&] {
                  QComboBox* x = dialog->findChild<QComboBox*>("var1_comboBox");
                  QComboBox* y = dialog->findChild<QComboBox*>("var2_comboBox");
                  x->setCurrentIndex(x->findText("Density"));
                  y->setCurrentIndex(y->findText("Speed"));
                  runIdle();
                  user::press(*dialog, QDialogButtonBox::Ok);
                  EXPECT_TRUE(dialog->isVisible()) << "open for another choice";
                  EXPECT_EQ(style("TwoDAxis/XDetail/VarNum"), 1) << "X was taken back with the refused Y";
                  EXPECT_TRUE(Host::instance().steps.empty()) << "nothing to undo";
                  ASSERT_EQ(Host::instance().messages.size(), 1u);
                  EXPECT_NE(Host::instance().messages[0].find("locked by a template"), std::string::npos);
              }));
    EXPECT_EQ(style("TwoDAxis/XDetail/VarNum"), 1);
    EXPECT_EQ(style("TwoDAxis/YDetail/VarNum"), 2);
    EXPECT_TRUE(Host::instance().steps.empty());
    EXPECT_EQ(Host::instance().bracketDepth, 0);
    delete dialog;
}

TEST_F(TinyHostTest, AHostOperationThatThrowsIsToldOnceAndTheDialogsCarryOn)
{
    Host::instance().faults.throwing = {"ZoneGetName", "StyleGetValue"};
    ZoneSelectDialog* zones = ZoneSelectDialog::getInstance(parent, 1);
    VariableSelectDialog* variables = AxisVariableSelectDialog::getInstance(parent);
    EXPECT_EQ(QDialog::Accepted, run(*zones, [&] {
                  QListView* list = zones->findChild<QListView*>("Zone_Source_MList");
                  ASSERT_EQ(list->model()->rowCount(), 2) << "the zones are there, without their names";
                  user::clickRow(*list, 1);
                  user::press(*zones, QDialogButtonBox::Ok);
              }));
    EXPECT_EQ(zones->selectedZone(), 2);
    EXPECT_EQ(QDialog::Rejected, run(*variables, [&] { EXPECT_TRUE(variables->isVisible()); }));
    runIdle();
    ASSERT_EQ(Host::instance().messages.size(), 2u) << "once for each operation, however often it failed";
    const std::string told = Host::instance().messages[0] + "\n" + Host::instance().messages[1];
    EXPECT_NE(told.find("The host's operation OrrUtilZoneGetName(zone) failed: ZoneGetName lost its table."),
              std::string::npos)
        << told;
    EXPECT_NE(told.find("OrrUtilStyleGetValue(&args) failed"), std::string::npos) << told;
    delete zones;
    delete variables;

    // A name that comes back null is shown empty and told once.
    Host::instance().faults.throwing.clear();
    Host::instance().faults.nullNames = true;
    VariableSelectDialog* again = AxisVariableSelectDialog::getInstance(parent);
    run(*again, [&] {
        QComboBox* x = again->findChild<QComboBox*>("var1_comboBox");
        EXPECT_EQ(x->count(), 5);
    });
    runIdle();
    ASSERT_EQ(Host::instance().messages.size(), 3u);
    EXPECT_NE(Host::instance().messages[2].find("returned no text"), std::string::npos);
    delete again;
}

TEST_F(TinyHostTest, RGBOptionsWriteAtOnceAndShowTheHostsRefusal)
{
    RGBColorOptsDialog* dialog = RGBColorOptsDialog::getInstance(parent);
    dialog->launch();
    user::open(*dialog);
    runIdle();
    QComboBox* mode = dialog->findChild<QComboBox*>("rGBColorOpts_Mode_CmbBox");
    QComboBox* red = dialog->findChild<QComboBox*>("rGBColorOpts_RedVariable_CmbBox");
    EXPECT_EQ(red->currentText(), "Density");

    mode->setCurrentIndex(RGBMode_SpecifyGB);
    red->setCurrentIndex(red->findText("Energy"));
    runIdle();
    EXPECT_EQ(style("GlobalRGB/RGBMode"), RGBMode_SpecifyGB);
    EXPECT_FALSE(red->isEnabled()) << "red is calculated in this mode";
    EXPECT_TRUE(Host::instance().messages.empty());

    // The host's own rule refuses a minimum above the maximum: the user sees the
    // host's text and the field goes back to the host's value.
    QWidget* min = dialog->findChild<QWidget*>("minValue_doubleSpinBox");
    user::typeAndReturn(*min, "5");
    runIdle();
    EXPECT_EQ(std::get<double>(Host::instance().style.at("GlobalRGB/RangeMin")), 0.0);
    EXPECT_EQ(Host::instance().messages, std::vector<std::string>({"The minimum must stay below the maximum."}));
    delete dialog;
}

} // namespace
