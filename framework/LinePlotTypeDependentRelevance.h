#pragma once
#include "framework/FrameworkExport.h"
#include "framework/StateChangeDependentRelevance.h"

namespace orrery::sdk::ui::propertymanager {

/// Relevant while the current frame shows a line plot (XY or polar).
class ORRERY_FRAMEWORK_EXPORT LinePlotTypeDependentRelevance : public StateChangeDependentRelevance
{
public:
    LinePlotTypeDependentRelevance();
};

} // namespace orrery::sdk::ui::propertymanager
