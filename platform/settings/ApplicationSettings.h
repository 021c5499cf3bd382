#pragma once
#include "platform/PlatformExport.h"
#include <string>

namespace orrery {
namespace sdk {

// The host's per-user application settings: string values under string keys,
// kept across runs. A host supplies the store and getInstance().
class ORRERY_PLATFORM_EXPORT ApplicationSettings
{
public:
    // The host's store, for the life of the process.
    static ApplicationSettings& getInstance();

    virtual ~ApplicationSettings() = default;
    // Empty for an unknown key.
    virtual std::string getStringValue(const std::string& key) const = 0;
    virtual void depositValue(const std::string& key, const std::string& value) = 0;
};

} // namespace sdk
} // namespace orrery
