#include "framework/FieldPlotTypeDependentRelevance.h"

#include "platform/sdk/HostAnswers.h"

namespace orrery::sdk::ui::propertymanager {

FieldPlotTypeDependentRelevance::FieldPlotTypeDependentRelevance()
    : StateChangeDependentRelevance([] {
          const PlotType_e plotType = sdk::HostAnswers::plotType();
          return plotType == PlotType_ThreeD || plotType == PlotType_TwoD;
      })
{}

} // namespace orrery::sdk::ui::propertymanager
