#pragma once
#include <string>
#include <vector>
#include "platform/loaders/DataLoaderInterface.h"

namespace orrery {
namespace sdk {

// Loads a single table: a header line of variable names, then one line of
// numbers per point, all into one zone named after the file. Empty lines and
// lines starting with '#' are skipped.
class DelimitedTableLoader : public DataLoaderInterface
{
public:
    bool load(const std::string& path, std::string& error) override;

protected:
    virtual std::vector<std::string> split(const std::string& line) const = 0;
};

} // namespace sdk
} // namespace orrery
