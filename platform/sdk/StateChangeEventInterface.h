#pragma once
#include "platform/PlatformExport.h"
#include "platform/kernel/OrrTypes.h"
#include "platform/toolbox/StringList.h"

namespace orrery {
namespace sdk {
namespace integration {

// One announcement of a change of the host's state.
class ORRERY_PLATFORM_EXPORT StateChangeEventInterface
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
