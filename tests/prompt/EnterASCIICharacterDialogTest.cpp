#include <QDialogButtonBox>
#include <QLabel>
#include <QLineEdit>
#include <QRadioButton>
#include <QTest>
#include <gtest/gtest.h>
#include "support/UserActions.h"
#include "WidgetContract.h"
#include "platform/common/IdleQueue.h"
#include "platform/kernel/KernelTestSupport.h"
#include "prompt/EnterASCIICharacterDialog.h"
#include "prompt/EnterASCIICharacterPropertiesManager.h"
#include "property/InvalidPropertyValueException.h"

using orrery::dialogs::prompt::EnterASCIICharacterDialog;
using orrery::dialogs::prompt::EnterASCIICharacterPropertiesManager;
using orrery::kernel::testing::KernelTestSupport;
using orrery::sdk::ui::common::IdleQueue;

namespace {

const char* const BaseButton = "useBaseFont_RadioButton";
const char* const GreekButton = "useGreekFont_RadioButton";
const char* const MathButton = "useMathFont_RadioButton";
const char* const UserButton = "useUserDefFont_RadioButton";

class EnterASCIICharacterDialogTest : public ::testing::Test
{
protected:
    void SetUp() override
    {
        KernelTestSupport::resetKernel();
        KernelTestSupport::loadSampleDataSet();
        KernelTestSupport::captureMessageBoxes();
    }
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

    QWidget parent;
};

TEST_F(EnterASCIICharacterDialogTest, LayoutContract)
{
    EnterASCIICharacterDialog* dialog = EnterASCIICharacterDialog::getInstance(parent, "A", true, Font_Math);
    contract::expectWidgets(*dialog, {
        {"EnterASCIICharacter", "orrery::dialogs::prompt::EnterASCIICharacterDialog", "Enter ASCII Character"},
        {"gridLayout_3", "QGridLayout", nullptr},
        {"gridLayout_2", "QGridLayout", nullptr},
        {"gridLayout", "QGridLayout", nullptr},
        {"label", "QLabel", "Enter &character to use as a symbol:"},
        {"selectedCharacter_lineEdit", "QLineEdit", "A"},
        {BaseButton, "QRadioButton", "&Base"},
        {MathButton, "QRadioButton", "&Math"},
        {GreekButton, "QRadioButton", "&Greek"},
        {UserButton, "QRadioButton", "&User defined"},
        {"buttonBox", "QDialogButtonBox", nullptr},
    });
    contract::expectGrid(*dialog, {
        {"gridLayout_3", "gridLayout_2", 0, 0, 1, 1},
        {"gridLayout_3", "buttonBox", 2, 0, 1, 1},
        {"gridLayout_2", "label", 0, 0, 1, 1},
        {"gridLayout_2", "selectedCharacter_lineEdit", 0, 1, 1, 1},
        {"gridLayout_2", "gridLayout", 1, 0, 1, 2},
        {"gridLayout", BaseButton, 0, 0, 1, 1},
        {"gridLayout", MathButton, 0, 2, 1, 1},
        {"gridLayout", GreekButton, 1, 0, 1, 1},
        {"gridLayout", UserButton, 1, 2, 1, 1},
    });
    contract::expectTabOrder(*dialog, {"selectedCharacter_lineEdit", BaseButton, GreekButton, MathButton,
                                       UserButton, "buttonBox"});
    EXPECT_EQ(dialog->findChild<QLabel*>("label")->buddy(), field(*dialog));
    EXPECT_EQ(field(*dialog)->maxLength(), 1);
    EXPECT_EQ(field(*dialog)->minimumWidth(), 50);
    EXPECT_EQ(dialog->size(), QSize(247, 126));
    EXPECT_TRUE(dialog->isModal());
    ASSERT_NE(dialog->helpAction(), nullptr);
}

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
                          Case{false, Font_Invalid, BaseButton, 255}})
    {
        SCOPED_TRACE(c.checked);
        QWidget owner;
        EnterASCIICharacterDialog* dialog = EnterASCIICharacterDialog::getInstance(owner, "A", c.useBaseFont, c.font);
        EXPECT_EQ(checkedButtons(*dialog), std::vector<std::string>{c.checked});
        EXPECT_EQ(dialog->typeFaceOverride(), c.typeFace);
        EXPECT_EQ(dialog->useBaseFont(), c.typeFace == 255);
        EXPECT_EQ(dialog->selectedChar(), "A");
    }
}

TEST_F(EnterASCIICharacterDialogTest, TypedCharacterAndClickedFontAreTheAnswers)
{
    EnterASCIICharacterDialog* dialog = EnterASCIICharacterDialog::getInstance(parent, "A", true, Font_Math);
    user::open(*dialog);
    user::retype(*field(*dialog), "q", *radio(*dialog, BaseButton));
    user::click(radio(*dialog, GreekButton));
    IdleQueue::instance().flush();
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
    EXPECT_TRUE(KernelTestSupport::capturedMessageBoxes().empty());
}

TEST_F(EnterASCIICharacterDialogTest, AnEmptyCharacterIsRefusedOnceAndThePreviousOneKept)
{
    EnterASCIICharacterDialog* dialog = EnterASCIICharacterDialog::getInstance(parent, "A", true, Font_Math);
    user::open(*dialog);
    user::retype(*field(*dialog), "", *radio(*dialog, MathButton));
    const auto boxes = KernelTestSupport::capturedMessageBoxes();
    ASSERT_EQ(boxes.size(), 1u);
    EXPECT_EQ(boxes[0].text, "Selected character cannot be empty.");
    EXPECT_EQ(boxes[0].type, 0);
    EXPECT_EQ(field(*dialog)->text(), "A");
    EXPECT_EQ(dialog->selectedChar(), "A");

    // Return on an empty field is refused the same way and does not close the dialog.
    field(*dialog)->setFocus();
    QTest::keyClick(field(*dialog), Qt::Key_Backspace);
    QTest::keyClick(field(*dialog), Qt::Key_End);
    QTest::keyClick(field(*dialog), Qt::Key_Backspace);
    QTest::keyClick(field(*dialog), Qt::Key_Return);
    EXPECT_TRUE(dialog->isVisible());
    EXPECT_EQ(KernelTestSupport::capturedMessageBoxes().size(), 2u);
    EXPECT_EQ(dialog->selectedChar(), "A");
    EXPECT_EQ(field(*dialog)->text(), "A");
}

TEST_F(EnterASCIICharacterDialogTest, TheManagerRefusesTheEmptyCharacterWithItsMessage)
{
    EnterASCIICharacterPropertiesManager manager("x", Font_Greek);
    try
    {
        manager.selectedChar()->setValue("");
        FAIL() << "the empty character was taken";
    }
    catch (const orrery::InvalidPropertyValueException& e)
    {
        EXPECT_STREQ(e.what(), "Selected character cannot be empty.");
    }
    EXPECT_EQ(manager.selectedChar()->getValue(), "x");
    manager.selectedChar()->setValue("#");
    EXPECT_EQ(manager.selectedChar()->getValue(), "#");
    EXPECT_EQ(manager.typeFaceOverride()->getValue(), Font_Greek);
}

TEST_F(EnterASCIICharacterDialogTest, ALiveDialogIsReturnedAsTheUserLeftIt)
{
    EnterASCIICharacterDialog* first = EnterASCIICharacterDialog::getInstance(parent, "A", true, Font_Math);
    user::open(*first);
    user::click(radio(*first, UserButton));
    user::press(*first, QDialogButtonBox::Cancel);

    EnterASCIICharacterDialog* second = EnterASCIICharacterDialog::getInstance(parent, "Z", false, Font_Greek);
    EXPECT_EQ(second, first);
    IdleQueue::instance().flush();
    EXPECT_EQ(field(*second)->text(), "A");
    EXPECT_EQ(checkedButtons(*second), std::vector<std::string>{UserButton});
    EXPECT_EQ(second->typeFaceOverride(), Font_UserDefined);
}

} // namespace
