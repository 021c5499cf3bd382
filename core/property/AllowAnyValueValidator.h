#pragma once
#include "core/property/ValidatorInterface.h"

namespace orrery {

/// The default validator: every value is valid.
template <typename T>
class AllowAnyValueValidator : public virtual ValidatorInterface<T>
{
public:
    /// Always a valid result.
    ValidationResult validate(const T&) const override { return ValidationResult(); }
};

} // namespace orrery
