#pragma once
#include <exception>
#include <string>
#include "platform/PlatformExport.h"

namespace orrery {

// The one door from the library into the host's operations. A host function
// must not throw (see OrrUtil.h); one that does anyway is stopped here, so that
// it can neither end the host nor unwind through Qt's event loop. The fault is
// told once per operation, through the host's message box once the host is
// idle, and the call answers with the neutral value its caller names.
class ORRERY_PLATFORM_EXPORT HostCall
{
public:
    template <typename R, typename Call>
    static R value(const char* operation, R neutral, Call&& call) noexcept
    {
        try {
            return call();
        } catch (const std::exception& e) {
            fault(operation, std::string("failed: ") + e.what());
        } catch (...) {
            fault(operation, "failed with an exception of an unknown kind");
        }
        return neutral;
    }

    template <typename Call>
    static void run(const char* operation, Call&& call) noexcept
    {
        value(operation, 0, [&] {
            call();
            return 0;
        });
    }

    // What a null string from the host means.
    enum class Null
    {
        Empty, // nothing to say (an error text that is not there)
        Fault  // the host owed a text: read as empty and told once
    };
    // A string the host handed over: copied, then released through the host.
    static std::string take(const char* operation, char* text, Null null) noexcept;
    // The string a host operation returns, taken.
    template <typename Call>
    static std::string text(const char* operation, Null null, Call&& call) noexcept
    {
        return take(operation, value(operation, static_cast<char*>(nullptr), call), null);
    }

    // Tells, once per operation, what went wrong with it.
    static void fault(const char* operation, const std::string& what) noexcept;
};

} // namespace orrery

// Calls a host operation through HostCall, naming it by its own text.
#define ORRERY_HOST_CALL(neutral, call) ::orrery::HostCall::value(#call, neutral, [&] { return call; })
// Takes the string a host operation returns; null is HostCall::Null's Empty or Fault.
#define ORRERY_HOST_TEXT(null, call)                                                                                   \
    ::orrery::HostCall::text(#call, ::orrery::HostCall::Null::null, [&] { return call; })
