#include "platform/sdk/StateChangeEvent.h"

namespace orrery {
namespace sdk {
namespace integration {

StateChangeEvent::StateChangeEvent(StateChange_e code, const toolbox::StringList& stylePath)
    : m_code(code), m_stylePath(stylePath)
{}

} // namespace integration
} // namespace sdk
} // namespace orrery
