#pragma once
#include "platform/PlatformExport.h"
#include <string>
#include <vector>

namespace orrery {
namespace sdk {

// A reader of one file format into the kernel's data set.
class ORRERY_PLATFORM_EXPORT DataLoaderInterface
{
public:
    struct Properties
    {
        std::string name; // unique; what users and settings know the loader by
        std::string description;
        std::vector<std::string> extensions; // lower case, without the dot
        bool hidden = false;                 // not offered to users, only used by name
    };

    virtual ~DataLoaderInterface() = default;
    virtual Properties properties() const = 0;
    // Replaces the data set with the file's contents. On failure returns false,
    // sets error and leaves the data set as it was.
    // path is the file's native name (bytes, not necessarily UTF-8).
    virtual bool load(const std::string& path, std::string& error) = 0;
    // How the last successful load read its file, for the user to see
    // ("semicolon-separated, decimal comma, header row"); may be empty.
    virtual std::string lastLoadSummary() const { return std::string(); }
};

} // namespace sdk
} // namespace orrery
