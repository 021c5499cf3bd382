#include "platform/loaders/DelimitedTableLoader.h"
#include <new>
#include <QFile>
#include <QFileInfo>
#include "platform/kernel/Kernel.h"
#include "platform/loaders/ColumnTable.h"
#include "platform/loaders/FieldTokenizer.h"
#include "platform/loaders/FileBlockReader.h"
#include "platform/loaders/PlainNumberRows.h"
#include "platform/loaders/TableLayout.h"

namespace orrery {
namespace sdk {

namespace {

constexpr size_t SampleBytes = 1 << 16;

// The file's first lines, whole lines only unless a line is longer than the sample.
bool readSample(FileBlockReader& file, std::string& sample, std::string& error)
{
    sample.resize(SampleBytes);
    size_t filled = 0;
    for (size_t got = 1; got > 0 && filled < sample.size(); filled += got)
        if (!file.read(&sample[filled], sample.size() - filled, got, error))
            return false;
    sample.resize(filled);
    if (filled == SampleBytes) {
        const size_t lastBreak = sample.find_last_of('\n');
        if (lastBreak != std::string::npos)
            sample.resize(lastBreak + 1);
    }
    return file.rewind(error);
}

std::string where(const std::string& file, size_t line, size_t column)
{
    return file + ", line " + std::to_string(line) + ", column " + std::to_string(column) + ": ";
}

std::string plural(size_t count, const std::string& one, const std::string& many)
{
    return std::to_string(count) + " " + (count == 1 ? one : many);
}

} // namespace

bool DelimitedTableLoader::load(const std::string& path, std::string& error)
{
    try {
        return loadTable(path, error);
    } catch (const std::bad_alloc&) {
        error = "Not enough memory to load " + FileBlockReader::displayName(path) + ".";
    } catch (const std::exception& e) {
        error = "Cannot load " + FileBlockReader::displayName(path) + ": " + e.what();
    }
    return false;
}

bool DelimitedTableLoader::loadTable(const std::string& path, std::string& error)
{
    FileBlockReader file;
    std::string sample;
    size_t lines = 0;
    if (!file.open(path, error) || !file.countLines(lines, error) || !readSample(file, sample, error))
        return false;
    const std::string& name = file.displayName();
    TableLayout layout;
    if (!TableLayout::recognise(sample, delimiters(), layout, error)) {
        error = name + ": " + error;
        return false;
    }
    sample = std::string();

    FieldTokenizer tokenizer(file, layout.delimiter);
    ColumnTable table(layout.kinds, {layout.decimalComma, true});
    table.reserve(lines + 1);
    std::vector<std::string> headerCells;
    size_t columns = 0; // known once the first record has been read
    size_t column = 0;
    bool inHeader = layout.header;
    FieldTokenizer::Field field;
    FieldTokenizer::Step step;
    std::string reason;
    PlainNumberRows plainRows(layout.delimiter, layout.decimalComma);
    bool allNumbers = false; // once every column holds numbers, plain records take the short route
    for (;;) {
        if (allNumbers && column == 0) {
            size_t records = 0;
            const size_t bytes = plainRows.read(tokenizer.bufferedRecords(), table, records);
            tokenizer.skipRecords(bytes, records);
        }
        if ((step = tokenizer.next(field)) != FieldTokenizer::Step::Field)
            break;
        if (columns && column >= columns) {
            size_t count = column + 1;
            while (!field.lastInRecord && tokenizer.next(field) == FieldTokenizer::Step::Field)
                ++count;
            error = where(name, field.line, columns + 1) + plural(count, "value", "values") + " where "
                    + std::to_string(columns) + " were expected.";
            return false;
        }
        if (inHeader) {
            if (headerCells.size() >= ColumnTable::MaxColumns) {
                error = where(name, field.line, field.column) + "more than "
                        + std::to_string(ColumnTable::MaxColumns) + " columns.";
                return false;
            }
            headerCells.emplace_back(field.text);
        } else if (!table.add(column, field.text, reason)) {
            error = where(name, field.line, field.column) + reason;
            return false;
        }
        ++column;
        if (field.lastInRecord) {
            if (columns && column < columns) {
                error = where(name, field.line, column + 1) + plural(column, "value", "values") + " where "
                        + std::to_string(columns) + " were expected.";
                return false;
            }
            columns = column;
            column = 0;
            inHeader = false;
            allNumbers = allNumbers || table.allNumbers();
        }
    }
    if (step == FieldTokenizer::Step::Failed) {
        error = tokenizer.error(name);
        return false;
    }
    if (table.rowCount() == 0) {
        error = name + " holds no rows of values.";
        return false;
    }

    const std::string title = QFileInfo(QFile::decodeName(path.c_str())).completeBaseName().toStdString();
    kernel::DataSet data(title, TableLayout::columnNames(std::move(headerCells), columns));
    std::string notes;
    for (size_t c = 0; c < columns; ++c)
        if (table.kind(c) == ColumnTable::Kind::Category) {
            data.setCategories(static_cast<int>(c + 1), table.categories(c));
            notes += ", " + data.varName(static_cast<int>(c + 1)) + " as " + plural(table.categories(c).size(), "category", "categories");
        }
    if (table.missingCount() > 0)
        notes += ", " + plural(table.missingCount(), "missing value", "missing values");
    data.addZone(title, table.takeValues());
    kernel::Kernel::instance().setDataSet(std::move(data));
    m_summary = layout.description() + notes;
    return true;
}

} // namespace sdk
} // namespace orrery
