#pragma once
#include <string>
#include <vector>

namespace orrery {
namespace sdk {

// Numbers read row by row into one column per variable.
class ColumnTable
{
public:
    explicit ColumnTable(size_t columnCount) : m_columns(columnCount) {}

    // Adds a row of number fields; on a wrong field count or a field that is not
    // a number sets error (naming the line) and returns false.
    bool addRow(const std::vector<std::string>& fields, int lineNumber, std::string& error);
    size_t rowCount() const { return m_columns.empty() ? 0 : m_columns.front().size(); }
    const std::vector<std::vector<double>>& columns() const { return m_columns; }

    // Whitespace-separated fields of a line.
    static std::vector<std::string> splitWhitespace(const std::string& line);
    // The file's lines; false with error when it cannot be read.
    static bool readLines(const std::string& path, std::vector<std::string>& lines, std::string& error);

private:
    std::vector<std::vector<double>> m_columns;
};

} // namespace sdk
} // namespace orrery
