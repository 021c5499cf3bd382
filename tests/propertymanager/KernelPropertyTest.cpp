#include <cmath>
#include "KernelFixture.h"
#include "platform/kernel/OrrUtil.h"
#include "propertymanager/KernelPropertyDeferred.h"

using namespace orrery;
using namespace orrery::sdk::styleproperties;
using orrery::toolbox::StringList;
using orrery::toolbox::StyleValue;

namespace {
const StringList rangeMax{"GlobalRGB", "RangeMax"};
const StringList rangeMin{"GlobalRGB", "RangeMin"};
const StringList redVar{"GlobalRGB", "RedChannelVar"};
} // namespace

class KernelPropertyTest : public KernelFixture
{
};

TEST_F(KernelPropertyTest, ReadsAndWritesEveryValueType)
{
    KernelProperty<double> max{StyleValue(rangeMax)};
    KernelProperty<int> red{StyleValue(redVar)};
    KernelProperty<RGBMode_e> mode{StyleValue("GlobalRGB", "RGBMode")};
    KernelProperty<bool> bold{StyleValue("GlobalScatter", "BaseFontIsBold")};
    KernelProperty<std::string> font{StyleValue("GlobalScatter", "BaseFontFamily")};

    max.setValue(0.75);
    red.setValue(4);
    mode.setValue(RGBMode_SpecifyGB);
    bold.setValue(true);
    font.setValue("Serif");

    EXPECT_EQ(0.75, kernelValue<double>(rangeMax));
    EXPECT_EQ(4, kernelValue<long>(redVar));
    EXPECT_EQ(long(RGBMode_SpecifyGB), kernelValue<long>({"GlobalRGB", "RGBMode"}));
    EXPECT_TRUE(kernelValue<bool>({"GlobalScatter", "BaseFontIsBold"}));
    EXPECT_EQ("Serif", kernelValue<std::string>({"GlobalScatter", "BaseFontFamily"}));
    EXPECT_EQ(RGBMode_SpecifyGB, mode.getValue());
    EXPECT_EQ("Serif", font.getValue());
}

TEST_F(KernelPropertyTest, SettingTheHeldValueWritesAndAnnouncesNothing)
{
    KernelProperty<double> max{StyleValue(rangeMax)};
    Emissions<double> emitted(max);
    const double held = max.getValue();
    const int writes = Kernel::styleWriteCount();
    max.setValue(held);
    EXPECT_EQ(writes, Kernel::styleWriteCount());
    EXPECT_TRUE(emitted.values.empty());

    max.setValue(held + 1.0);
    EXPECT_EQ(writes + 1, Kernel::styleWriteCount());
    EXPECT_EQ(std::vector<double>{held + 1.0}, emitted.values);
}

TEST_F(KernelPropertyTest, RefusedWriteThrowsTheKernelTextAndChangesNothing)
{
    KernelProperty<double> min{StyleValue(rangeMin)};
    KernelProperty<double> max{StyleValue(rangeMax)};
    Emissions<double> emitted(min);
    const double oldMin = min.getValue();
    try {
        min.setValue(max.getValue() + 10.0);
        FAIL() << "the kernel accepted a minimum above the maximum";
    } catch (const InvalidPropertyValueException& e) {
        EXPECT_FALSE(std::string(e.what()).empty());
        EXPECT_NE("Unknown error", std::string(e.what()));
    }
    EXPECT_EQ(oldMin, min.getValue());
    EXPECT_EQ(oldMin, kernelValue<double>(rangeMin));
    EXPECT_TRUE(emitted.values.empty());

    Kernel::refuseNextWrite("Not now.");
    try {
        min.setValue(oldMin - 1.0);
        FAIL() << "forced refusal was not reported";
    } catch (const InvalidPropertyValueException& e) {
        EXPECT_STREQ("Not now.", e.what());
    }
    EXPECT_EQ(oldMin, kernelValue<double>(rangeMin));
}

TEST_F(KernelPropertyTest, RefusalWithoutAKernelTextReportsUnknownError)
{
    Kernel::refuseNextWrite("");
    KernelProperty<int> red{StyleValue(redVar)};
    try {
        red.setValue(2);
        FAIL() << "refusal was swallowed";
    } catch (const InvalidPropertyValueException& e) {
        EXPECT_STREQ("Unknown error", e.what());
    }
}

TEST_F(KernelPropertyTest, UnknownPathIsRefusedWithATextNeverACrash)
{
    KernelProperty<double> bogus{StyleValue("GlobalRGB", "NoSuchValue")};
    EXPECT_EQ(0.0, bogus.getValue());
    try {
        bogus.setValue(3.0);
        FAIL() << "write to an unknown path accepted";
    } catch (const InvalidPropertyValueException& e) {
        EXPECT_NE(std::string(e.what()).find("NoSuchValue"), std::string::npos) << e.what();
    }
}

TEST_F(KernelPropertyTest, DeclinedWriteIsSilentAndTheSameValueIsTriedAgain)
{
    KernelProperty<int> red{StyleValue(redVar)};
    const long before = kernelValue<long>(redVar);
    Kernel::declineNextWrite();
    EXPECT_NO_THROW(red.setValue(3));
    EXPECT_EQ(before, kernelValue<long>(redVar));

    const int writes = Kernel::styleWriteCount(redVar);
    red.setValue(3);
    EXPECT_EQ(writes + 1, Kernel::styleWriteCount(redVar));
    EXPECT_EQ(3, kernelValue<long>(redVar));
}

TEST_F(KernelPropertyTest, FollowsOutsideChangesOnlyWhileListenedTo)
{
    KernelProperty<double> max{StyleValue(rangeMax)};
    EXPECT_FALSE(max.isFollowingKernel());
    {
        Emissions<double> emitted(max);
        EXPECT_TRUE(max.isFollowingKernel());
        Kernel::setStyle(rangeMax, 42.0);
        EXPECT_EQ(std::vector<double>{42.0}, emitted.values);
        // Another path changing is no news for this property.
        Kernel::setStyle({"GlobalRGB", "RGBMode"}, long(RGBMode_SpecifyRB));
        EXPECT_EQ(1u, emitted.values.size());
    }
    // The first event after the last listener left drops the subscription.
    Kernel::setStyle(rangeMax, 43.0);
    EXPECT_FALSE(max.isFollowingKernel());
}

TEST_F(KernelPropertyTest, FirstListenerRefreshesTheCacheSilently)
{
    KernelProperty<double> max{StyleValue(rangeMax)};
    max.getValue();
    Kernel::setStyle(rangeMax, 7.0);
    Emissions<double> emitted(max);
    EXPECT_TRUE(emitted.values.empty());
    EXPECT_EQ(7.0, max.getValue());
    EXPECT_TRUE(emitted.values.empty());
}

TEST_F(KernelPropertyTest, OwnWriteIsAnnouncedOnceWhileFollowingTheKernel)
{
    KernelProperty<double> max{StyleValue(rangeMax)};
    Emissions<double> emitted(max);
    max.setValue(9.0);
    EXPECT_EQ(std::vector<double>{9.0}, emitted.values);
}

TEST_F(KernelPropertyTest, OffsetsSelectACollectionMemberAndAnnounceItsValue)
{
    const StringList show{"FieldMap", "Scatter", "Show"};
    Kernel::setStyle(show, true, 2);
    KernelProperty<bool> prop{StyleValue(show)};
    Emissions<bool> emitted(prop);
    prop.setOffsets(1, -1);
    EXPECT_FALSE(prop.getValue());
    prop.setOffsets(2, -1);
    EXPECT_TRUE(prop.getValue());
    EXPECT_EQ(std::vector<bool>{true}, emitted.values);

    prop.setValue(false);
    EXPECT_FALSE(kernelValue<bool>(show, 2));
}

TEST_F(KernelPropertyTest, UndoOfABracketedWriteIsAnnouncedToListeners)
{
    KernelProperty<double> max{StyleValue(rangeMax)};
    const double before = max.getValue();
    Emissions<double> emitted(max);
    OrrUtilUndoStateBegin(11);
    max.setValue(before + 5.0);
    OrrUtilUndoStateEnd(false, true);
    ASSERT_TRUE(OrrUtilUndoPerform());
    EXPECT_EQ(before, kernelValue<double>(rangeMax));
    EXPECT_EQ((std::vector<double>{before + 5.0, before}), emitted.values);
}

class KernelPropertyDeferredTest : public KernelFixture
{
};

TEST_F(KernelPropertyDeferredTest, EditsReachTheKernelOnlyOnApply)
{
    KernelPropertyDeferred<double> max{StyleValue(rangeMax)};
    const double before = kernelValue<double>(rangeMax);
    Emissions<double> emitted(max);
    max.setValue(before + 2.0);
    EXPECT_EQ(before + 2.0, max.getValue());
    EXPECT_EQ(before, kernelValue<double>(rangeMax));
    EXPECT_EQ(1u, emitted.values.size());

    max.apply();
    EXPECT_EQ(before + 2.0, kernelValue<double>(rangeMax));

    const int writes = Kernel::styleWriteCount();
    max.apply();
    EXPECT_EQ(writes, Kernel::styleWriteCount());
}

TEST_F(KernelPropertyDeferredTest, ApplyReportsAKernelRefusal)
{
    KernelPropertyDeferred<double> min{StyleValue(rangeMin)};
    const double before = kernelValue<double>(rangeMin);
    min.setValue(kernelValue<double>(rangeMax) + 1.0);
    EXPECT_THROW(min.apply(), InvalidPropertyValueException);
    EXPECT_EQ(before, kernelValue<double>(rangeMin));
}

TEST_F(KernelPropertyDeferredTest, MovingToAnotherMemberDiscardsUnsubmittedEdits)
{
    const StringList show{"FieldMap", "Scatter", "Show"};
    Kernel::setStyle(show, true, 1);
    Kernel::setStyle(show, false, 2);
    KernelPropertyDeferred<bool> prop{StyleValue(show)};
    prop.setOffsets(1, -1);
    Emissions<bool> emitted(prop);
    prop.setValue(false);
    prop.setOffsets(1, -1);
    EXPECT_TRUE(prop.getValue());
    EXPECT_EQ((std::vector<bool>{false, true}), emitted.values);
    EXPECT_TRUE(kernelValue<bool>(show, 1));
}
