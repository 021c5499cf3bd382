#pragma once
#include <cstddef>
#include <string_view>
#include <vector>

namespace orrery {
namespace sdk {

class ColumnTable;

// Reads the shape most numeric tables are written in at full speed: records
// of exactly as many decimal numbers as the table has columns, separated by
// one delimiter character (or, with delimiter 0, by runs of spaces and tabs,
// which may also begin and end a record), nothing else in them, each ending
// in LF or CRLF.
// A run stops before the first record of any other shape (quotes, spaces,
// missing or text cells, comments, blank lines, a record cut off by the end
// of the text), which the field-by-field reader then takes and, if need be,
// explains.
class PlainNumberRows
{
public:
    PlainNumberRows(char delimiter, bool decimalComma);

    // Reads whole records from the start of text into table, whose columns
    // must all hold numbers, as long as it has room; returns the bytes they
    // took and sets records.
    size_t read(std::string_view text, ColumnTable& table, size_t& records);

private:
    bool isSeparator(char c) const;
    void skipBlanks(const char*& p, const char* end) const;
    bool readRecord(const char*& cursor, const char* end);
    bool readNumber(const char*& cursor, const char* end, double& value) const;

    char m_delimiter;
    bool m_decimalComma;
    std::vector<double> m_row;
};

} // namespace sdk
} // namespace orrery
