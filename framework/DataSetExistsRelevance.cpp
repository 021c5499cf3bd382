#include "framework/DataSetExistsRelevance.h"

#include "platform/kernel/OrrUtil.h"

namespace orrery::sdk::ui::propertymanager {

DataSetExistsRelevance::DataSetExistsRelevance()
    : StateChangeDependentRelevance([] { return OrrUtilDataSetIsAvailable(); })
{}

} // namespace orrery::sdk::ui::propertymanager
