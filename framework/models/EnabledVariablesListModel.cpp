#include "framework/models/EnabledVariablesListModel.h"

#include "platform/common/HostCall.h"
#include "platform/kernel/OrrUtil.h"
#include "platform/sdk/DataSetQueries.h"

namespace orrery::sdk::ui::dialogs::propertybindings::models {

EnabledVariablesListModel::EnabledVariablesListModel()
{
    refresh();
}

std::vector<int> EnabledVariablesListModel::fetchNumbers() const
{
    const toolbox::Set vars = getEnabledVarsForFrame(ORRERY_HOST_CALL(0L, OrrUtilFrameGetUniqueID()));
    return std::vector<int>(vars.begin(), vars.end());
}

std::string EnabledVariablesListModel::fetchText(int var) const
{
    return ORRERY_HOST_TEXT(Fault, OrrUtilVarGetName(var));
}

} // namespace orrery::sdk::ui::dialogs::propertybindings::models
