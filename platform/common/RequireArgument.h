#pragma once
#include <string>
#include "platform/common/InvalidArgumentException.h"

namespace orrery {

// Refuses a null pointer where it is handed over, rather than letting it crash
// at first use far from the caller. Returns the pointer for use in initializers.
template <typename Pointer>
const Pointer& requireNonNull(const Pointer& pointer, const char* what)
{
    if (!pointer)
        throw InvalidArgumentException(std::string(what) + " must not be null");
    return pointer;
}

} // namespace orrery
