#pragma once
#include "platform/PlatformExport.h"
#include "platform/toolbox/StyleValue.h"

namespace orrery {
namespace toolbox {

// A style value that performs raw kernel calls: integer, enum and bool values
// travel in the "IValue" argument (a long* to read into, a long to write),
// doubles may be written as "DValue".
class ORRERY_PLATFORM_EXPORT CheckedStyleValue : public StyleValue
{
public:
    explicit CheckedStyleValue(const StyleValue& value);

    GetValueReturnCode_e styleGetLowLevel(const ArgList& args) const;
    SetValueReturnCode_e styleSetLowLevel(const ArgList& args) const;
};

} // namespace toolbox
} // namespace orrery
