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
    /// Fires after the set was initialised or submitted.
    typedef boost::signals2::signal<void()> Signal;

    virtual ~UIKernelStylePropertiesInterface() = default;
    /// Announces through the initialized signal that the set is ready; the properties
    /// themselves read the kernel whenever they are read.
    virtual void init() = 0;
    /// Whether edits wait for submit() (modal) or reach the kernel at once.
    virtual bool isModal() const = 0;
    /// Writes pending edits to the kernel and announces it through the submitted signal.
    virtual void submit() = 0;
    /// Moves the set's properties to collection member \a offset (-1: none).
    virtual void setCollectionOffset(const int& offset) = 0;
    /// The collection member edited now, -1 for none.
    virtual int collectionOffset() const = 0;

    /// Calls \a slot after each submit().
    boost::signals2::connection connectToSubmittedSignal(const Signal::slot_type& slot) const
    {
        return m_submitted.connect(slot);
    }
    /// Calls \a slot after each init().
    boost::signals2::connection connectToInitializedSignal(const Signal::slot_type& slot) const
    {
        return m_initialized.connect(slot);
    }

protected:
    /// Fired by submit().
    mutable Signal m_submitted;
    /// Fired by init().
    mutable Signal m_initialized;
};

} // namespace propertymanager
} // namespace ui
} // namespace sdk
} // namespace orrery
