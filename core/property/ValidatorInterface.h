#pragma once
#include "platform/common/ValidationResult.h"

namespace orrery {

/// Decides whether a value may be stored in a property; a host supplies one to
/// refuse values with a text the user is shown.
template <typename T>
class ValidatorInterface
{
public:
    /// A valid result, or an invalid one carrying the reason for the user.
    virtual ValidationResult validate(const T& value) const = 0;
    virtual ~ValidatorInterface() = default;
};

} // namespace orrery
