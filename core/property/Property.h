#pragma once
#include "core/property/PropertyAbstract.h"

namespace orrery {

/// A property that holds its value itself.
template <typename T>
class Property : public PropertyAbstract<T>
{
public:
    Property() : m_value() {}
    explicit Property(const T& initial) : m_value(initial) {}
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
