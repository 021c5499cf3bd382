#pragma once
#include "prompts/PromptsExport.h"
#include <string>
#include "prompts/propertymanager/GeneratedStylePropertySet.h"

namespace orrery::sdk::ui::propertymanager {

/// The scatter symbol size and font style values, and the line plot symbol font.
class ORRERY_PROMPTS_EXPORT ScatterSizeFontPropertiesGenerated : public GeneratedStylePropertySet
{
    ORRERY_GENERATED_STYLE_SET(ScatterSizeFontPropertiesGenerated)

    ORRERY_GENERATED_STYLE_ENTRY(std::string, scatterFont, setScatterFont, "GlobalScatter", "BaseFontFamily")
    ORRERY_GENERATED_STYLE_ENTRY(bool, scatterFontBold, setScatterFontBold, "GlobalScatter", "BaseFontIsBold")
    ORRERY_GENERATED_STYLE_ENTRY(bool, scatterFontItalic, setScatterFontItalic, "GlobalScatter", "BaseFontIsItalic")
    ORRERY_GENERATED_STYLE_ENTRY(int, scatterSizeVariable, setScatterSizeVariable, "GlobalScatter", "Var")
    ORRERY_GENERATED_STYLE_ENTRY(bool, scatterSizeInGridUnits, setScatterSizeInGridUnits, "GlobalScatter",
                                 "RelativeSizeInGridUnits")
    ORRERY_GENERATED_STYLE_ENTRY(double, scatterRelativeSize, setScatterRelativeSize, "GlobalScatter", "RelativeSize")
    ORRERY_GENERATED_STYLE_ENTRY(std::string, symbolFont, setSymbolFont, "GlobalLinePlot", "BaseFontFamily")
    ORRERY_GENERATED_STYLE_ENTRY(bool, symbolFontBold, setSymbolFontBold, "GlobalLinePlot", "BaseFontIsBold")
    ORRERY_GENERATED_STYLE_ENTRY(bool, symbolFontItalic, setSymbolFontItalic, "GlobalLinePlot", "BaseFontIsItalic")
};

} // namespace orrery::sdk::ui::propertymanager
