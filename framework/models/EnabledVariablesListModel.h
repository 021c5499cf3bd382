#pragma once
#include "framework/FrameworkExport.h"
#include "framework/models/DataSetListModelAbstract.h"

namespace orrery::sdk::ui::dialogs::propertybindings::models {

/// The variables enabled in the current frame, in ascending order; a row's
/// value is the variable number, its text the variable's name.
class ORRERY_FRAMEWORK_EXPORT EnabledVariablesListModel : public DataSetListModelAbstract
{
public:
    EnabledVariablesListModel();

private:
    std::vector<int> fetchNumbers() const override;
    std::string fetchText(int var) const override;
};

} // namespace orrery::sdk::ui::dialogs::propertybindings::models
