#include "platform/loaders/CsvDataLoader.h"
#include <sstream>

namespace orrery {
namespace sdk {

namespace {

std::string trimmed(const std::string& field)
{
    const size_t first = field.find_first_not_of(" \t\"");
    if (first == std::string::npos)
        return std::string();
    return field.substr(first, field.find_last_not_of(" \t\"") - first + 1);
}

} // namespace

DataLoaderInterface::Properties CsvDataLoader::properties() const
{
    return {"CSV table", "Comma-separated values with a header row of variable names", {"csv"}};
}

std::vector<std::string> CsvDataLoader::split(const std::string& line) const
{
    std::istringstream stream(line);
    std::vector<std::string> fields;
    for (std::string field; std::getline(stream, field, ',');)
        fields.push_back(trimmed(field));
    return fields;
}

} // namespace sdk
} // namespace orrery
