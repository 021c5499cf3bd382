#pragma once
#include "framework/FrameworkExport.h"
#include "framework/StateChangeDependentRelevance.h"

namespace orrery::sdk::ui::propertymanager {

/// Relevant while the host holds a data set.
class ORRERY_FRAMEWORK_EXPORT DataSetExistsRelevance : public StateChangeDependentRelevance
{
public:
    DataSetExistsRelevance();
};

} // namespace orrery::sdk::ui::propertymanager
