#pragma once
#include "host/loaders/DelimitedTableLoader.h"

namespace orrery {
namespace sdk {

// Whitespace-separated tables (.txt, .dat).
class TextTableDataLoader : public DelimitedTableLoader
{
public:
    Properties properties() const override;

protected:
    std::vector<char> delimiters() const override;
};

} // namespace sdk
} // namespace orrery
