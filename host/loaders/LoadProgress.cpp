#include "host/loaders/LoadProgress.h"

namespace orrery {
namespace sdk {

namespace {
LoadProgress::Handler& installed()
{
    static LoadProgress::Handler handler;
    return handler;
}
} // namespace

LoadProgress::Handler LoadProgress::setHandler(Handler handler)
{
    Handler previous = std::move(installed());
    installed() = std::move(handler);
    return previous;
}

bool LoadProgress::report(std::uint64_t done, std::uint64_t total)
{
    if (!installed())
        return true;
    try {
        return installed()(done, total);
    } catch (...) {
        // A broken progress display must not break the load.
        return true;
    }
}

} // namespace sdk
} // namespace orrery
