#include "framework/DataSetExistsRelevance.h"

#include "platform/sdk/HostAnswers.h"

namespace orrery::sdk::ui::propertymanager {

DataSetExistsRelevance::DataSetExistsRelevance()
    : StateChangeDependentRelevance([] { return sdk::HostAnswers::dataSetAvailable(); })
{}

} // namespace orrery::sdk::ui::propertymanager
