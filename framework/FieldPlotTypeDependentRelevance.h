#pragma once
#include "framework/FrameworkExport.h"
#include "framework/StateChangeDependentRelevance.h"

namespace orrery::sdk::ui::propertymanager {

/// Relevant while the current frame shows a field plot (3D or 2D Cartesian).
class ORRERY_FRAMEWORK_EXPORT FieldPlotTypeDependentRelevance : public StateChangeDependentRelevance
{
public:
    FieldPlotTypeDependentRelevance();
};

} // namespace orrery::sdk::ui::propertymanager
