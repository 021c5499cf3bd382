#pragma once
#include "prompts/PromptsExport.h"
#include "framework/SpinBoxIncDecCalculatorBase.h"

namespace orrery::sdk::ui::propertymanager {

class RGBColorOptsPropertiesGenerated;

/// Steps the RGB intensity range by a tenth of the value range that the three
/// channel variables span together; 0 when any channel has no range.
class ORRERY_PROMPTS_EXPORT IntensitySpinBoxIncDecCalculator : public virtual SpinBoxIncDecCalculatorBase
{
public:
    /// Reads the channel variables of \a generated, which must outlive the calculator.
    explicit IntensitySpinBoxIncDecCalculator(const RGBColorOptsPropertiesGenerated& generated);
    double delta() override;

private:
    const RGBColorOptsPropertiesGenerated& m_generated;
};

} // namespace orrery::sdk::ui::propertymanager
