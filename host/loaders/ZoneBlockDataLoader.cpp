#include "host/loaders/ZoneBlockDataLoader.h"
#include <QtGlobal>
#include <utility>
#include <vector>
#include "host/kernel/Kernel.h"
#include "host/loaders/ColumnTable.h"
#include "host/loaders/FieldTokenizer.h"
#include "host/loaders/FileBlockReader.h"
#include "host/loaders/LoadGuard.h"

namespace orrery {
namespace sdk {

namespace {

std::string joined(const std::vector<std::string>& words)
{
    std::string text;
    for (const std::string& word : words)
        text += (text.empty() ? "" : " ") + word;
    return text;
}

struct Zone
{
    std::string name;
    ColumnTable table;
};

} // namespace

DataLoaderInterface::Properties ZoneBlockDataLoader::properties() const
{
    // Shown translated in the loader chooser's context; settings keep this name.
    return {QT_TRANSLATE_NOOP("ChooseLoader", "Zone blocks"), "Named zones of points in one text file", {"zbk"}};
}

bool ZoneBlockDataLoader::load(const std::string& path, std::string& error)
{
    return LoadGuard::run(path, error, [&] { return loadZones(path, error); });
}

bool ZoneBlockDataLoader::loadZones(const std::string& path, std::string& error)
{
    FileBlockReader file;
    if (!file.open(path, error))
        return false;
    const std::string& name = file.displayName();
    FieldTokenizer tokenizer(file, 0);
    std::string title = "Untitled";
    std::vector<std::string> varNames;
    std::vector<Zone> zones;
    std::string keyword;
    std::vector<std::string> words; // after the keyword
    size_t column = 0;
    FieldTokenizer::Field field;
    FieldTokenizer::Step step;
    std::string reason;
    size_t keywordLine = 0;
    const auto failAt = [&](size_t line, size_t column, const std::string& what) {
        error = name + ", line " + std::to_string(line) + ", column " + std::to_string(column) + ": " + what;
        return false;
    };
    const auto fail = [&](const std::string& what) { return failAt(field.line, field.column, what); };
    while ((step = tokenizer.next(field)) == FieldTokenizer::Step::Field) {
        if (field.column == 1) {
            keyword.clear();
            words.clear();
            column = 0;
            if (!field.quoted && (field.text == "TITLE" || field.text == "VARIABLES" || field.text == "ZONE"))
                keyword = field.text;
            keywordLine = field.line;
        }
        if (!keyword.empty()) {
            if (field.column > 1) {
                if (words.size() >= ColumnTable::MaxColumns)
                    return fail("more than " + std::to_string(ColumnTable::MaxColumns) + " names.");
                words.emplace_back(field.text);
            }
            if (!field.lastInRecord)
                continue;
            if (keyword == "TITLE") {
                title = joined(words);
            } else if (keyword == "VARIABLES") {
                if (!zones.empty())
                    return failAt(keywordLine, 1, "VARIABLES must come before the first zone.");
                varNames = words;
            } else {
                if (varNames.empty())
                    return failAt(keywordLine, 1, "a zone starts before the VARIABLES line.");
                zones.push_back({joined(words),
                                 ColumnTable(std::vector<ColumnTable::Kind>(varNames.size(), ColumnTable::Kind::Number),
                                             {false, false})});
            }
            continue;
        }
        if (zones.empty())
            return fail("values outside a zone.");
        if (column >= varNames.size())
            return fail("more values than the " + std::to_string(varNames.size()) + " variables.");
        if (!zones.back().table.add(column++, field.text, reason))
            return fail(reason);
        if (field.lastInRecord && column < varNames.size())
            return fail(std::to_string(column) + " values where " + std::to_string(varNames.size())
                        + " were expected.");
    }
    if (step == FieldTokenizer::Step::Failed) {
        error = tokenizer.error(name);
        return false;
    }
    if (zones.empty()) {
        error = name + " holds no zones.";
        return false;
    }
    kernel::DataSet data(title, varNames);
    for (Zone& zone : zones) {
        std::vector<std::vector<double>> values = zone.table.takeValues();
        values.resize(varNames.size()); // a zone without points has no columns yet
        for (std::vector<double>& column : values)
            column.shrink_to_fit();
        data.addZone(zone.name, std::move(values));
    }
    kernel::Kernel::instance().setDataSet(std::move(data));
    return true;
}

} // namespace sdk
} // namespace orrery
