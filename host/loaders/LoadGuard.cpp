#include "host/loaders/LoadGuard.h"
#include <exception>
#include <new>
#include "host/loaders/FileBlockReader.h"

namespace orrery {
namespace sdk {

bool LoadGuard::run(const std::string& path, std::string& error, const std::function<bool()>& load)
{
    try {
        return load();
    } catch (const std::bad_alloc&) {
        error = "Not enough memory to load " + FileBlockReader::displayName(path) + ".";
    } catch (const std::exception& e) {
        error = "Cannot load " + FileBlockReader::displayName(path) + ": " + e.what();
    }
    return false;
}

} // namespace sdk
} // namespace orrery
