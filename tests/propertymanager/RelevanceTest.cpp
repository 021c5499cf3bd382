#include <gtest/gtest.h>
#include <boost/make_shared.hpp>

#include "property/Property.h"
#include "propertymanager/PropertyDependentRelevance.h"
#include "propertymanager/PropertyPredicateDependentRelevance.h"
#include "platform/kernel/OrrTypes.h"

using namespace orrery;
using namespace orrery::sdk::ui::propertymanager;

namespace {
struct ChangeCounter
{
    explicit ChangeCounter(const RelevanceInterface& r)
        : connection(r.connectToRelevanceChangedSignal([this] { ++count; }))
    {
    }
    int count = 0;
    boost::signals2::scoped_connection connection;
};
} // namespace

TEST(PropertyDependentRelevance, FollowsTheValueAndFiresOncePerRealChange)
{
    auto flag = boost::make_shared<Property<bool>>(false);
    PropertyDependentRelevance<bool> relevance(flag, true);
    ChangeCounter changes(relevance);
    EXPECT_FALSE(relevance.isRelevant());

    flag->setValue(true);
    EXPECT_TRUE(relevance.isRelevant());
    EXPECT_EQ(1, changes.count);

    flag->setValue(true);
    EXPECT_EQ(1, changes.count);

    flag->setValue(false);
    EXPECT_FALSE(relevance.isRelevant());
    EXPECT_EQ(2, changes.count);
}

TEST(PropertyDependentRelevance, RelevantForExactlyOneEnumValueButFiresOnEveryChange)
{
    struct ModeProperty : PropertyAbstract<RGBMode_e>
    {
        void storeValue(const RGBMode_e& v) override { value = v; }
        RGBMode_e retrieveValue() const override { return value; }
        RGBMode_e value = static_cast<RGBMode_e>(0);
    };
    auto mode = boost::make_shared<ModeProperty>();
    PropertyDependentRelevance<RGBMode_e> relevance(mode, static_cast<RGBMode_e>(2));
    ChangeCounter changes(relevance);
    int relevantCount = 0;
    for (int m = 0; m < 4; ++m) {
        mode->setValue(static_cast<RGBMode_e>(m));
        relevantCount += relevance.isRelevant() ? 1 : 0;
    }
    EXPECT_EQ(1, relevantCount);
    // 0 -> 0 is no change; 1, 2 and 3 each fire, even when the answer stays false.
    EXPECT_EQ(3, changes.count);
}

TEST(PropertyDependentRelevance, OutlivedPropertyCallsNothingStale)
{
    auto flag = boost::make_shared<Property<bool>>(false);
    {
        PropertyDependentRelevance<bool> relevance(flag, true);
    }
    EXPECT_NO_THROW(flag->setValue(true));
}

TEST(PropertyPredicateDependentRelevance, AsksThePredicateAtCallTimeAndRelaysEveryChange)
{
    auto rows = boost::make_shared<Property<std::vector<int>>>();
    PropertyPredicateDependentRelevance relevance(rows, [rows] { return rows->getValue().size() == 1; });
    ChangeCounter changes(relevance);
    EXPECT_FALSE(relevance.isRelevant());
    rows->setValue({4});
    EXPECT_TRUE(relevance.isRelevant());
    rows->setValue({4, 5});
    EXPECT_FALSE(relevance.isRelevant());
    rows->setValue({4, 5});
    EXPECT_EQ(2, changes.count);
}

TEST(PropertyPredicateDependentRelevance, EmptyPredicateThrowsBadFunctionCall)
{
    auto p = boost::make_shared<Property<long>>(1L);
    PropertyPredicateDependentRelevance relevance(p, boost::function<bool ()>());
    EXPECT_THROW(relevance.isRelevant(), boost::bad_function_call);
}
