#include "framework/models/EnabledVariablesListModel.h"

#include "platform/kernel/OrrUtil.h"
#include "platform/sdk/DataSetQueries.h"

namespace orrery::sdk::ui::dialogs::propertybindings::models {

EnabledVariablesListModel::EnabledVariablesListModel()
{
    refresh();
}

std::vector<int> EnabledVariablesListModel::fetchNumbers() const
{
    const toolbox::Set vars = getEnabledVarsForFrame(OrrUtilFrameGetUniqueID());
    return std::vector<int>(vars.begin(), vars.end());
}

std::string EnabledVariablesListModel::fetchText(int var) const
{
    return takeKernelString(OrrUtilVarGetName(var));
}

} // namespace orrery::sdk::ui::dialogs::propertybindings::models
