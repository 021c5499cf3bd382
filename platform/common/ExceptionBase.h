#pragma once
#include "platform/PlatformExport.h"
#include <cstdio>
#include <stdexcept>
#include <string>

namespace orrery {

// Root of the host's exceptions. The flag says whether the call stack at the
// throw point is worth printing (printStackTrace prints the message otherwise).
class ORRERY_PLATFORM_EXPORT ExceptionBase : public std::runtime_error
{
public:
    ExceptionBase(const std::string& message, bool withTrace);
    ~ExceptionBase() override;
    void printStackTrace() const;
    void printStackTrace(FILE* out) const;
    bool withTrace() const { return m_withTrace; }

private:
    bool m_withTrace;
};

} // namespace orrery
