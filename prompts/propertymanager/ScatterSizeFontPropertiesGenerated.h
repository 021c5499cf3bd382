#pragma once
#include <string>
#include "prompts/propertymanager/GeneratedStylePropertySet.h"

namespace orrery {
namespace sdk {
namespace ui {
namespace propertymanager {

// The scatter symbol size and font style values, and the line plot symbol font.
class ScatterSizeFontPropertiesGenerated : public GeneratedStylePropertySet
{
public:
    ScatterSizeFontPropertiesGenerated(bool modal, const toolbox::StringList& prefix);
    ScatterSizeFontPropertiesGenerated(UIKernelStylePropertiesAbstract* parent, const toolbox::StringList& prefix);

    ORRERY_GENERATED_STYLE_ENTRY(std::string, scatterFont, setScatterFont)
    ORRERY_GENERATED_STYLE_ENTRY(bool, scatterFontBold, setScatterFontBold)
    ORRERY_GENERATED_STYLE_ENTRY(bool, scatterFontItalic, setScatterFontItalic)
    ORRERY_GENERATED_STYLE_ENTRY(int, scatterSizeVariable, setScatterSizeVariable)
    ORRERY_GENERATED_STYLE_ENTRY(bool, scatterSizeInGridUnits, setScatterSizeInGridUnits)
    ORRERY_GENERATED_STYLE_ENTRY(double, scatterRelativeSize, setScatterRelativeSize)
    ORRERY_GENERATED_STYLE_ENTRY(std::string, symbolFont, setSymbolFont)
    ORRERY_GENERATED_STYLE_ENTRY(bool, symbolFontBold, setSymbolFontBold)
    ORRERY_GENERATED_STYLE_ENTRY(bool, symbolFontItalic, setSymbolFontItalic)

private:
    void makeEntries();
};

} // namespace propertymanager
} // namespace ui
} // namespace sdk
} // namespace orrery
