#pragma once
#include <cstdint>
#include <functional>

namespace orrery {
namespace sdk {

// How a long load tells the host how far it got, and learns that the user
// cancelled it. The host installs one handler; loaders call report() now and
// then (every few megabytes) from the user-interface thread.
class LoadProgress
{
public:
    // done and total in bytes; returns false to cancel the load.
    typedef std::function<bool(std::uint64_t done, std::uint64_t total)> Handler;

    // Returns the handler it replaces.
    static Handler setHandler(Handler handler);
    // True (go on) when no handler is installed or the handler fails.
    static bool report(std::uint64_t done, std::uint64_t total);
};

} // namespace sdk
} // namespace orrery
