#include "framework/FieldPlotTypeDependentRelevance.h"

#include "platform/common/HostCall.h"
#include "platform/kernel/OrrUtil.h"

namespace orrery::sdk::ui::propertymanager {

FieldPlotTypeDependentRelevance::FieldPlotTypeDependentRelevance()
    : StateChangeDependentRelevance([] {
          const PlotType_e plotType = ORRERY_HOST_CALL(PlotType_Sketch, OrrUtilFrameGetPlotType());
          return plotType == PlotType_ThreeD || plotType == PlotType_TwoD;
      })
{}

} // namespace orrery::sdk::ui::propertymanager
