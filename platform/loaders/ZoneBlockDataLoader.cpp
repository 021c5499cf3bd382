#include "platform/loaders/ZoneBlockDataLoader.h"
#include <utility>
#include "platform/kernel/Kernel.h"
#include "platform/loaders/ColumnTable.h"

namespace orrery {
namespace sdk {

namespace {

// The text after a leading keyword, or false when the line does not start with it.
bool keyword(const std::string& line, const std::string& word, std::string& rest)
{
    if (line.compare(0, word.size(), word) != 0 || (line.size() > word.size() && line[word.size()] != ' '))
        return false;
    const size_t start = line.find_first_not_of(' ', word.size());
    rest = start == std::string::npos ? std::string() : line.substr(start);
    return true;
}

} // namespace

DataLoaderInterface::Properties ZoneBlockDataLoader::properties() const
{
    return {"Zone blocks", "Named zones of points in one text file", {"zbk"}};
}

bool ZoneBlockDataLoader::load(const std::string& path, std::string& error)
{
    std::vector<std::string> lines;
    if (!ColumnTable::readLines(path, lines, error))
        return false;
    std::string title = "Untitled";
    std::vector<std::string> varNames;
    std::vector<std::pair<std::string, ColumnTable>> zones;
    for (size_t i = 0; i < lines.size(); ++i) {
        const std::string where = "Line " + std::to_string(i + 1) + ": ";
        const std::vector<std::string> fields = ColumnTable::splitWhitespace(lines[i]);
        std::string rest;
        if (fields.empty() || fields.front()[0] == '#')
            continue;
        if (keyword(lines[i], "TITLE", rest)) {
            title = rest;
        } else if (keyword(lines[i], "VARIABLES", rest)) {
            if (!zones.empty()) {
                error = where + "VARIABLES must come before the first zone.";
                return false;
            }
            varNames = ColumnTable::splitWhitespace(rest);
        } else if (keyword(lines[i], "ZONE", rest)) {
            if (varNames.empty()) {
                error = where + "a zone starts before the VARIABLES line.";
                return false;
            }
            zones.emplace_back(rest, ColumnTable(varNames.size()));
        } else if (zones.empty()) {
            error = where + "values outside a zone.";
            return false;
        } else if (!zones.back().second.addRow(fields, static_cast<int>(i + 1), error)) {
            return false;
        }
    }
    if (zones.empty()) {
        error = path + " holds no zones.";
        return false;
    }
    kernel::DataSet data(title, varNames);
    for (const auto& [name, table] : zones)
        data.addZone(name, table.columns());
    kernel::Kernel::instance().setDataSet(data);
    return true;
}

} // namespace sdk
} // namespace orrery
