// The property side shared by every binding: when the widget is refreshed,
// how often, and what a destroyed binding leaves behind.
#include "platform/sdk/AppLock.h"
#include "tests/core/propertybindings/BindingTestSupport.h"
#include "core/propertybindings/QObjectPropertyBinding.h"
#include "core/propertybindings/UIPropertyBindingAbstract.h"
#include "core/propertymanager/PropertyDependentRelevance.h"

using namespace bindingtest;
using orrery::sdk::ui::propertymanager::PropertyDependentRelevance;
using orrery::sdk::ui::propertymanager::UIStylePropertyAbstract;

namespace {

struct StyleIntProperty : UIStylePropertyAbstract<int>
{
    void storeValue(const int& v) override { value = v; }
    int retrieveValue() const override { return value; }
    int value = 0;
};

// Counts the refreshes and remembers the value last shown.
class CountingBinding : public UIPropertyBindingAbstract<int>
{
public:
    using UIPropertyBindingAbstract<int>::UIPropertyBindingAbstract;
    void updateWidget() override
    {
        ++widgetUpdates;
        shown = property().retrieveValue();
    }
    void updateVisibility() override
    {
        ++visibilityUpdates;
        visible = isPropertyVisible();
    }
    void updateSensitivity() override
    {
        ++sensitivityUpdates;
        sensitive = isPropertySensitive();
    }
    int widgetUpdates = 0, visibilityUpdates = 0, sensitivityUpdates = 0;
    int shown = -1;
    bool visible = true, sensitive = true;
};

struct CountingQObjectBinding : QObjectPropertyBinding<int>
{
    using QObjectPropertyBinding<int>::QObjectPropertyBinding;
    void updateWidget() override { shown = property().retrieveValue(); }
    void updateVisibility() override {}
    void updateSensitivity() override {}
    int shown = -1;
};

class BindingCoreTest : public BindingFixture
{
protected:
    boost::shared_ptr<Property<int>> property = boost::make_shared<Property<int>>(1);
};

} // namespace

TEST_F(BindingCoreTest, ImmediateModeRefreshesInsideEachNotificationOnIdleModeOnceForManyChanges)
{
    CountingBinding immediate(property, BindingInterface::WidgetUpdateMode_Immediate);
    CountingBinding binding(property, BindingInterface::WidgetUpdateMode_OnIdle);
    CountingQObjectBinding qobjectBinding(property, BindingInterface::WidgetUpdateMode_OnIdle);
    for (int v = 2; v < 10002; ++v)
        property->setValue(v);
    EXPECT_EQ(immediate.widgetUpdates, 10000);
    EXPECT_EQ(immediate.shown, 10001);
    EXPECT_EQ(binding.widgetUpdates, 0);
    EXPECT_EQ(qobjectBinding.shown, -1);
    runIdle();
    EXPECT_EQ(binding.widgetUpdates, 1);
    EXPECT_EQ(binding.shown, 10001);
    EXPECT_EQ(qobjectBinding.shown, 10001);
    runIdle();
    EXPECT_EQ(binding.widgetUpdates, 1);
    // A plain property is always relevant.
    binding.updateSensitivity();
    binding.updateVisibility();
    EXPECT_TRUE(binding.sensitive && binding.visible);

    // While the host is busy the refresh waits.
    {
        sdk::AppLock busy;
        property->setValue(5);
        runIdle();
        EXPECT_EQ(binding.widgetUpdates, 1);
    }
    runIdle();
    EXPECT_EQ(binding.shown, 5);
}

TEST_F(BindingCoreTest, StylePropertyRelevanceIsFollowedOncePerKindOnIdleAndAtOnceInImmediateMode)
{
    StyleIntProperty style;
    auto flag = boost::make_shared<Property<bool>>(true);
    style.setSensitivityRelevance(boost::make_shared<PropertyDependentRelevance<bool>>(flag, true));
    CountingBinding binding(style, BindingInterface::WidgetUpdateMode_OnIdle);
    for (int i = 0; i < 5; ++i)
        flag->setValue(i % 2 == 0 ? false : true);
    flag->setValue(false);
    EXPECT_EQ(binding.sensitivityUpdates, 0);
    runIdle();
    EXPECT_EQ(binding.sensitivityUpdates, 1);
    EXPECT_FALSE(binding.sensitive);
    EXPECT_EQ(binding.visibilityUpdates, 0);
    EXPECT_EQ(binding.widgetUpdates, 0);

    StyleIntProperty other;
    auto shown = boost::make_shared<Property<bool>>(true);
    CountingBinding immediate(other, BindingInterface::WidgetUpdateMode_Immediate);
    other.setVisibilityRelevance(boost::make_shared<PropertyDependentRelevance<bool>>(shown, true));
    shown->setValue(false);
    EXPECT_FALSE(immediate.visible);
    shown->setValue(true);
    EXPECT_TRUE(immediate.visible);
}

TEST_F(BindingCoreTest, ADestroyedBindingLeavesNoListenerAndNoPendingRefreshWhileALiveOneKeepsItsProperty)
{
    const size_t before = property->valueChangedListenerCount();
    auto binding = std::make_unique<CountingBinding>(property, BindingInterface::WidgetUpdateMode_OnIdle);
    EXPECT_EQ(property->valueChangedListenerCount(), before + 1);
    property->setValue(4);
    binding.reset();
    EXPECT_EQ(property->valueChangedListenerCount(), before);
    EXPECT_EQ(sdk::ui::common::IdleQueue::instance().pending(), 0u);

    boost::weak_ptr<Property<int>> watched = property;
    CountingBinding live(property, BindingInterface::WidgetUpdateMode_Immediate);
    property.reset();
    ASSERT_FALSE(watched.expired());
    watched.lock()->setValue(11);
    EXPECT_EQ(live.shown, 11);
}
