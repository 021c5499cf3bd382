#include "prompts/propertymanager/IntensitySpinBoxIncDecCalculator.h"

#include <algorithm>
#include "platform/common/HostCall.h"
#include "platform/kernel/OrrUtil.h"
#include "platform/sdk/AppLock.h"
#include "prompts/propertymanager/RGBColorOptsPropertiesGenerated.h"

namespace orrery::sdk::ui::propertymanager {

IntensitySpinBoxIncDecCalculator::IntensitySpinBoxIncDecCalculator(const RGBColorOptsPropertiesGenerated& generated)
    : m_generated(generated)
{}

double IntensitySpinBoxIncDecCalculator::delta()
{
    AppLock lock(AppLock::ImplicitMacroRecording_Allow);
    double step = 0.0;
    double low = 0.0, high = 0.0;
    bool haveRange = true;
    bool first = true;
    for (int var :
         {m_generated.redVar()->getValue(), m_generated.greenVar()->getValue(), m_generated.blueVar()->getValue()}) {
        double min = 0.0, max = 0.0;
        if (!ORRERY_HOST_CALL(false, OrrUtilVarGetMinMax(var, &min, &max))) {
            haveRange = false;
            break;
        }
        low = first ? min : std::min(low, min);
        high = first ? max : std::max(high, max);
        first = false;
    }
    if (haveRange)
        step = (high - low) * 0.1;
    return deltaFactor() * step;
}

} // namespace orrery::sdk::ui::propertymanager
