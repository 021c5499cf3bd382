#include "platform/sdk/StateChangeEventObservable.h"

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
    m_signal(event);
}

} // namespace integration
} // namespace sdk
} // namespace orrery
