#include "platform/sdk/StateChangeEventObservable.h"
#include "platform/sdk/HostAnswers.h"

namespace orrery {
namespace sdk {
namespace integration {

StateChangeEventObservable& StateChangeEventObservable::getInstance()
{
    static StateChangeEventObservable observable;
    return observable;
}

void StateChangeEventObservable::emitStateChange(const StateChangeEventInterface& event)
{
    // Before any listener asks the host again.
    HostAnswers::forget();
    m_signal(event);
}

} // namespace integration
} // namespace sdk
} // namespace orrery
