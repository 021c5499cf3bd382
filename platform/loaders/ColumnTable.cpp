#include "platform/loaders/ColumnTable.h"
#include <fstream>
#include <sstream>

namespace orrery {
namespace sdk {

bool ColumnTable::addRow(const std::vector<std::string>& fields, int lineNumber, std::string& error)
{
    const std::string where = "Line " + std::to_string(lineNumber) + ": ";
    if (fields.size() != m_columns.size()) {
        error = where + std::to_string(fields.size()) + " values where " + std::to_string(m_columns.size())
                + " were expected.";
        return false;
    }
    std::vector<double> row;
    for (const std::string& field : fields) {
        size_t used = 0;
        try {
            row.push_back(std::stod(field, &used));
        } catch (const std::exception&) {
            used = 0;
        }
        if (used == 0 || used != field.size()) {
            error = where + "\"" + field + "\" is not a number.";
            return false;
        }
    }
    for (size_t i = 0; i < row.size(); ++i)
        m_columns[i].push_back(row[i]);
    return true;
}

std::vector<std::string> ColumnTable::splitWhitespace(const std::string& line)
{
    std::istringstream stream(line);
    std::vector<std::string> fields;
    for (std::string field; stream >> field;)
        fields.push_back(field);
    return fields;
}

bool ColumnTable::readLines(const std::string& path, std::vector<std::string>& lines, std::string& error)
{
    std::ifstream file(path);
    if (!file) {
        error = "Cannot open " + path + ".";
        return false;
    }
    for (std::string line; std::getline(file, line);) {
        if (!line.empty() && line.back() == '\r')
            line.pop_back();
        lines.push_back(line);
    }
    return true;
}

} // namespace sdk
} // namespace orrery
