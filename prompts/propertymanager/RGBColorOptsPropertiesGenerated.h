#pragma once
#include "prompts/PromptsExport.h"
#include "prompts/propertymanager/GeneratedStylePropertySet.h"

namespace orrery::sdk::ui::propertymanager {

/// The RGB colouring style values of a field plot.
class ORRERY_PROMPTS_EXPORT RGBColorOptsPropertiesGenerated : public GeneratedStylePropertySet
{
    ORRERY_GENERATED_STYLE_SET(RGBColorOptsPropertiesGenerated)

    ORRERY_GENERATED_STYLE_ENTRY(RGBMode_e, rgbMode, setRgbMode, "GlobalRGB", "RGBMode")
    ORRERY_GENERATED_STYLE_ENTRY(int, redVar, setRedVar, "GlobalRGB", "RedChannelVar")
    ORRERY_GENERATED_STYLE_ENTRY(int, greenVar, setGreenVar, "GlobalRGB", "GreenChannelVar")
    ORRERY_GENERATED_STYLE_ENTRY(int, blueVar, setBlueVar, "GlobalRGB", "BlueChannelVar")
    ORRERY_GENERATED_STYLE_ENTRY(double, rangeMin, setRangeMin, "GlobalRGB", "RangeMin")
    ORRERY_GENERATED_STYLE_ENTRY(double, rangeMax, setRangeMax, "GlobalRGB", "RangeMax")
};

} // namespace orrery::sdk::ui::propertymanager
