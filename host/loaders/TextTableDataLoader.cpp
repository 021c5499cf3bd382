#include "host/loaders/TextTableDataLoader.h"

namespace orrery {
namespace sdk {

DataLoaderInterface::Properties TextTableDataLoader::properties() const
{
    return {"Text table", "Columns separated by spaces or tabs, with or without a header row", {"txt", "dat"}};
}

std::vector<char> TextTableDataLoader::delimiters() const
{
    return {0};
}

} // namespace sdk
} // namespace orrery
