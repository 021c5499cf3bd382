#include "host/loaders/CsvDataLoader.h"
#include <QtGlobal>

namespace orrery {
namespace sdk {

DataLoaderInterface::Properties CsvDataLoader::properties() const
{
    // Shown translated in the loader chooser's context; settings keep this name.
    return {QT_TRANSLATE_NOOP("ChooseLoader", "CSV table"),
            "Comma-, semicolon- or tab-separated values, with or without a header row",
            {"csv"}};
}

std::vector<char> CsvDataLoader::delimiters() const
{
    // Semicolons before commas: files separated by semicolons use the comma as their decimal mark.
    return {'\t', ';', ',', 0};
}

} // namespace sdk
} // namespace orrery
