#include "platform/common/ExceptionBase.h"

namespace orrery {

ExceptionBase::ExceptionBase(const std::string& message, bool withTrace)
    : std::runtime_error(message), m_withTrace(withTrace)
{}

ExceptionBase::~ExceptionBase() = default;

void ExceptionBase::printStackTrace() const
{
    printStackTrace(stderr);
}

void ExceptionBase::printStackTrace(FILE* out) const
{
    std::fprintf(out, "exception: %s\n", what());
}

} // namespace orrery
