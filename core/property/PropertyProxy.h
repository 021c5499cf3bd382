#pragma once
#include <boost/signals2/shared_connection_block.hpp>
#include "core/property/PropertyAbstract.h"

namespace orrery {

/// A property that forwards to another one, which can be exchanged at run time.
/// Values set through the proxy pass its own validator first, then the target's.
template <typename T>
class PropertyProxy : public PropertyAbstract<T>
{
public:
    /// Forwards to \a target (not null); values set through the proxy must also pass \a validator.
    explicit PropertyProxy(const boost::shared_ptr<PropertyAbstract<T>>& target,
                           const boost::shared_ptr<const ValidatorInterface<T>>& validator =
                               boost::make_shared<AllowAnyValueValidator<T>>())
    {
        this->setValidator(validator);
        reset(target);
    }

    /// The target announces its change through the forward as well; it is held
    /// back here because setValue announces the value read back once afterwards.
    void storeValue(const T& value) override
    {
        boost::signals2::shared_connection_block quiet(m_forward);
        m_target->setValue(value);
    }
    T retrieveValue() const override { return m_target->retrieveValue(); }

    /// Exchanges the target without any notification.
    void reset(const boost::shared_ptr<PropertyAbstract<T>>& target)
    {
        m_target = requireNonNull(target, "The target of a property proxy");
        m_forward.disconnect();
        // Chaining signal to signal: the slot expires with the proxy's signal.
        m_forward = target->connectToValueChangedSignal(
            typename PropertyAbstract<T>::ValueChangedSignal::slot_type(this->m_valueChanged));
    }

    /// Exchanges the target and announces the value when it differs from the old one.
    void setProperty(const boost::shared_ptr<PropertyAbstract<T>>& target)
    {
        requireNonNull(target, "The target of a property proxy");
        if (target == m_target)
            return;
        const T before = m_target->retrieveValue();
        reset(target);
        if (!ValueEquality<T>::equal(before, m_target->retrieveValue()))
            this->emitValueChangedSignal(m_target->retrieveValue());
    }

    /// The property forwarded to now.
    const boost::shared_ptr<PropertyAbstract<T>>& target() const { return m_target; }

private:
    boost::shared_ptr<PropertyAbstract<T>> m_target;
    boost::signals2::scoped_connection m_forward;
};

} // namespace orrery
