#pragma once
#include "core/CoreExport.h"

namespace orrery {
namespace sdk {
namespace styleproperties {

/// What a style property set does to all its kernel properties at once,
/// whatever their value types: move to another collection member, submit.
class ORRERY_CORE_EXPORT KernelPropertyHandle
{
public:
    /// Points the property at member \a first of the style value's collection (-1 for
    /// none) and re-reads it. \a second is carried for nested collections and is -1 today.
    virtual void setOffsets(long first, long second) = 0;
    /// Writes pending edits to the kernel; immediate properties have none.
    virtual void apply() {}
    virtual ~KernelPropertyHandle() = default;
};

} // namespace styleproperties
} // namespace sdk
} // namespace orrery
