#include "host/loaders/TextTableDataLoader.h"
#include <QtGlobal>

namespace orrery {
namespace sdk {

DataLoaderInterface::Properties TextTableDataLoader::properties() const
{
    // Shown translated in the loader chooser's context; settings keep this name.
    return {QT_TRANSLATE_NOOP("ChooseLoader", "Text table"),
            "Columns separated by spaces or tabs, with or without a header row",
            {"txt", "dat"}};
}

std::vector<char> TextTableDataLoader::delimiters() const
{
    return {0};
}

} // namespace sdk
} // namespace orrery
