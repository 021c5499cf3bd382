// The host's bindings driven as a user would: spin boxes, the font box, a
// button; and the state-change action performer.
#include <QFontComboBox>
#include <QListView>
#include <QPushButton>

#include "framework/ButtonBinding.h"
#include "framework/FontComboBoxPropertyBinding.h"
#include "framework/OnIdleAfterStateChangeActionPerformer.h"
#include "framework/SpinBoxDoublePropertyBinding.h"
#include "framework/SpinBoxLgIndexPropertyBinding.h"
#include "platform/sdk/AppLock.h"
#include "platform/ui/IntegralSpinBox.h"
#include "platform/ui/QScientificSpinBox.h"
#include "platform/ui/WidgetUpdateDeferrerOnBusy.h"
#include "tests/core/propertybindings/BindingTestSupport.h"

using namespace bindingtest;
using namespace orrery::ui;

namespace {

class TenthOfRange : public sdk::ui::propertymanager::SpinBoxIncDecCalculatorBase
{
public:
    double delta() override { return deltaFactor() * 0.5; }
};

typedef BindingFixture HostBindingsTest;

} // namespace

TEST_F(HostBindingsTest, AnIntegerSpinBoxEditsALongPropertyOncePerCommitAndBendsNothingBack)
{
    auto value = boost::make_shared<Property<long>>(5L);
    IntegralSpinBox spin(&window);
    spin.setKeyboardTracking(false);
    SpinBoxLgIndexPropertyBinding binding(spin, value);
    EXPECT_EQ(spin.value(), 5);
    Emissions<long> emissions(*value);
    user::typeAndReturn(spin, QStringLiteral("-42"));
    EXPECT_EQ(emissions.values, std::vector<long>({-42}));
    QTest::keyClick(&spin, Qt::Key_Up);
    EXPECT_EQ(emissions.values, std::vector<long>({-42, -41}));
    runIdle();
    EXPECT_EQ(spin.value(), -41);
    EXPECT_EQ(emissions.count(), 2u);

    // A value beyond the spin box's range is shown bent but not written back.
    value->setValue(3000000000L);
    runIdle();
    EXPECT_EQ(spin.value(), IntegralSpinBox::LargestMagnitude);
    EXPECT_EQ(value->getValue(), 3000000000L);
}

TEST_F(HostBindingsTest, AScientificSpinBoxStepsByItsCalculatorAndTakesTypedExponents)
{
    auto value = boost::make_shared<Property<double>>(1.0);
    QScientificSpinBox spin(&window);
    spin.setKeyboardTracking(false);
    spin.setDecimals(15);
    SpinBoxDoublePropertyBinding binding(&spin, value, new TenthOfRange);
    QTest::keyClick(&spin, Qt::Key_Up);
    EXPECT_DOUBLE_EQ(value->getValue(), 1.5);
    QTest::keyClick(&spin, Qt::Key_PageDown);
    EXPECT_DOUBLE_EQ(value->getValue(), -3.5);
    Emissions<double> emissions(*value);
    user::typeAndReturn(spin, QStringLiteral("1.5e-07"));
    EXPECT_EQ(emissions.values, std::vector<double>({1.5e-07}));
    value->setValue(2.5e-12);
    runIdle();
    EXPECT_EQ(spin.text(), QStringLiteral("2.5e-12"));
}

TEST_F(HostBindingsTest, AFontChoiceWritesTheFamilyAndAnUnknownFamilyIsKept)
{
    QFontComboBox fonts(&window);
    ASSERT_GE(fonts.count(), 2) << "the font database offers too few families to choose from";
    auto family = boost::make_shared<Property<std::string>>(fonts.itemText(0).toStdString());
    FontComboBoxPropertyBinding binding(fonts, family);
    EXPECT_EQ(fonts.currentIndex(), 0);
    fonts.setCurrentIndex(1);
    EXPECT_EQ(family->getValue(), fonts.itemText(1).toStdString());

    Emissions<std::string> emissions(*family);
    family->setValue("No Such Family Anywhere");
    runIdle();
    EXPECT_EQ(fonts.currentText(), QStringLiteral("No Such Family Anywhere"));
    EXPECT_EQ(family->getValue(), "No Such Family Anywhere");
    EXPECT_EQ(emissions.count(), 1u);
}

TEST_F(HostBindingsTest, AButtonBindingRunsItsActionOncePerClick)
{
    QPushButton button(&window);
    int runs = 0;
    auto binding = std::make_unique<ButtonBinding>(button, [&runs] { ++runs; });
    user::click(&button);
    EXPECT_EQ(runs, 1);
    binding.reset();
    user::click(&button);
    EXPECT_EQ(runs, 1);
}

TEST_F(HostBindingsTest, StateChangeActionRunsOnceOnIdleForChangesThatPass)
{
    int runs = 0;
    OnIdleAfterStateChangeActionPerformer performer(
        [](const sdk::integration::StateChangeEventInterface& e) { return e.code() == StateChange_Style; },
        [&runs] { ++runs; });
    Kernel::fireStateChange(StateChange_VarsAltered);
    runIdle();
    EXPECT_EQ(runs, 0);
    Kernel::fireStateChange(StateChange_Style, {"GlobalScatter", "Var"});
    Kernel::fireStateChange(StateChange_Style, {"FrameLayout", "PlotType"});
    runIdle();
    EXPECT_EQ(runs, 1);
}

TEST_F(HostBindingsTest, RepaintsWaitWhileTheHostIsBusy)
{
    QListView view(&window);
    orrery::ui::WidgetUpdateDeferrerOnBusy deferrer(&view);
    ASSERT_TRUE(showWindow());
    {
        sdk::AppLock busy;
        view.viewport()->repaint();
        EXPECT_TRUE(deferrer.hasDeferredUpdate());
    }
    EXPECT_FALSE(deferrer.hasDeferredUpdate());
}
