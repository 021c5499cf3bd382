#include "host/kernel/OrrUtilHost.h"
#include "core/propertymanager/KernelPropertyDeferred.h"
#include "tests/support/TestSupport.h"

using namespace orrery;
using namespace orrery::sdk::styleproperties;
using namespace testsupport;
using orrery::toolbox::StringList;
using orrery::toolbox::StyleValue;

namespace {
const StringList rangeMax{"GlobalRGB", "RangeMax"};
const StringList rangeMin{"GlobalRGB", "RangeMin"};
const StringList redVar{"GlobalRGB", "RedChannelVar"};
const StringList show{"FieldMap", "Scatter", "Show"};

// The text of the refusal, or "accepted".
template <typename P, typename T>
std::string refusalOf(P& property, const T& value)
{
    try {
        property.setValue(value);
    } catch (const InvalidPropertyValueException& e) {
        return e.what();
    }
    return "accepted";
}
} // namespace

typedef SampleKernelTest KernelPropertyTest;

TEST_F(KernelPropertyTest, ReadsEveryValueTypeAndWritesOnlyAChange)
{
    Kernel::setStyle({"GlobalRGB", "RGBMode"}, long(RGBMode_SpecifyGB));
    Kernel::setStyle({"GlobalScatter", "BaseFontFamily"}, std::string("Serif"));
    Kernel::setStyle({"GlobalScatter", "BaseFontIsBold"}, true);
    EXPECT_EQ(RGBMode_SpecifyGB, KernelProperty<RGBMode_e>{StyleValue("GlobalRGB", "RGBMode")}.getValue());
    EXPECT_EQ("Serif", KernelProperty<std::string>{StyleValue("GlobalScatter", "BaseFontFamily")}.getValue());
    EXPECT_TRUE(KernelProperty<bool>{StyleValue("GlobalScatter", "BaseFontIsBold")}.getValue());
    EXPECT_EQ(styleValue<long>(redVar), KernelProperty<int>{StyleValue(redVar)}.getValue());

    KernelProperty<double> max{StyleValue(rangeMax)};
    Emissions<double> emitted(max);
    const int writes = Kernel::styleWriteCount();
    max.setValue(max.getValue());
    EXPECT_EQ(writes, Kernel::styleWriteCount());
    EXPECT_TRUE(emitted.values.empty());
    max.setValue(0.75);
    EXPECT_EQ(writes + 1, Kernel::styleWriteCount());
    EXPECT_EQ(std::vector<double>{0.75}, emitted.values);
    EXPECT_EQ(0.75, styleValue<double>(rangeMax));
}

TEST_F(KernelPropertyTest, RefusedWriteThrowsTheKernelTextAndChangesNothingADeclinedOneIsRetried)
{
    KernelProperty<double> min{StyleValue(rangeMin)};
    KernelProperty<double> max{StyleValue(rangeMax)};
    Emissions<double> emitted(min);
    const double oldMin = min.getValue();
    const std::string text = refusalOf(min, max.getValue() + 10.0);
    EXPECT_NE("accepted", text);
    EXPECT_NE("", text);
    EXPECT_NE("Unknown error", text);
    EXPECT_EQ(oldMin, min.getValue());
    EXPECT_EQ(oldMin, styleValue<double>(rangeMin));
    EXPECT_TRUE(emitted.values.empty());

    Kernel::refuseNextWrite("Not now.");
    EXPECT_EQ("Not now.", refusalOf(min, oldMin - 1.0));
    EXPECT_EQ(oldMin, styleValue<double>(rangeMin));
    // A refusal without a kernel text.
    Kernel::refuseNextWrite("");
    EXPECT_EQ("Unknown error", refusalOf(min, oldMin - 1.0));

    // A declined write (code 15) is silent, and the same value is tried again.
    KernelProperty<int> red{StyleValue(redVar)};
    const long before = styleValue<long>(redVar);
    Kernel::declineNextWrite();
    EXPECT_NO_THROW(red.setValue(3));
    EXPECT_EQ(before, styleValue<long>(redVar));
    const int writes = Kernel::styleWriteCount(redVar);
    red.setValue(3);
    EXPECT_EQ(writes + 1, Kernel::styleWriteCount(redVar));
    EXPECT_EQ(3, styleValue<long>(redVar));

    // An unknown path reads as zero and is refused with a text naming it, never a crash.
    KernelProperty<double> bogus{StyleValue("GlobalRGB", "NoSuchValue")};
    EXPECT_EQ(0.0, bogus.getValue());
    EXPECT_NE(std::string::npos, refusalOf(bogus, 3.0).find("NoSuchValue"));
}

TEST_F(KernelPropertyTest, FollowsOutsideChangesOnlyWhileListenedTo)
{
    KernelProperty<double> max{StyleValue(rangeMax)};
    EXPECT_FALSE(max.isFollowingKernel());
    max.getValue();
    Kernel::setStyle(rangeMax, 7.0);
    {
        // The first listener refreshes the cache silently.
        Emissions<double> emitted(max);
        EXPECT_TRUE(max.isFollowingKernel());
        EXPECT_EQ(7.0, max.getValue());
        EXPECT_TRUE(emitted.values.empty());

        Kernel::setStyle(rangeMax, 42.0);
        EXPECT_EQ(std::vector<double>{42.0}, emitted.values);
        // Another path changing is no news for this property.
        Kernel::setStyle({"GlobalRGB", "RGBMode"}, long(RGBMode_SpecifyRB));
        // An own write is announced once, and so is its undo.
        OrrUtilUndoStateBegin(11);
        max.setValue(9.0);
        OrrUtilUndoStateEnd(false, true);
        EXPECT_EQ((std::vector<double>{42.0, 9.0}), emitted.values);
        ASSERT_TRUE(OrrUtilUndoPerform());
        EXPECT_EQ(42.0, styleValue<double>(rangeMax));
        EXPECT_EQ((std::vector<double>{42.0, 9.0, 42.0}), emitted.values);
    }
    // The first event after the last listener left drops the subscription.
    Kernel::setStyle(rangeMax, 43.0);
    EXPECT_FALSE(max.isFollowingKernel());
}

TEST_F(KernelPropertyTest, OffsetsSelectACollectionMemberAndAnnounceItsValue)
{
    Kernel::setStyle(show, true, 2);
    KernelProperty<bool> prop{StyleValue(show)};
    Emissions<bool> emitted(prop);
    prop.setOffsets(1, -1);
    EXPECT_FALSE(prop.getValue());
    prop.setOffsets(2, -1);
    EXPECT_TRUE(prop.getValue());
    EXPECT_EQ(std::vector<bool>{true}, emitted.values);
    prop.setValue(false);
    EXPECT_FALSE(styleValue<bool>(show, 2));
}

TEST_F(KernelPropertyTest, DeferredEditsReachTheKernelOnlyOnApplyWhichReportsARefusalOrAreDiscardedByAMove)
{
    KernelPropertyDeferred<double> max{StyleValue(rangeMax)};
    const double before = styleValue<double>(rangeMax);
    Emissions<double> emitted(max);
    max.setValue(before + 2.0);
    EXPECT_EQ(before + 2.0, max.getValue());
    EXPECT_EQ(before, styleValue<double>(rangeMax));
    EXPECT_EQ(1u, emitted.values.size());

    max.apply();
    EXPECT_EQ(before + 2.0, styleValue<double>(rangeMax));
    const int writes = Kernel::styleWriteCount();
    max.apply();
    EXPECT_EQ(writes, Kernel::styleWriteCount());

    KernelPropertyDeferred<double> min{StyleValue(rangeMin)};
    const double oldMin = styleValue<double>(rangeMin);
    min.setValue(before + 3.0);
    EXPECT_THROW(min.apply(), InvalidPropertyValueException);
    EXPECT_EQ(oldMin, styleValue<double>(rangeMin));

    // Moving to another member discards unsubmitted edits.
    Kernel::setStyle(show, true, 1);
    KernelPropertyDeferred<bool> deferred{StyleValue(show)};
    deferred.setOffsets(1, -1);
    Emissions<bool> deferredEmitted(deferred);
    deferred.setValue(false);
    deferred.setOffsets(1, -1);
    EXPECT_TRUE(deferred.getValue());
    EXPECT_EQ((std::vector<bool>{false, true}), deferredEmitted.values);
    EXPECT_TRUE(styleValue<bool>(show, 1));
}
