#pragma once
#include "platform/PlatformExport.h"
#include "platform/sdk/StateChangeEventInterface.h"

namespace orrery {
namespace sdk {
namespace integration {

class ORRERY_PLATFORM_EXPORT StateChangeEvent : public StateChangeEventInterface
{
public:
    explicit StateChangeEvent(StateChange_e code, const toolbox::StringList& stylePath = {});

    StateChange_e code() const override { return m_code; }
    const toolbox::StringList& stylePath() const override { return m_stylePath; }

private:
    StateChange_e m_code;
    toolbox::StringList m_stylePath;
};

} // namespace integration
} // namespace sdk
} // namespace orrery
