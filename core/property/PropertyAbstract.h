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
    /// The type of the value held.
    typedef T ValueType;
    /// Fires with the value held after a change.
    typedef boost::signals2::signal<void(const T&)> ValueChangedSignal;

    PropertyAbstract() : m_validator(boost::make_shared<AllowAnyValueValidator<T>>()) { forwardToUntypedSignal(); }
    PropertyAbstract(const PropertyAbstract&) = delete;
    PropertyAbstract& operator=(const PropertyAbstract&) = delete;
    ~PropertyAbstract() override = default;

    /// Validates \a value (throws InvalidPropertyValueException when refused), stores it
    /// unless equal to the value held, and announces the value read back.
    void setValue(const T& value)
    {
        validate(value);
        if (isEqual(value))
            return;
        storeValue(value);
        emitValueChangedSignal(retrieveValue());
    }

    /// The value held now.
    T getValue() const { return retrieveValue(); }

    /// Calls \a slot with the new value after every change; disconnect through the
    /// returned connection.
    boost::signals2::connection connectToValueChangedSignal(const typename ValueChangedSignal::slot_type& slot) const
    {
        boost::signals2::connection c = m_valueChanged.connect(slot);
        signalValueChangedConnected();
        return c;
    }

    /// Called after every connection to the value-changed signal.
    virtual void signalValueChangedConnected() const {}
    /// Keeps \a value, already validated and different; no announcement here.
    virtual void storeValue(const T& value) = 0;
    /// Whether \a value equals the value held, so setting it is no change (ValueEquality).
    virtual bool isEqual(const T& value) const { return ValueEquality<T>::equal(value, retrieveValue()); }
    /// Throws InvalidPropertyValueException, with the validator's text, when \a value is refused.
    virtual void validate(const T& value) const
    {
        const boost::shared_ptr<const ValidatorInterface<T>> validator = m_validator;
        const ValidationResult result = validator->validate(value);
        if (!result.isValid())
            throw InvalidPropertyValueException(result.errorString());
    }
    /// Reads the value from wherever it is kept.
    virtual T retrieveValue() const = 0;
    /// Announces \a value to the value-changed listeners (and the untyped signal).
    virtual void emitValueChangedSignal(const T& value) const { m_valueChanged(value); }

    /// Fires the untyped property-changed signal of PropertyItemInterface, if anyone listens.
    void callBaseClassSignalIfThereAreListeners() const
    {
        if (!m_propertyChanged.empty())
            m_propertyChanged();
    }

    /// Number of listeners on the value-changed signal (the internal forward to the
    /// untyped signal not counted).
    size_t valueChangedListenerCount() const { return m_valueChanged.num_slots() - 1; }

protected:
    /// Replaces the validator used from now on; \a validator must not be null.
    void setValidator(const boost::shared_ptr<const ValidatorInterface<T>>& validator)
    {
        m_validator = requireNonNull(validator, "A property's validator");
    }

    /// The value-changed signal, for subclasses that chain or fire it themselves.
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
