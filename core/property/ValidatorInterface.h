#pragma once
#include "platform/common/ValidationResult.h"

namespace orrery {

template <typename T>
class ValidatorInterface
{
public:
    virtual ValidationResult validate(const T& value) const = 0;
    virtual ~ValidatorInterface() = default;
};

} // namespace orrery
