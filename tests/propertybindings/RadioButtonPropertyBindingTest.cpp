// A group of radio buttons editing one property, clicked as a user would.
#include <memory>
#include <vector>
#include <QRadioButton>

#include "platform/kernel/OrrTypes.h"
#include "propertybindings/BindingTestSupport.h"
#include "propertybindings/RadioButtonPropertyBinding.h"

using namespace bindingtest;
using namespace orrery;
using namespace orrery::sdk::ui::dialogs::propertybindings;

namespace {

// A radio button takes clicks on its indicator.
void clickRadio(QAbstractButton& button)
{
    QTest::mouseClick(&button, Qt::LeftButton, Qt::NoModifier, QPoint(6, button.height() / 2));
}

class RadioButtonBindingTest : public BindingFixture
{
protected:
    void bind(const boost::shared_ptr<PropertyAbstract<Font_e>>& property)
    {
        const Font_e values[] = {Font_Invalid, Font_Greek, Font_Math};
        for (Font_e value : values) {
            buttons.push_back(std::make_unique<QRadioButton>(&window));
            buttons.back()->move(0, 30 * static_cast<int>(buttons.size()));
            bindings.push_back(std::make_unique<RadioButtonPropertyBinding<Font_e>>(buttons.back().get(), property, value));
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

TEST_F(RadioButtonBindingTest, TheButtonOfTheValueIsCheckedAtOnce)
{
    bind(font);
    EXPECT_EQ(checked(), std::vector<bool>({false, true, false}));
}

TEST_F(RadioButtonBindingTest, ClickingAButtonWritesItsValueOnce)
{
    ASSERT_TRUE(showWindow());
    bind(font);
    Emissions<Font_e> emissions(*font);
    clickRadio(*buttons[2]);
    EXPECT_EQ(emissions.values, std::vector<Font_e>({Font_Math}));
    runIdle();
    EXPECT_EQ(checked(), std::vector<bool>({false, false, true}));
    EXPECT_EQ(emissions.count(), 1u);
}

TEST_F(RadioButtonBindingTest, APropertyChangeRechecksTheGroupOnIdleWithoutWritingBack)
{
    bind(font);
    Emissions<Font_e> emissions(*font);
    font->setValue(Font_Invalid);
    EXPECT_EQ(checked(), std::vector<bool>({false, true, false}));
    runIdle();
    EXPECT_EQ(checked(), std::vector<bool>({true, false, false}));
    EXPECT_EQ(emissions.count(), 1u);
}

TEST_F(RadioButtonBindingTest, AValueNoButtonStandsForLeavesAllUnchecked)
{
    bind(font);
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
    clickRadio(*buttons[2]);
    EXPECT_EQ(messageTexts(), std::vector<std::string>({"No math font here."}));
    EXPECT_EQ(refusing->getValue(), Font_Greek);
    runIdle();
    EXPECT_EQ(checked(), std::vector<bool>({false, true, false}));
}

TEST_F(RadioButtonBindingTest, ARefusalWithoutTextShowsNoMessage)
{
    ASSERT_TRUE(showWindow());
    auto refusing = refusingProperty<Font_e>(Font_Greek, Font_Math, "");
    bind(refusing);
    clickRadio(*buttons[2]);
    EXPECT_TRUE(messageTexts().empty());
    EXPECT_EQ(refusing->getValue(), Font_Greek);
}

TEST_F(RadioButtonBindingTest, TwoButtonsForABoolEditItBothWays)
{
    auto inGrid = boost::make_shared<Property<bool>>(true);
    QRadioButton grid(&window), cm(&window);
    cm.move(0, 30);
    ASSERT_TRUE(showWindow());
    RadioButtonPropertyBinding<bool> gridBinding(&grid, inGrid, true);
    RadioButtonPropertyBinding<bool> cmBinding(&cm, inGrid, false);
    EXPECT_TRUE(grid.isChecked());
    clickRadio(cm);
    EXPECT_FALSE(inGrid->getValue());
    clickRadio(grid);
    EXPECT_TRUE(inGrid->getValue());
}
