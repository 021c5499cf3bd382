#pragma once
#include <string>
#include <string_view>
#include <vector>
#include "host/loaders/ColumnTable.h"

namespace orrery {
namespace sdk {

// How a table file is written, recognised from its first lines: the field
// delimiter, the decimal mark, whether the first row names the columns, and
// which columns hold text.
class TableLayout
{
public:
    char delimiter = ','; // 0: runs of spaces and tabs
    bool decimalComma = false;
    bool header = false;
    std::vector<ColumnTable::Kind> kinds;

    // Recognises the layout of sample (the file's first lines), trying the
    // delimiters in the order given. False with error saying what was tried
    // when none of them gives rows of equal length.
    static bool recognise(std::string_view sample, const std::vector<char>& delimiters, TableLayout& layout,
                          std::string& error);

    // "semicolon-separated, decimal comma"
    std::string description() const;
    static std::string delimiterName(char delimiter);

    // Names for the columns: the header's cells, V1, V2, ... where there are
    // none, each made unique by a suffix _2, _3, ...
    static std::vector<std::string> columnNames(std::vector<std::string> headerCells, size_t columnCount);

    static constexpr size_t SampleRecords = 50;
};

} // namespace sdk
} // namespace orrery
