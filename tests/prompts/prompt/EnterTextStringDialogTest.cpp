#include "tests/prompts/prompt/DialogTestSupport.h"
#include "prompts/prompt/EnterTextStringDialog.h"

using namespace dialogtest;

namespace {

class EnterTextStringDialogTest : public DialogTest
{
protected:
    static QLineEdit* edit(QWidget& d) { return d.findChild<QLineEdit*>("EnterTextString_lineEdit"); }
    static QDialogButtonBox* box(QWidget& d) { return d.findChild<QDialogButtonBox*>("EnterTextString_buttonBox"); }
};

TEST_F(EnterTextStringDialogTest, TypingReplacesTheSelectedInitialTextOkAcceptsAndCancelRejects)
{
    EnterTextStringDialog dialog(parent, "Name of the new frame:", "Frame 001", "", false);
    EXPECT_EQ(dialog.findChild<QLabel*>("EnterTextString_Label")->text(), "Name of the new frame:");
    dialog.show();
    QTest::keyClicks(edit(dialog), "Pressure map");
    EXPECT_EQ(dialog.text(), "Pressure map");
    user::press(dialog, QDialogButtonBox::Ok);
    EXPECT_EQ(dialog.result(), QDialog::Accepted);
    EXPECT_FALSE(dialog.isVisible());
    EXPECT_EQ(dialog.text(), "Pressure map");

    dialog.show();
    QTest::keyClicks(edit(dialog), "x");
    user::press(dialog, QDialogButtonBox::Cancel);
    EXPECT_EQ(dialog.result(), QDialog::Rejected);
    EXPECT_FALSE(dialog.isVisible());
}

TEST_F(EnterTextStringDialogTest, OkStartsEnabledOnEmptyTextIsDisabledOnceEmptiedCanBeRenamedAndHelpNeedsAPage)
{
    EnterTextStringDialog dialog(parent, "", "", "", false);
    QPushButton* ok = standard(dialog, QDialogButtonBox::Ok);
    const QString cancelText = standard(dialog, QDialogButtonBox::Cancel)->text();
    dialog.setOkButtonText("&Rename");
    EXPECT_EQ(ok->text(), "&Rename");
    EXPECT_EQ(standard(dialog, QDialogButtonBox::Cancel)->text(), cancelText);

    dialog.show();
    EXPECT_TRUE(ok->isEnabled());
    QTest::keyClicks(edit(dialog), "a");
    EXPECT_TRUE(ok->isEnabled());
    QTest::keyClick(edit(dialog), Qt::Key_Backspace);
    EXPECT_FALSE(ok->isEnabled());
    QTest::keyClicks(edit(dialog), "b");
    EXPECT_TRUE(ok->isEnabled());
    user::click(ok);
    EXPECT_EQ(dialog.text(), "b");

    // A help action only for a non-empty page.
    EnterTextStringDialog without(parent, "", "", "", true);
    EXPECT_EQ(without.helpAction(), nullptr);
    without.show();
    EXPECT_EQ(standard(without, QDialogButtonBox::Help), nullptr);

    EnterTextStringDialog with(parent, "", "", "anchor_alignment.html", false);
    ASSERT_NE(with.helpAction(), nullptr);
    with.show();
    EXPECT_NE(standard(with, QDialogButtonBox::Help), nullptr);
}

} // namespace
