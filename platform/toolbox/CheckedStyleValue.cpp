#include "platform/toolbox/CheckedStyleValue.h"
#include "platform/common/HostCall.h"
#include "platform/kernel/OrrUtil.h"

namespace orrery {
namespace toolbox {

CheckedStyleValue::CheckedStyleValue(const StyleValue& value) : StyleValue(value) {}

GetValueReturnCode_e CheckedStyleValue::styleGetLowLevel(const ArgList& args) const
{
    return ORRERY_HOST_CALL(GetValue_BadArguments, OrrUtilStyleGetValue(&args));
}

SetValueReturnCode_e CheckedStyleValue::styleSetLowLevel(const ArgList& args) const
{
    return ORRERY_HOST_CALL(SetValue_BadArguments, OrrUtilStyleSetValue(&args));
}

} // namespace toolbox
} // namespace orrery
