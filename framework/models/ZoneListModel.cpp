#include "framework/models/ZoneListModel.h"

#include "platform/kernel/OrrUtil.h"

namespace orrery::sdk::ui::dialogs::propertybindings::models {

ZoneListModel::ZoneListModel(const ZoneSource& zones, bool numbered) : m_zones(zones), m_numbered(numbered)
{
    refresh();
}

std::vector<ZoneListModel::Row> ZoneListModel::fetchRows() const
{
    std::vector<Row> rows;
    for (int zone : m_zones(OrrUtilFrameGetUniqueID())) {
        const std::string name = takeKernelString(OrrUtilZoneGetName(zone));
        rows.push_back(Row{zone, m_numbered ? std::to_string(zone) + ": " + name : name});
    }
    return rows;
}

} // namespace orrery::sdk::ui::dialogs::propertybindings::models
