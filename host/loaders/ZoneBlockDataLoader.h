#pragma once
#include <string>
#include "platform/loaders/DataLoaderInterface.h"

namespace orrery {
namespace sdk {

// The host's own zone-block text format (.zbk):
//   TITLE <title>            optional
//   VARIABLES <name> ...     before the first zone
//   ZONE <name>              starts a zone; its points follow, one per line
// Values are separated by spaces or tabs and are all numbers: this format has
// no missing values. Empty lines and lines starting with '#' are skipped.
class ZoneBlockDataLoader : public DataLoaderInterface
{
public:
    Properties properties() const override;
    bool load(const std::string& path, std::string& error) override;

private:
    bool loadZones(const std::string& path, std::string& error);
};

} // namespace sdk
} // namespace orrery
