#pragma once
#include "core/property/PropertyAbstract.h"
#include "core/propertymanager/KernelPropertyHandle.h"

namespace orrery {
namespace sdk {
namespace styleproperties {

/// A property whose value lives in the kernel's style state.
template <typename T>
class KernelPropertyAbstract : public virtual PropertyAbstract<T>, public KernelPropertyHandle
{};

} // namespace styleproperties
} // namespace sdk
} // namespace orrery
