#pragma once
#include "platform/PlatformExport.h"
#include <boost/signals2/signal.hpp>

namespace orrery {

// Base of every property: the untyped "something changed" signal.
class ORRERY_PLATFORM_EXPORT PropertyItemInterface
{
public:
    typedef boost::signals2::signal<void()> PropertyChangedSignal;

    virtual void signalPropertyChangedConnected() const {}
    virtual ~PropertyItemInterface() = default;

    boost::signals2::connection connectToPropertyChangedSignal(const PropertyChangedSignal::slot_type& slot) const
    {
        boost::signals2::connection c = m_propertyChanged.connect(slot, boost::signals2::at_back);
        signalPropertyChangedConnected();
        return c;
    }

protected:
    mutable PropertyChangedSignal m_propertyChanged;
};

} // namespace orrery
