#pragma once
#include "platform/PlatformExport.h"
#include "platform/common/ExceptionBase.h"

namespace orrery {

// Thrown when an argument (typically a text to convert) cannot be used.
class ORRERY_PLATFORM_EXPORT InvalidArgumentException : public virtual ExceptionBase
{
public:
    explicit InvalidArgumentException(const std::string& message) : ExceptionBase(message, true) {}
};

} // namespace orrery
