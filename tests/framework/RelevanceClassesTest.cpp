// The host's relevance classes against a kernel that changes, and the applier
// that shows them on widgets.
#include <QLabel>

#include "framework/FieldPlotTypeDependentRelevance.h"
#include "framework/InvertingRelevance.h"
#include "framework/LinePlotTypeDependentRelevance.h"
#include "framework/RelevanceApplier.h"
#include "framework/RelevanceExpression.h"
#include "tests/core/propertybindings/BindingTestSupport.h"
#include "core/propertymanager/PropertyDependentRelevance.h"

using namespace bindingtest;
using namespace orrery::sdk::ui::propertymanager;

namespace {

// A relevance that a test switches through a property.
struct Switch
{
    explicit Switch(bool on) : value(boost::make_shared<Property<bool>>(on)) {}
    boost::shared_ptr<const RelevanceInterface> relevance() const
    {
        return boost::make_shared<PropertyDependentRelevance<bool>>(value, true);
    }
    boost::shared_ptr<Property<bool>> value;
};

typedef BindingFixture RelevanceClassesTest;

} // namespace

TEST_F(RelevanceClassesTest, PlotTypeRelevancesSplitFieldAndLinePlots)
{
    FieldPlotTypeDependentRelevance field;
    LinePlotTypeDependentRelevance line;
    RelevanceChanges announced(field);
    const struct
    {
        PlotType_e plotType;
        bool field, line;
    } cases[] = {{PlotType_ThreeD, true, false},
                 {PlotType_TwoD, true, false},
                 {PlotType_XYLine, false, true},
                 {PlotType_Sketch, false, false},
                 {PlotType_PolarLine, false, true}};
    for (const auto& c : cases) {
        Kernel::setPlotType(c.plotType);
        EXPECT_EQ(field.isRelevant(), c.field) << c.plotType;
        EXPECT_EQ(line.isRelevant(), c.line) << c.plotType;
    }
    EXPECT_GE(announced.count, 4);
}

TEST_F(RelevanceClassesTest, InvertingRelevanceNegatesAndRelays)
{
    Switch s(true);
    InvertingRelevance inverted(s.relevance());
    RelevanceChanges changes(inverted);
    EXPECT_FALSE(inverted.isRelevant());
    s.value->setValue(false);
    EXPECT_TRUE(inverted.isRelevant());
    EXPECT_EQ(changes.count, 1);
}

TEST_F(RelevanceClassesTest, ExpressionsAreReadLeftToRight)
{
    // (a and b) or c, for every combination; a precedence reading (a and (b or c)) differs at a=0, c=1.
    for (int bits = 0; bits < 8; ++bits) {
        const bool a = bits & 1, b = bits & 2, c = bits & 4;
        Switch sa(a), sb(b), sc(c);
        RelevanceExpression expression(sa.relevance());
        expression.aand(sb.relevance()).oor(sc.relevance());
        EXPECT_EQ(expression.isRelevant(), (a && b) || c) << a << b << c;
    }
    Switch first(false), second(true);
    RelevanceExpression either(first.relevance());
    either.oor(second.relevance());
    RelevanceChanges announced(either);
    EXPECT_TRUE(either.isRelevant());
    second.value->setValue(false);
    first.value->setValue(true);
    EXPECT_EQ(announced.count, 2);
    EXPECT_TRUE(either.isRelevant());
}

TEST_F(RelevanceClassesTest, ApplierShowsWidgetsOnEveryChangeOrOnceOnIdle)
{
    Switch s(true);
    QLabel hidden(&window);
    ASSERT_TRUE(showWindow());
    RelevanceApplier shower(s.relevance(), {&hidden}, RelevanceApplier::Manifestation_Visibility);
    EXPECT_TRUE(hidden.isVisible());
    s.value->setValue(false);
    EXPECT_FALSE(hidden.isVisible());
    EXPECT_TRUE(hidden.isEnabled());

    QLabel label(&window);
    RelevanceApplier applier(s.relevance(), {&label}, RelevanceApplier::Manifestation_Sensitivity,
                             BindingInterface::WidgetUpdateMode_OnIdle);
    s.value->setValue(true);
    s.value->setValue(false);
    s.value->setValue(true);
    EXPECT_FALSE(label.isEnabled());
    runIdle();
    EXPECT_TRUE(label.isEnabled());

    // An applier outliving its widget does not touch it.
    auto gone = std::make_unique<QLabel>();
    RelevanceApplier outliving(s.relevance(), {gone.get()});
    gone.reset();
    s.value->setValue(false);
}

TEST(HostRelevanceClasses, ANullRelevanceIsRefusedWhereGiven)
{
    typedef boost::shared_ptr<const RelevanceInterface> Relevance;
    EXPECT_THROW(InvertingRelevance{Relevance()}, InvalidArgumentException);
    EXPECT_THROW(RelevanceExpression{Relevance()}, InvalidArgumentException);
    auto flag = boost::make_shared<Property<bool>>(true);
    RelevanceExpression expression(boost::make_shared<PropertyDependentRelevance<bool>>(flag, true));
    EXPECT_THROW(expression.aand(Relevance()), InvalidArgumentException);
    EXPECT_TRUE(expression.isRelevant()); // the refused term left no trace
    QLabel label;
    EXPECT_THROW(RelevanceApplier(Relevance(), {&label}), InvalidArgumentException);
}
