#pragma once
#include "platform/common/HostCall.h"
#include "platform/common/SignalConnectionCollection.h"
#include "platform/kernel/OrrUtil.h"
#include "platform/sdk/StateChangeEventObservable.h"
#include "platform/toolbox/StyleValue.h"
#include "core/propertymanager/KernelPropertyAbstract.h"
#include "core/propertymanager/KernelStyleAccess.h"

namespace orrery {
namespace sdk {
namespace styleproperties {

/// A property that reads the kernel on every read and writes it on every store.
/// A refused write throws with the kernel's text; a failed read keeps the last
/// known value. While anybody listens, it follows changes made elsewhere in the
/// host and announces them.
template <typename T>
class KernelProperty : public KernelPropertyAbstract<T>
{
public:
    /// Stands for the style value at \a styleValue's path, for no collection member
    /// until setOffsets() is called.
    explicit KernelProperty(const toolbox::StyleValue& styleValue) : m_cached(), m_styleValue(styleValue) {}
    ~KernelProperty() override = default;

    void setOffsets(long first, long second) override
    {
        m_first = first;
        m_second = second;
        retrieveValue();
    }

    void storeValue(const T& value) override
    {
        const SetValueReturnCode_e code = applyValue(value);
        // Code 15 is a silent refusal: remember it, so that setting the same value
        // again reaches the kernel again instead of being taken as unchanged.
        m_refusedWrite = (code == SetValue_Declined);
        if (m_refusedWrite || toolbox::StyleValue::returnCodeOk(code))
            return;
        const std::string error = ORRERY_HOST_TEXT(Empty, OrrUtilStyleGetLastErrorString());
        throw InvalidPropertyValueException(error.empty() ? "Unknown error" : error);
    }

    /// Never equal just after a silently refused write, so the same value is tried again.
    bool isEqual(const T& value) const override
    {
        return !m_refusedWrite && ValueEquality<T>::equal(value, retrieveValue());
    }

    T retrieveValue() const override
    {
        IdentifierList ids(*this);
        toolbox::ArgList args;
        m_styleValue.setupGetValueArgList(ids.array, m_first, m_second, args);
        T read = m_cached;
        if (!KernelStyleAccess<T>::read(m_styleValue, args, read) || sameKernelValue(read, m_cached))
            return m_cached;
        m_cached = read;
        if (m_announce)
            this->emitValueChangedSignal(read);
        return read;
    }

    /// Starts following the host's state changes; the first listener also refreshes
    /// the cached value without an announcement.
    void signalValueChangedConnected() const override
    {
        if (this->valueChangedListenerCount() == 1)
            refreshSilently();
        m_stateChangeConnections.clear();
        m_stateChangeConnections.add(integration::StateChangeEventObservable::getInstance().signal().connect(
            [this](const integration::StateChangeEventInterface& event) { stateChanged(event); }));
    }

    /// Re-reads the kernel after a state change in the host, announcing a new value;
    /// stops following once nobody listens.
    void stateChanged(const integration::StateChangeEventInterface&) const
    {
        if (this->valueChangedListenerCount() == 0) {
            m_stateChangeConnections.clear();
            return;
        }
        retrieveValue();
    }

    /// Whether the property currently follows the host's state changes.
    bool isFollowingKernel() const { return !m_stateChangeConnections.empty(); }

private:
    /// The path identifiers of one kernel call, on in-place storage: paths are
    /// at most seven names plus the terminator.
    struct IdentifierList
    {
        explicit IdentifierList(const KernelProperty& p) : array(&slot, storage, 8)
        {
            array.append(p.m_styleValue.macroIDs());
            p.m_styleValue.initMacroIDsfromStyleValueNames(nullptr, nullptr, nullptr, nullptr, nullptr, nullptr,
                                                           nullptr, array);
            array.push_back(-1);
        }
        long storage[8];
        long* slot = nullptr;
        RawArray<long> array;
    };

    /// Clears a flag for the lifetime of the guard, restoring it even on throw.
    struct AnnounceSuppressor
    {
        explicit AnnounceSuppressor(bool& flag) : m_flag(flag), m_saved(flag) { m_flag = false; }
        ~AnnounceSuppressor() { m_flag = m_saved; }
        bool& m_flag;
        bool m_saved;
    };

    void refreshSilently() const
    {
        AnnounceSuppressor quiet(m_announce);
        retrieveValue();
    }

    SetValueReturnCode_e applyValue(const T& value)
    {
        IdentifierList ids(*this);
        toolbox::ArgList args;
        m_styleValue.setupSetValueArgList(ids.array, nullptr, m_first, m_second, AssignOp_Equals, args);
        SetValueReturnCode_e code;
        {
            // The kernel announces our own write while it is made; the re-read that
            // follows updates the cache quietly, so setValue announces it just once.
            AnnounceSuppressor quiet(m_announce);
            code = KernelStyleAccess<T>::write(m_styleValue, args, value);
        }
        if (code == SetValue_Ok)
            m_cached = value;
        return code;
    }

    mutable T m_cached;
    toolbox::CheckedStyleValue m_styleValue;
    long m_first = -1;
    long m_second = -1;
    bool m_refusedWrite = false;
    mutable bool m_announce = true;
    mutable SignalConnectionCollection m_stateChangeConnections;
};

} // namespace styleproperties
} // namespace sdk
} // namespace orrery
