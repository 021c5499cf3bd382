#include "platform/toolbox/CheckedStyleValue.h"
#include "platform/kernel/Kernel.h"

namespace orrery {
namespace toolbox {

CheckedStyleValue::CheckedStyleValue(const StyleValue& value) : StyleValue(value)
{
}

GetValueReturnCode_e CheckedStyleValue::styleGetLowLevel(const ArgList& args) const
{
    return kernel::Kernel::instance().style().get(args);
}

SetValueReturnCode_e CheckedStyleValue::styleSetLowLevel(const ArgList& args) const
{
    return kernel::Kernel::instance().style().set(args);
}

} // namespace toolbox
} // namespace orrery
