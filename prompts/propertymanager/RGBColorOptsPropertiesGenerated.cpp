#include "prompts/propertymanager/RGBColorOptsPropertiesGenerated.h"

namespace orrery {
namespace sdk {
namespace ui {
namespace propertymanager {

RGBColorOptsPropertiesGenerated::RGBColorOptsPropertiesGenerated(bool modal, const toolbox::StringList& prefix)
    : UIKernelStylePropertiesAbstract(modal), GeneratedStylePropertySet(prefix)
{
    makeEntries();
}

RGBColorOptsPropertiesGenerated::RGBColorOptsPropertiesGenerated(UIKernelStylePropertiesAbstract* parent,
                                                                 const toolbox::StringList& prefix)
    : UIKernelStylePropertiesAbstract(parent), GeneratedStylePropertySet(prefix)
{
    makeEntries();
}

void RGBColorOptsPropertiesGenerated::makeEntries()
{
    m_rgbMode = makeEntry<RGBMode_e>("GlobalRGB", "RGBMode");
    m_redVar = makeEntry<int>("GlobalRGB", "RedChannelVar");
    m_greenVar = makeEntry<int>("GlobalRGB", "GreenChannelVar");
    m_blueVar = makeEntry<int>("GlobalRGB", "BlueChannelVar");
    m_rangeMin = makeEntry<double>("GlobalRGB", "RangeMin");
    m_rangeMax = makeEntry<double>("GlobalRGB", "RangeMax");
}

} // namespace propertymanager
} // namespace ui
} // namespace sdk
} // namespace orrery
