#pragma once
#include <boost/make_shared.hpp>
#include <boost/shared_ptr.hpp>
#include <boost/signals2/signal.hpp>

#include "platform/common/PropertyItemInterface.h"
#include "platform/common/RequireArgument.h"
#include "core/property/AllowAnyValueValidator.h"
#include "core/property/InvalidPropertyValueException.h"
#include "core/property/ValueEquality.h"

namespace orrery {

/// A typed, validated, observable value. setValue validates, skips equal values,
/// stores, reads the value back and announces what is really held.
template <typename T>
class PropertyAbstract : public PropertyItemInterface
{
public:
    typedef T ValueType;
    typedef boost::signals2::signal<void(const T&)> ValueChangedSignal;

    PropertyAbstract() : m_validator(boost::make_shared<AllowAnyValueValidator<T>>()) { forwardToUntypedSignal(); }
    PropertyAbstract(const PropertyAbstract&) = delete;
    PropertyAbstract& operator=(const PropertyAbstract&) = delete;
    ~PropertyAbstract() override = default;

    void setValue(const T& value)
    {
        validate(value);
        if (isEqual(value))
            return;
        storeValue(value);
        emitValueChangedSignal(retrieveValue());
    }

    T getValue() const { return retrieveValue(); }

    boost::signals2::connection connectToValueChangedSignal(const typename ValueChangedSignal::slot_type& slot) const
    {
        boost::signals2::connection c = m_valueChanged.connect(slot);
        signalValueChangedConnected();
        return c;
    }

    /// Called after every connection to the value-changed signal.
    virtual void signalValueChangedConnected() const {}
    virtual void storeValue(const T& value) = 0;
    virtual bool isEqual(const T& value) const { return ValueEquality<T>::equal(value, retrieveValue()); }
    virtual void validate(const T& value) const
    {
        const boost::shared_ptr<const ValidatorInterface<T>> validator = m_validator;
        const ValidationResult result = validator->validate(value);
        if (!result.isValid())
            throw InvalidPropertyValueException(result.errorString());
    }
    virtual T retrieveValue() const = 0;
    virtual void emitValueChangedSignal(const T& value) const { m_valueChanged(value); }

    void callBaseClassSignalIfThereAreListeners() const
    {
        if (!m_propertyChanged.empty())
            m_propertyChanged();
    }

    /// Number of listeners on the value-changed signal (the internal forward to the
    /// untyped signal not counted).
    size_t valueChangedListenerCount() const { return m_valueChanged.num_slots() - 1; }

protected:
    void setValidator(const boost::shared_ptr<const ValidatorInterface<T>>& validator)
    {
        m_validator = requireNonNull(validator, "A property's validator");
    }

    mutable ValueChangedSignal m_valueChanged;

private:
    void forwardToUntypedSignal()
    {
        m_untypedForward = m_valueChanged.connect([this](const T&) { callBaseClassSignalIfThereAreListeners(); });
    }

    boost::shared_ptr<const ValidatorInterface<T>> m_validator;
    boost::signals2::scoped_connection m_untypedForward;
};

} // namespace orrery
