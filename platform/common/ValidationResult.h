#pragma once
#include "platform/PlatformExport.h"
#include <string>

namespace orrery {

// Outcome of a validator: valid unless an error text has been set.
class ORRERY_PLATFORM_EXPORT ValidationResult
{
public:
    ValidationResult() = default;
    bool isValid() const { return !m_invalid; }
    const std::string& errorString() const { return m_error; }
    void setErrorString(const std::string& error)
    {
        m_error = error;
        m_invalid = true;
    }

private:
    std::string m_error;
    bool m_invalid = false;
};

} // namespace orrery
