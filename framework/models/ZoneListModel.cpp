#include "framework/models/ZoneListModel.h"

#include "platform/sdk/HostAnswers.h"

namespace orrery::sdk::ui::dialogs::propertybindings::models {

ZoneListModel::ZoneListModel(const ZoneSource& zones, bool numbered) : m_zones(zones), m_numbered(numbered)
{
    refresh();
}

std::vector<int> ZoneListModel::fetchNumbers() const
{
    const toolbox::Set zones = m_zones(HostAnswers::frameUniqueID());
    return std::vector<int>(zones.begin(), zones.end());
}

std::string ZoneListModel::fetchText(int zone) const
{
    const std::string name = HostAnswers::zoneName(zone);
    return m_numbered ? std::to_string(zone) + ": " + name : name;
}

} // namespace orrery::sdk::ui::dialogs::propertybindings::models
