#include "framework/models/EnabledVariablesListModel.h"

#include "platform/kernel/OrrUtil.h"
#include "platform/sdk/DataSetQueries.h"

namespace orrery::sdk::ui::dialogs::propertybindings::models {

EnabledVariablesListModel::EnabledVariablesListModel() { refresh(); }

std::vector<EnabledVariablesListModel::Row> EnabledVariablesListModel::fetchRows() const
{
    std::vector<Row> rows;
    for (int var : getEnabledVarsForFrame(OrrUtilFrameGetUniqueID()))
        rows.push_back(Row{var, takeKernelString(OrrUtilVarGetName(var))});
    return rows;
}

} // namespace orrery::sdk::ui::dialogs::propertybindings::models
