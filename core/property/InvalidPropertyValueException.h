#pragma once
#include "core/CoreExport.h"
#include "platform/common/ExceptionBase.h"

namespace orrery {

/// A value refused by a property's validator or by the kernel; the message is
/// the refusal text exactly as given.
class ORRERY_CORE_EXPORT InvalidPropertyValueException : public virtual ExceptionBase
{
public:
    /// \a message is what the user is shown; it may be empty, then nothing is shown.
    explicit InvalidPropertyValueException(const std::string& message);
    ~InvalidPropertyValueException() override;
};

} // namespace orrery
