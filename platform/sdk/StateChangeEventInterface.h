#pragma once
#include "platform/kernel/OrrTypes.h"
#include "platform/toolbox/StringList.h"

namespace orrery {
namespace sdk {
namespace integration {

// One announcement of a change of the host's state.
class StateChangeEventInterface
{
public:
    virtual ~StateChangeEventInterface() = default;
    virtual StateChange_e code() const = 0;
    // The style path that changed (code 7); empty for other changes.
    virtual const toolbox::StringList& stylePath() const = 0;
};

} // namespace integration
} // namespace sdk
} // namespace orrery
