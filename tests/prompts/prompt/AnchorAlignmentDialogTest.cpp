#include "tests/prompts/prompt/DialogTestSupport.h"
#include "prompts/prompt/AnchorAlignmentDialog.h"

using namespace dialogtest;

namespace {

// Radio buttons in the order of their alignment values.
const char* const ButtonNames[] = {
    "anchorAlignment_TopLeft_RadioButton",      "anchorAlignment_TopCenter_RadioButton",
    "anchorAlignment_TopRight_RadioButton",     "anchorAlignment_MiddleLeft_RadioButton",
    "anchorAlignment_MiddleCenter_RadioButton", "anchorAlignment_MiddleRight_RadioButton",
    "anchorAlignment_BottomLeft_RadioButton",   "anchorAlignment_BottomCenter_RadioButton",
    "anchorAlignment_BottomRight_RadioButton"};

class AnchorAlignmentDialogTest : public DialogTest
{
protected:
    static QRadioButton* button(AnchorAlignmentDialog& d, int alignment)
    {
        return d.findChild<QRadioButton*>(ButtonNames[alignment]);
    }
    // The alignment whose button is checked, -1 when none is.
    static int checked(AnchorAlignmentDialog& d)
    {
        for (int a = 0; a < 9; ++a)
            if (button(d, a)->isChecked())
                return a;
        return -1;
    }
};

TEST_F(AnchorAlignmentDialogTest, TheInitialAlignmentIsCheckedOrTopLeftWhenOutOfRangeAndIsTheAnswerUntilAClick)
{
    for (int initial : {0, 1, 4, 8, 9, 12, -1}) {
        SCOPED_TRACE(initial);
        AnchorAlignmentDialog dialog(AnchorAlignment_e(initial), parent);
        dialog.show();
        EXPECT_EQ(checked(dialog), initial >= 0 && initial < 9 ? initial : 0);
        EXPECT_EQ(dialog.selectedAlignment(), initial);
        user::click(button(dialog, 5));
        EXPECT_EQ(dialog.selectedAlignment(), 5);
    }
}

TEST_F(AnchorAlignmentDialogTest, EveryButtonGivesItsAlignmentAndALaterGetInstanceOnlyReplacesWhatCancelRestores)
{
    AnchorAlignmentDialog* dialog = AnchorAlignmentDialog::getInstance(AnchorAlignment_TopLeft, parent);
    for (int a : {8, 0, 1, 2, 3, 4, 5, 6, 7}) {
        dialog->show();
        user::click(button(*dialog, a));
        user::press(*dialog, QDialogButtonBox::Ok);
        EXPECT_FALSE(dialog->isVisible());
        EXPECT_EQ(dialog->result(), QDialog::Accepted);
        EXPECT_EQ(dialog->selectedAlignment(), a);
    }

    QWidget otherParent;
    EXPECT_EQ(AnchorAlignmentDialog::getInstance(AnchorAlignment_BottomRight, otherParent), dialog);
    EXPECT_EQ(dialog->parentWidget(), &parent);
    EXPECT_EQ(checked(*dialog), AnchorAlignment_BottomCenter);
    EXPECT_EQ(dialog->selectedAlignment(), AnchorAlignment_BottomCenter);

    dialog->show();
    user::click(button(*dialog, AnchorAlignment_MiddleCenter));
    EXPECT_EQ(dialog->selectedAlignment(), AnchorAlignment_MiddleCenter);
    user::press(*dialog, QDialogButtonBox::Cancel);
    EXPECT_EQ(dialog->result(), QDialog::Rejected);
    EXPECT_EQ(dialog->selectedAlignment(), AnchorAlignment_BottomRight);
    EXPECT_EQ(checked(*dialog), AnchorAlignment_MiddleCenter); // the buttons are not reset

    dialog->show();
    user::click(button(*dialog, AnchorAlignment_TopCenter));
    QTest::keyClick(dialog, Qt::Key_Escape);
    EXPECT_FALSE(dialog->isVisible());
    EXPECT_EQ(dialog->selectedAlignment(), AnchorAlignment_BottomRight);
}

} // namespace
