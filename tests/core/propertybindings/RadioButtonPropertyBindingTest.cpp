// A group of radio buttons editing one property, clicked as a user would.
#include <QButtonGroup>
#include "tests/core/propertybindings/BindingTestSupport.h"
#include "core/propertybindings/RadioButtonPropertyBinding.h"

using namespace bindingtest;

namespace {

class RadioButtonBindingTest : public BindingFixture
{
protected:
    // Buttons for Font_Invalid, Font_Greek and Font_Math, in that order.
    void bind(const boost::shared_ptr<PropertyAbstract<Font_e>>& property)
    {
        for (Font_e value : {Font_Invalid, Font_Greek, Font_Math}) {
            buttons.push_back(std::make_unique<QRadioButton>(&window));
            buttons.back()->move(0, 30 * static_cast<int>(buttons.size()));
            buttons.back()->show();
            bindings.push_back(
                std::make_unique<RadioButtonPropertyBinding<Font_e>>(buttons.back().get(), property, value));
        }
    }
    std::vector<bool> checked() const
    {
        std::vector<bool> states;
        for (const auto& b : buttons)
            states.push_back(b->isChecked());
        return states;
    }

    boost::shared_ptr<Property<Font_e>> font = boost::make_shared<Property<Font_e>>(Font_Greek);
    std::vector<std::unique_ptr<QRadioButton>> buttons;
    std::vector<std::unique_ptr<RadioButtonPropertyBinding<Font_e>>> bindings;
};

} // namespace

TEST_F(RadioButtonBindingTest, AClickWritesOnceAndAPropertyChangeRechecksOnIdleNeitherWritingBack)
{
    ASSERT_TRUE(showWindow());
    bind(font);
    EXPECT_EQ(checked(), std::vector<bool>({false, true, false}));
    Emissions<Font_e> emissions(*font);
    user::click(buttons[2].get());
    EXPECT_EQ(emissions.values, std::vector<Font_e>({Font_Math}));
    runIdle();
    EXPECT_EQ(checked(), std::vector<bool>({false, false, true}));

    font->setValue(Font_Invalid);
    EXPECT_EQ(checked(), std::vector<bool>({false, false, true}));
    runIdle();
    EXPECT_EQ(checked(), std::vector<bool>({true, false, false}));
    EXPECT_EQ(emissions.count(), 2u);

    // A value no button stands for leaves all unchecked.
    font->setValue(Font_UserDefined);
    runIdle();
    EXPECT_EQ(checked(), std::vector<bool>({false, false, false}));
    EXPECT_EQ(font->getValue(), Font_UserDefined);
}

TEST_F(RadioButtonBindingTest, ARefusedValueIsReportedOnceAndTheGroupRestoredOnIdle)
{
    ASSERT_TRUE(showWindow());
    auto refusing = refusingProperty<Font_e>(Font_Greek, Font_Math, "No math font here.");
    bind(refusing);
    user::click(buttons[2].get());
    EXPECT_EQ(messageTexts(), std::vector<std::string>({"No math font here."}));
    EXPECT_EQ(refusing->getValue(), Font_Greek);
    runIdle();
    EXPECT_EQ(checked(), std::vector<bool>({false, true, false}));
}

TEST_F(RadioButtonBindingTest, AValueNoButtonStandsForUnchecksAnExclusiveButtonGroupToo)
{
    ASSERT_TRUE(showWindow());
    bind(font);
    QButtonGroup group;
    for (const auto& button : buttons)
        group.addButton(button.get());
    ASSERT_TRUE(group.exclusive());
    EXPECT_EQ(checked(), std::vector<bool>({false, true, false}));
    font->setValue(Font_UserDefined);
    runIdle();
    EXPECT_EQ(checked(), std::vector<bool>({false, false, false}));
    EXPECT_EQ(group.checkedButton(), nullptr);
    EXPECT_EQ(font->getValue(), Font_UserDefined);

    // The group is exclusive again afterwards: a click still checks exactly one.
    user::click(buttons[2].get());
    EXPECT_EQ(font->getValue(), Font_Math);
    user::click(buttons[0].get());
    runIdle();
    EXPECT_TRUE(group.exclusive());
    EXPECT_EQ(checked(), std::vector<bool>({true, false, false}));
}
