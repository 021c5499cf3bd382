#include "platform/loaders/TextTableDataLoader.h"
#include "platform/loaders/ColumnTable.h"

namespace orrery {
namespace sdk {

DataLoaderInterface::Properties TextTableDataLoader::properties() const
{
    return {"Text table", "Columns separated by spaces or tabs, with a header row of variable names",
            {"txt", "dat"}};
}

std::vector<std::string> TextTableDataLoader::split(const std::string& line) const
{
    return ColumnTable::splitWhitespace(line);
}

} // namespace sdk
} // namespace orrery
