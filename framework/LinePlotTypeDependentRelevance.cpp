#include "framework/LinePlotTypeDependentRelevance.h"

#include "platform/common/HostCall.h"
#include "platform/kernel/OrrUtil.h"

namespace orrery::sdk::ui::propertymanager {

LinePlotTypeDependentRelevance::LinePlotTypeDependentRelevance()
    : StateChangeDependentRelevance([] {
          const PlotType_e plotType = ORRERY_HOST_CALL(PlotType_Sketch, OrrUtilFrameGetPlotType());
          return plotType == PlotType_XYLine || plotType == PlotType_PolarLine;
      })
{}

} // namespace orrery::sdk::ui::propertymanager
