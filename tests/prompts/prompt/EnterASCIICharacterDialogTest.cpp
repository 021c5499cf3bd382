#include "tests/prompts/prompt/DialogTestSupport.h"
#include "prompts/prompt/EnterASCIICharacterDialog.h"

using namespace dialogtest;

namespace {

const char* const BaseButton = "useBaseFont_RadioButton";
const char* const GreekButton = "useGreekFont_RadioButton";
const char* const MathButton = "useMathFont_RadioButton";
const char* const UserButton = "useUserDefFont_RadioButton";

class EnterASCIICharacterDialogTest : public DialogTest
{
protected:
    static QLineEdit* field(QWidget& d) { return d.findChild<QLineEdit*>("selectedCharacter_lineEdit"); }
    static QRadioButton* radio(QWidget& d, const char* name) { return d.findChild<QRadioButton*>(name); }
    static std::vector<std::string> checkedButtons(QWidget& d)
    {
        std::vector<std::string> names;
        for (const char* name : {BaseButton, GreekButton, MathButton, UserButton})
            if (radio(d, name)->isChecked())
                names.push_back(name);
        return names;
    }
};

TEST_F(EnterASCIICharacterDialogTest, TheInitialFontIsCheckedAndTheBaseFontIsEncodedAs255)
{
    struct Case
    {
        bool useBaseFont;
        Font_e font;
        const char* checked;
        int typeFace;
    };
    for (const Case& c : {Case{true, Font_Math, BaseButton, 255}, Case{false, Font_Greek, GreekButton, 2},
                          Case{false, Font_Math, MathButton, 3}, Case{false, Font_UserDefined, UserButton, 4},
                          Case{false, Font_Invalid, BaseButton, 255}}) {
        SCOPED_TRACE(c.checked);
        QWidget owner;
        EnterASCIICharacterDialog* dialog = EnterASCIICharacterDialog::getInstance(owner, "A", c.useBaseFont, c.font);
        EXPECT_EQ(checkedButtons(*dialog), std::vector<std::string>{c.checked});
        EXPECT_EQ(dialog->typeFaceOverride(), c.typeFace);
        EXPECT_EQ(dialog->useBaseFont(), c.typeFace == 255);
        EXPECT_EQ(dialog->selectedChar(), "A");
    }
}

TEST_F(EnterASCIICharacterDialogTest, TypedCharacterAndClickedFontAreTheAnswersAndALiveDialogIsReturnedAsLeft)
{
    EnterASCIICharacterDialog* dialog = EnterASCIICharacterDialog::getInstance(parent, "A", true, Font_Math);
    user::open(*dialog);
    user::retype(*field(*dialog), "q", *radio(*dialog, BaseButton));
    user::click(radio(*dialog, GreekButton));
    runIdle();
    EXPECT_EQ(checkedButtons(*dialog), std::vector<std::string>{GreekButton});
    user::press(*dialog, QDialogButtonBox::Ok);
    EXPECT_EQ(dialog->result(), QDialog::Accepted);
    EXPECT_EQ(dialog->selectedChar(), "q");
    EXPECT_EQ(dialog->typeFaceOverride(), Font_Greek);
    EXPECT_FALSE(dialog->useBaseFont());

    dialog->show();
    user::click(radio(*dialog, BaseButton));
    user::press(*dialog, QDialogButtonBox::Ok);
    EXPECT_TRUE(dialog->useBaseFont());
    EXPECT_TRUE(Kernel::capturedMessageBoxes().empty());

    user::open(*dialog);
    user::click(radio(*dialog, UserButton));
    user::press(*dialog, QDialogButtonBox::Cancel);
    EXPECT_EQ(EnterASCIICharacterDialog::getInstance(parent, "Z", false, Font_Greek), dialog);
    runIdle();
    EXPECT_EQ(field(*dialog)->text(), "q");
    EXPECT_EQ(checkedButtons(*dialog), std::vector<std::string>{UserButton});
    EXPECT_EQ(dialog->typeFaceOverride(), Font_UserDefined);
}

TEST_F(EnterASCIICharacterDialogTest, AnEmptyCharacterIsRefusedOnceAndThePreviousOneKept)
{
    EnterASCIICharacterDialog* dialog = EnterASCIICharacterDialog::getInstance(parent, "A", true, Font_Math);
    user::open(*dialog);
    user::retype(*field(*dialog), "", *radio(*dialog, MathButton));
    const auto boxes = Kernel::capturedMessageBoxes();
    ASSERT_EQ(boxes.size(), 1u);
    EXPECT_EQ(boxes[0].text, "Selected character cannot be empty.");
    EXPECT_EQ(boxes[0].type, 0);
    EXPECT_EQ(field(*dialog)->text(), "A");
    EXPECT_EQ(dialog->selectedChar(), "A");

    // Return on an empty field is refused the same way and does not close the dialog.
    user::typeAndReturn(*field(*dialog), "");
    EXPECT_TRUE(dialog->isVisible());
    EXPECT_EQ(Kernel::capturedMessageBoxes().size(), 2u);
    EXPECT_EQ(dialog->selectedChar(), "A");
    EXPECT_EQ(field(*dialog)->text(), "A");
}

} // namespace
