#include "core/property/InvalidPropertyValueException.h"

namespace orrery {

InvalidPropertyValueException::InvalidPropertyValueException(const std::string& message) : ExceptionBase(message, true)
{}

InvalidPropertyValueException::~InvalidPropertyValueException() = default;

} // namespace orrery
