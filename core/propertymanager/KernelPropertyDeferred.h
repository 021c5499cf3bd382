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
    explicit KernelPropertyDeferred(const toolbox::StyleValue& styleValue) : m_kernelProperty(styleValue)
    {
        m_pending = m_kernelProperty.retrieveValue();
    }

    void setOffsets(long first, long second) override
    {
        m_kernelProperty.setOffsets(first, second);
        const T held = m_kernelProperty.retrieveValue();
        if (!ValueEquality<T>::equal(held, m_pending)) {
            m_pending = held;
            this->emitValueChangedSignal(held);
        }
    }

    void apply() override
    {
        m_kernelProperty.validate(m_pending);
        if (m_kernelProperty.isEqual(m_pending))
            return;
        m_kernelProperty.storeValue(m_pending);
        m_kernelProperty.emitValueChangedSignal(m_kernelProperty.retrieveValue());
    }

    void storeValue(const T& value) override { m_pending = value; }
    T retrieveValue() const override { return m_pending; }

private:
    T m_pending{};
    KernelProperty<T> m_kernelProperty;
};

} // namespace styleproperties
} // namespace sdk
} // namespace orrery
