#include "prompts/propertymanager/ScatterSizeFontPropertiesGenerated.h"

namespace orrery {
namespace sdk {
namespace ui {
namespace propertymanager {

ScatterSizeFontPropertiesGenerated::ScatterSizeFontPropertiesGenerated(bool modal, const toolbox::StringList& prefix)
    : UIKernelStylePropertiesAbstract(modal), GeneratedStylePropertySet(prefix)
{
    makeEntries();
}

ScatterSizeFontPropertiesGenerated::ScatterSizeFontPropertiesGenerated(UIKernelStylePropertiesAbstract* parent,
                                                                       const toolbox::StringList& prefix)
    : UIKernelStylePropertiesAbstract(parent), GeneratedStylePropertySet(prefix)
{
    makeEntries();
}

void ScatterSizeFontPropertiesGenerated::makeEntries()
{
    m_scatterFont = makeEntry<std::string>("GlobalScatter", "BaseFontFamily");
    m_scatterFontBold = makeEntry<bool>("GlobalScatter", "BaseFontIsBold");
    m_scatterFontItalic = makeEntry<bool>("GlobalScatter", "BaseFontIsItalic");
    m_scatterSizeVariable = makeEntry<int>("GlobalScatter", "Var");
    m_scatterSizeInGridUnits = makeEntry<bool>("GlobalScatter", "RelativeSizeInGridUnits");
    m_scatterRelativeSize = makeEntry<double>("GlobalScatter", "RelativeSize");
    m_symbolFont = makeEntry<std::string>("GlobalLinePlot", "BaseFontFamily");
    m_symbolFontBold = makeEntry<bool>("GlobalLinePlot", "BaseFontIsBold");
    m_symbolFontItalic = makeEntry<bool>("GlobalLinePlot", "BaseFontIsItalic");
}

} // namespace propertymanager
} // namespace ui
} // namespace sdk
} // namespace orrery
