#pragma once
#include "platform/loaders/DelimitedTableLoader.h"

namespace orrery {
namespace sdk {

// Comma-separated tables (.csv); fields are trimmed, quotes around names dropped.
class CsvDataLoader : public DelimitedTableLoader
{
public:
    Properties properties() const override;

protected:
    std::vector<std::string> split(const std::string& line) const override;
};

} // namespace sdk
} // namespace orrery
