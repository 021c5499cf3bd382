#include "framework/LinePlotTypeDependentRelevance.h"

#include "platform/sdk/HostAnswers.h"

namespace orrery::sdk::ui::propertymanager {

LinePlotTypeDependentRelevance::LinePlotTypeDependentRelevance()
    : StateChangeDependentRelevance([] {
          const PlotType_e plotType = sdk::HostAnswers::plotType();
          return plotType == PlotType_XYLine || plotType == PlotType_PolarLine;
      })
{}

} // namespace orrery::sdk::ui::propertymanager
