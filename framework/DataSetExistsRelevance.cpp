#include "framework/DataSetExistsRelevance.h"

#include "platform/common/HostCall.h"
#include "platform/kernel/OrrUtil.h"

namespace orrery::sdk::ui::propertymanager {

DataSetExistsRelevance::DataSetExistsRelevance()
    : StateChangeDependentRelevance([] { return ORRERY_HOST_CALL(false, OrrUtilDataSetIsAvailable()); })
{}

} // namespace orrery::sdk::ui::propertymanager
