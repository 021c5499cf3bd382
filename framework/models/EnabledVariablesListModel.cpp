#include "framework/models/EnabledVariablesListModel.h"

#include "platform/sdk/HostAnswers.h"

namespace orrery::sdk::ui::dialogs::propertybindings::models {

EnabledVariablesListModel::EnabledVariablesListModel()
{
    refresh();
}

std::vector<int> EnabledVariablesListModel::fetchNumbers() const
{
    const toolbox::Set vars = HostAnswers::enabledVars(HostAnswers::frameUniqueID());
    return std::vector<int>(vars.begin(), vars.end());
}

std::string EnabledVariablesListModel::fetchText(int var) const
{
    return HostAnswers::varName(var);
}

} // namespace orrery::sdk::ui::dialogs::propertybindings::models
