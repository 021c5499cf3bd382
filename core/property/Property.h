#pragma once
#include "core/property/PropertyAbstract.h"

namespace orrery {

/// A property that holds its value itself.
template <typename T>
class Property : public PropertyAbstract<T>
{
public:
    /// Holds a value-initialised T (0, empty) and accepts any value.
    Property() : m_value() {}
    /// Holds \a initial and accepts any value.
    explicit Property(const T& initial) : m_value(initial) {}
    /// Holds \a initial; later values must pass \a validator (not null). The initial
    /// value itself is not checked.
    Property(const T& initial, const boost::shared_ptr<ValidatorInterface<T>>& validator) : m_value(initial)
    {
        this->setValidator(validator);
    }

    void storeValue(const T& value) override { m_value = value; }
    T retrieveValue() const override { return m_value; }

private:
    T m_value;
};

} // namespace orrery
