#pragma once
#include "host/loaders/DelimitedTableLoader.h"

namespace orrery {
namespace sdk {

// Comma-, semicolon- or tab-separated tables (.csv) as spreadsheets and
// instruments write them; with semicolons or tabs a decimal comma is read.
class CsvDataLoader : public DelimitedTableLoader
{
public:
    Properties properties() const override;

protected:
    std::vector<char> delimiters() const override;
};

} // namespace sdk
} // namespace orrery
