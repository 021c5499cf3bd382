#include "core/propertymanager/PropertyDependentRelevance.h"
#include "core/propertymanager/PropertyPredicateDependentRelevance.h"
#include "tests/support/TestSupport.h"

using namespace orrery;
using namespace orrery::sdk::ui::propertymanager;
using testsupport::RelevanceChanges;

TEST(PropertyDependentRelevance, FollowsTheValueAndFiresOncePerRealChangeEvenWhenTheAnswerStays)
{
    auto flag = boost::make_shared<Property<bool>>(false);
    {
        PropertyDependentRelevance<bool> relevance(flag, true);
        RelevanceChanges changes(relevance);
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
    // An outlived property calls nothing stale.
    EXPECT_NO_THROW(flag->setValue(true));

    auto mode = boost::make_shared<Property<RGBMode_e>>(static_cast<RGBMode_e>(0));
    PropertyDependentRelevance<RGBMode_e> relevance(mode, static_cast<RGBMode_e>(2));
    RelevanceChanges changes(relevance);
    int relevantCount = 0;
    for (int m = 0; m < 4; ++m) {
        mode->setValue(static_cast<RGBMode_e>(m));
        relevantCount += relevance.isRelevant() ? 1 : 0;
    }
    EXPECT_EQ(1, relevantCount);
    // 0 -> 0 is no change; 1, 2 and 3 each fire, even when the answer stays false.
    EXPECT_EQ(3, changes.count);
}

TEST(PropertyDependentRelevance, ANullPropertyOrAnEmptyPredicateIsRefusedWhereGiven)
{
    EXPECT_THROW(PropertyDependentRelevance<bool>(boost::shared_ptr<PropertyAbstract<bool>>(), true),
                 InvalidArgumentException);
    auto flag = boost::make_shared<Property<bool>>(false);
    EXPECT_THROW(
        PropertyPredicateDependentRelevance(boost::shared_ptr<const PropertyItemInterface>(), [] { return true; }),
        InvalidArgumentException);
    EXPECT_THROW(PropertyPredicateDependentRelevance(flag, boost::function<bool()>()), InvalidArgumentException);
    PropertyPredicateDependentRelevance usable(flag, [flag] { return flag->getValue(); });
    EXPECT_FALSE(usable.isRelevant());
}
