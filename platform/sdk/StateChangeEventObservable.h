#pragma once
#include "platform/PlatformExport.h"
#include <boost/signals2/signal.hpp>
#include "platform/sdk/StateChangeEventInterface.h"

namespace orrery {
namespace sdk {
namespace integration {

// The host's one channel of state-change announcements. Listeners are called
// synchronously, in connection order, on the user-interface thread.
class ORRERY_PLATFORM_EXPORT StateChangeEventObservable
{
public:
    typedef boost::signals2::signal<void(const StateChangeEventInterface&)> Signal;

    static StateChangeEventObservable& getInstance();

    Signal& signal() { return m_signal; }
    void emitStateChange(const StateChangeEventInterface& event);

private:
    StateChangeEventObservable() = default;

    Signal m_signal;
};

} // namespace integration
} // namespace sdk
} // namespace orrery
