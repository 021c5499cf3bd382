#include <limits>
#include <set>

#include "core/property/PropertyProxy.h"
#include "tests/support/TestSupport.h"

using namespace orrery;
using testsupport::Emissions;

namespace {

// Refuses negative values and counts how often it was asked.
class NonNegativeValidator : public ValidatorInterface<long>
{
public:
    ValidationResult validate(const long& v) const override
    {
        ++calls;
        ValidationResult r;
        if (v < 0)
            r.setErrorString("Value must not be negative.");
        return r;
    }
    mutable int calls = 0;
};

// A property whose store adjusts the value, as a kernel would.
template <typename T>
class StoredProperty : public PropertyAbstract<T>
{
public:
    void storeValue(const T& v) override { value = clamp && v > T(100) ? T(100) : v; }
    T retrieveValue() const override { return value; }
    T value{};
    bool clamp = false;
};

} // namespace

TEST(PropertySetValue, OnlyAValidChangeIsStoredAndTheValueReadBackIsAnnouncedOnBothSignals)
{
    auto validator = boost::make_shared<NonNegativeValidator>();
    Property<long> p(5L, validator);
    Emissions<long> rec(p);
    int untyped = 0;
    boost::signals2::scoped_connection u = p.connectToPropertyChangedSignal([&] { ++untyped; });
    p.setValue(5);
    EXPECT_EQ(1, validator->calls); // even for the value already held
    try {
        p.setValue(-1);
        FAIL() << "no exception";
    } catch (const InvalidPropertyValueException& e) {
        EXPECT_STREQ("Value must not be negative.", e.what());
    }
    EXPECT_EQ(5, p.getValue());
    EXPECT_TRUE(rec.values.empty());
    EXPECT_EQ(0, untyped);
    p.setValue(7);
    EXPECT_EQ(7, p.getValue());
    EXPECT_EQ(std::vector<long>{7}, rec.values);
    EXPECT_EQ(1, untyped);

    // The untyped signal with no typed listener.
    Property<std::string> s("a");
    int calls = 0;
    boost::signals2::scoped_connection c = s.connectToPropertyChangedSignal([&] { ++calls; });
    s.setValue("a");
    s.setValue("b");
    EXPECT_EQ(1, calls);

    // A store that adjusts the value, as a kernel would: the value read back is announced.
    StoredProperty<long> clamped;
    clamped.clamp = true;
    Emissions<long> crec(clamped);
    clamped.setValue(250);
    EXPECT_EQ(std::vector<long>{100}, crec.values);
    // 250 again is not equal to the 100 held, so it is stored and announced again.
    clamped.setValue(250);
    EXPECT_EQ(2u, crec.values.size());
}

TEST(PropertyEquality, NaNNeverEqualVectorOrderMattersSetsCompareByElements)
{
    StoredProperty<double> d;
    Emissions<double> drec(d);
    const double nan = std::numeric_limits<double>::quiet_NaN();
    d.setValue(nan);
    d.setValue(nan);
    EXPECT_EQ(2u, drec.values.size());
    d.setValue(1.5);
    d.setValue(1.5);
    EXPECT_EQ(3u, drec.values.size());

    Property<std::vector<int>> v(std::vector<int>{1, 2, 3});
    Emissions<std::vector<int>> vrec(v);
    v.setValue({1, 2, 3});
    EXPECT_TRUE(vrec.values.empty());
    v.setValue({3, 2, 1});
    v.setValue({});
    v.setValue({});
    EXPECT_EQ(2u, vrec.values.size());

    Property<std::set<int>> s(std::set<int>{1, 2});
    Emissions<std::set<int>> srec(s);
    s.setValue({2, 1});
    EXPECT_TRUE(srec.values.empty());
    s.setValue({1, 2, 3});
    EXPECT_EQ(1u, srec.values.size());
}

TEST(PropertyProxy, ForwardsValuesAndValidatesWithBothValidators)
{
    auto target = boost::make_shared<Property<long>>(1L, boost::make_shared<NonNegativeValidator>());
    {
        PropertyProxy<long> proxy(target, boost::make_shared<testsupport::RefusingValidator<long>>(7, "seven"));
        Emissions<long> rec(proxy);
        proxy.setValue(2);
        EXPECT_EQ(2, target->getValue());
        EXPECT_EQ(std::vector<long>{2}, rec.values);
        EXPECT_THROW(proxy.setValue(7), InvalidPropertyValueException);
        EXPECT_THROW(proxy.setValue(-1), InvalidPropertyValueException);
        EXPECT_EQ(2, target->getValue());

        // A change made on the target directly reaches the proxy's listeners.
        target->setValue(3);
        EXPECT_EQ(3, proxy.getValue());
        EXPECT_EQ(2u, rec.values.size());
    }
    // A destroyed proxy leaves its target usable.
    EXPECT_NO_THROW(target->setValue(4));
    EXPECT_EQ(4, target->getValue());
}

TEST(PropertyProxy, RetargetingAnnouncesOnlyAVisibleChange)
{
    auto a = boost::make_shared<Property<bool>>(true);
    auto b = boost::make_shared<Property<bool>>(true);
    auto c = boost::make_shared<Property<bool>>(false);
    PropertyProxy<bool> proxy(a);
    Emissions<bool> rec(proxy);

    proxy.setProperty(b);
    EXPECT_TRUE(rec.values.empty());
    proxy.setProperty(c);
    EXPECT_EQ(std::vector<bool>{false}, rec.values);
    proxy.reset(a);
    EXPECT_EQ(1u, rec.values.size());

    // After retargeting, the old target no longer reaches the proxy.
    c->setValue(true);
    EXPECT_EQ(1u, rec.values.size());
    a->setValue(false);
    EXPECT_EQ(2u, rec.values.size());
}

TEST(PropertyProxy, ANullTargetOrValidatorIsRefusedWhereGivenAndTheProxyKeepsWorking)
{
    typedef boost::shared_ptr<PropertyAbstract<long>> Target;
    typedef boost::shared_ptr<const ValidatorInterface<long>> Validator;
    auto target = boost::make_shared<Property<long>>(1L);
    EXPECT_THROW(PropertyProxy<long>{Target()}, InvalidArgumentException);
    EXPECT_THROW(PropertyProxy<long>(target, Validator()), InvalidArgumentException);
    EXPECT_THROW(Property<long>(1L, boost::shared_ptr<ValidatorInterface<long>>()), InvalidArgumentException);

    PropertyProxy<long> proxy(target);
    EXPECT_THROW(proxy.reset(Target()), InvalidArgumentException);
    EXPECT_THROW(proxy.setProperty(Target()), InvalidArgumentException);
    EXPECT_EQ(target, proxy.target());
    proxy.setValue(5);
    EXPECT_EQ(5, target->getValue());
}
