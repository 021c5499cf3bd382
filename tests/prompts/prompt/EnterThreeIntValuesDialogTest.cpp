#include <QSpinBox>
#include "tests/prompts/prompt/DialogTestSupport.h"
#include "framework/HelpViewer.h"
#include "prompts/prompt/EnterThreeIntValuesDialog.h"

using namespace dialogtest;
using orrery::dialogs::common::HelpViewer;

namespace {

class EnterThreeIntValuesDialogTest : public DialogTest
{
protected:
    // The default range prompt: begin, end and skip, all at least 1.
    EnterThreeIntValuesDialog* rangePrompt()
    {
        return EnterThreeIntValuesDialog::getInstance(parent, 1, 10, 1, "Index Range", "select_variable.html", "&Begin",
                                                      "&End", "&Skip", 1, 1, 1);
    }
    static QSpinBox* spin(QWidget& d, int i) { return d.findChild<QSpinBox*>(QString("value%1").arg(i)); }
};

TEST_F(EnterThreeIntValuesDialogTest, TypedValuesAreTheAnswersAfterOkOrReturnAndStayAfterCancel)
{
    EnterThreeIntValuesDialog* dialog = rangePrompt();
    user::open(*dialog);
    user::retype(*spin(*dialog, 1), "5", *spin(*dialog, 2));
    user::retype(*spin(*dialog, 2), "250", *spin(*dialog, 3));
    user::retype(*spin(*dialog, 3), "5", *spin(*dialog, 1));
    user::press(*dialog, QDialogButtonBox::Ok);
    EXPECT_EQ(dialog->result(), QDialog::Accepted);
    EXPECT_EQ(dialog->value1(), 5);
    EXPECT_EQ(dialog->value2(), 250);
    EXPECT_EQ(dialog->value3(), 5);

    user::open(*dialog);
    user::retype(*spin(*dialog, 1), "3", *spin(*dialog, 2));
    user::press(*dialog, QDialogButtonBox::Cancel);
    EXPECT_EQ(dialog->result(), QDialog::Rejected);
    EXPECT_EQ(dialog->value1(), 3); // nothing is reset: the caller looks at the result

    user::open(*dialog);
    user::typeAndReturn(*spin(*dialog, 2), "42"); // commits the value and accepts
    EXPECT_EQ(dialog->result(), QDialog::Accepted);
    EXPECT_EQ(dialog->value2(), 42);
}

TEST_F(EnterThreeIntValuesDialogTest, CaptionsTitleAndPositiveLowerLimitsOfTheFirstCallStayInTheLiveDialog)
{
    EnterThreeIntValuesDialog* dialog =
        EnterThreeIntValuesDialog::getInstance(parent, 0, 2, 3, "Zone Range", "", "&First", "", "S&tep", 1, 0, -5);
    EXPECT_EQ(dialog->windowTitle(), "Zone Range");
    EXPECT_EQ(dialog->findChild<QLabel*>("valueLabel1")->text(), "&First");
    EXPECT_EQ(dialog->findChild<QLabel*>("valueLabel2")->text(), "");
    EXPECT_EQ(dialog->findChild<QLabel*>("valueLabel3")->text(), "S&tep");
    EXPECT_EQ(spin(*dialog, 3)->value(), 3);
    EXPECT_NE(dialog->helpAction(), nullptr); // installed even for an empty page
    EXPECT_EQ(spin(*dialog, 1)->minimum(), 1);
    EXPECT_EQ(spin(*dialog, 2)->minimum(), -2147483646);
    EXPECT_EQ(spin(*dialog, 3)->minimum(), -2147483646);
    // An initial value under the limit is shown clamped but kept until edited.
    EXPECT_EQ(spin(*dialog, 1)->value(), 1);
    EXPECT_EQ(dialog->value1(), 0);

    user::open(*dialog);
    user::retype(*spin(*dialog, 1), "7", *spin(*dialog, 2));
    EXPECT_EQ(dialog->value1(), 7);
    user::retype(*spin(*dialog, 1), "0", *spin(*dialog, 2));
    EXPECT_EQ(dialog->value1(), 7);
    EXPECT_EQ(spin(*dialog, 1)->value(), 7);
    user::retype(*spin(*dialog, 3), "-3", *spin(*dialog, 2));
    EXPECT_EQ(dialog->value3(), -3);
    user::retype(*spin(*dialog, 3), "99999999999", *spin(*dialog, 2));
    EXPECT_LE(dialog->value3(), 2147483646);
    EXPECT_EQ(spin(*dialog, 3)->value(), dialog->value3());
    user::retype(*spin(*dialog, 2), "20", *spin(*dialog, 3));
    user::press(*dialog, QDialogButtonBox::Ok);

    QWidget otherParent;
    EXPECT_EQ(
        EnterThreeIntValuesDialog::getInstance(otherParent, 100, 200, 300, "Other", "", "x", "y", "z", 50, 50, 50),
        dialog);
    // What the live dialog shows is checked with every dialog's reuse; here, the
    // user's values and the first call's limits stay.
    EXPECT_EQ(dialog->value1(), 7);
    EXPECT_EQ(dialog->value2(), 20);
    EXPECT_EQ(spin(*dialog, 1)->minimum(), 1);
}

// The prompt's own page, shown when the caller names none, is checked with every dialog's pages.
TEST_F(EnterThreeIntValuesDialogTest, HelpOpensTheCallersPage)
{
    EnterThreeIntValuesDialog* dialog = rangePrompt();
    user::open(*dialog);
    user::press(*dialog, QDialogButtonBox::Help);
    ASSERT_NE(HelpViewer::of(*dialog), nullptr);
    EXPECT_EQ(HelpViewer::of(*dialog)->page(), "select_variable.html");
}

TEST_F(EnterThreeIntValuesDialogTest, UsableOnlyWhileThereIsADataSet)
{
    EnterThreeIntValuesDialog* dialog = rangePrompt();
    dialog->show();
    EXPECT_TRUE(contentEnabled(*dialog));
    Kernel::clearDataSet();
    runIdle();
    EXPECT_FALSE(contentEnabled(*dialog));
    dialog->hide();
    dialog->launch(); // refused, so it returns at once
    EXPECT_FALSE(dialog->isVisible());
    EXPECT_EQ(dialog->result(), QDialog::Rejected);

    Kernel::loadSampleDataSet("Small");
    runIdle();
    EXPECT_TRUE(EnterThreeIntValuesDialog::relevance()->isRelevant());
}

} // namespace
