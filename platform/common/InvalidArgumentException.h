#pragma once
#include "platform/common/ExceptionBase.h"

namespace orrery {

// Thrown when an argument (typically a text to convert) cannot be used.
class InvalidArgumentException : public virtual ExceptionBase
{
public:
    explicit InvalidArgumentException(const std::string& message) : ExceptionBase(message, true) {}
};

} // namespace orrery
