#pragma once
#include <functional>
#include <string>

namespace orrery {
namespace sdk {

// Runs a load so that no exception leaves it: running out of memory, or
// anything else thrown, becomes a message naming the file.
class LoadGuard
{
public:
    static bool run(const std::string& path, std::string& error, const std::function<bool()>& load);
};

} // namespace sdk
} // namespace orrery
