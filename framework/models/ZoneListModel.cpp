#include "framework/models/ZoneListModel.h"

#include "platform/common/HostCall.h"
#include "platform/kernel/OrrUtil.h"

namespace orrery::sdk::ui::dialogs::propertybindings::models {

ZoneListModel::ZoneListModel(const ZoneSource& zones, bool numbered) : m_zones(zones), m_numbered(numbered)
{
    refresh();
}

std::vector<int> ZoneListModel::fetchNumbers() const
{
    const toolbox::Set zones = m_zones(ORRERY_HOST_CALL(0L, OrrUtilFrameGetUniqueID()));
    return std::vector<int>(zones.begin(), zones.end());
}

std::string ZoneListModel::fetchText(int zone) const
{
    const std::string name = ORRERY_HOST_TEXT(Fault, OrrUtilZoneGetName(zone));
    return m_numbered ? std::to_string(zone) + ": " + name : name;
}

} // namespace orrery::sdk::ui::dialogs::propertybindings::models
