#pragma once
#include "prompts/propertymanager/GeneratedStylePropertySet.h"

namespace orrery {
namespace sdk {
namespace ui {
namespace propertymanager {

// The RGB colouring style values of a field plot.
class RGBColorOptsPropertiesGenerated : public GeneratedStylePropertySet
{
public:
    RGBColorOptsPropertiesGenerated(bool modal, const toolbox::StringList& prefix);
    RGBColorOptsPropertiesGenerated(UIKernelStylePropertiesAbstract* parent, const toolbox::StringList& prefix);

    ORRERY_GENERATED_STYLE_ENTRY(RGBMode_e, rgbMode, setRgbMode)
    ORRERY_GENERATED_STYLE_ENTRY(int, redVar, setRedVar)
    ORRERY_GENERATED_STYLE_ENTRY(int, greenVar, setGreenVar)
    ORRERY_GENERATED_STYLE_ENTRY(int, blueVar, setBlueVar)
    ORRERY_GENERATED_STYLE_ENTRY(double, rangeMin, setRangeMin)
    ORRERY_GENERATED_STYLE_ENTRY(double, rangeMax, setRangeMax)

private:
    void makeEntries();
};

} // namespace propertymanager
} // namespace ui
} // namespace sdk
} // namespace orrery
