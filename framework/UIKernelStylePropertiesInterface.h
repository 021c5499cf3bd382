#pragma once
#include "framework/FrameworkExport.h"
#include <boost/signals2/signal.hpp>

namespace orrery {
namespace sdk {
namespace ui {
namespace propertymanager {

/// A group of style properties that a dialog edits together: initialised from
/// the kernel, submitted together, moved together to another collection member.
class ORRERY_FRAMEWORK_EXPORT UIKernelStylePropertiesInterface
{
public:
    typedef boost::signals2::signal<void()> Signal;

    virtual ~UIKernelStylePropertiesInterface() = default;
    virtual void init() = 0;
    virtual bool isModal() const = 0;
    virtual void submit() = 0;
    virtual void setCollectionOffset(const int& offset) = 0;
    virtual int collectionOffset() const = 0;

    boost::signals2::connection connectToSubmittedSignal(const Signal::slot_type& slot) const
    {
        return m_submitted.connect(slot);
    }
    boost::signals2::connection connectToInitializedSignal(const Signal::slot_type& slot) const
    {
        return m_initialized.connect(slot);
    }

protected:
    mutable Signal m_submitted;
    mutable Signal m_initialized;
};

} // namespace propertymanager
} // namespace ui
} // namespace sdk
} // namespace orrery
