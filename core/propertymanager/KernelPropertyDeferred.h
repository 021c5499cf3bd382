#pragma once
#include "core/propertymanager/KernelProperty.h"

namespace orrery {
namespace sdk {
namespace styleproperties {

/// Keeps edits locally and writes them to the kernel only on apply(), so that a
/// modal dialog's Cancel leaves the style state untouched.
template <typename T>
class KernelPropertyDeferred : public KernelPropertyAbstract<T>
{
public:
    /// Starts from the kernel's value at \a styleValue's path.
    explicit KernelPropertyDeferred(const toolbox::StyleValue& styleValue) : m_kernelProperty(styleValue)
    {
        m_pending = m_kernelProperty.retrieveValue();
    }

    /// Moves to another collection member and takes its kernel value, dropping a pending edit.
    void setOffsets(long first, long second) override
    {
        m_kernelProperty.setOffsets(first, second);
        const T held = m_kernelProperty.retrieveValue();
        if (!ValueEquality<T>::equal(held, m_pending)) {
            m_pending = held;
            this->emitValueChangedSignal(held);
        }
    }

    /// Writes the pending value to the kernel when it differs; may throw
    /// InvalidPropertyValueException with the kernel's text.
    void apply() override
    {
        m_kernelProperty.validate(m_pending);
        if (m_kernelProperty.isEqual(m_pending))
            return;
        m_kernelProperty.storeValue(m_pending);
        m_kernelProperty.emitValueChangedSignal(m_kernelProperty.retrieveValue());
    }

    /// Keeps \a value as the pending edit; the kernel is not touched.
    void storeValue(const T& value) override { m_pending = value; }
    /// The pending value (the kernel's until edited).
    T retrieveValue() const override { return m_pending; }

private:
    T m_pending{};
    KernelProperty<T> m_kernelProperty;
};

} // namespace styleproperties
} // namespace sdk
} // namespace orrery
