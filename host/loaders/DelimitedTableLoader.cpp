#include "host/loaders/DelimitedTableLoader.h"
#include <algorithm>
#include <atomic>
#include <future>
#include <memory>
#include <system_error>
#include <thread>
#include <QFile>
#include <QFileInfo>
#include "host/kernel/Kernel.h"
#include "host/loaders/ColumnTable.h"
#include "host/loaders/FieldTokenizer.h"
#include "host/loaders/FileBlockReader.h"
#include "host/loaders/LoadGuard.h"
#include "host/loaders/LoadProgress.h"
#include "host/loaders/TableReader.h"
#include "host/loaders/TableLayout.h"

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
    file.rewind();
    return true;
}

std::string plural(size_t count, const std::string& one, const std::string& many)
{
    return std::to_string(count) + " " + (count == 1 ? one : many);
}

} // namespace

bool DelimitedTableLoader::readInTwoParts(FileBlockReader& file, long long split, size_t firstRows, size_t laterRows,
                                          const TableLayout& layout, ColumnTable& table, TableReader& reader,
                                          const std::atomic<bool>& cancelled, std::string& error)
{
    FileBlockReader laterPart;
    if (!laterPart.share(file, split, FileBlockReader::ToEnd, error))
        return false;
    laterPart.setBlockHook([&cancelled](long long) { return !cancelled; });
    ColumnTable laterTable = table.continuation(firstRows, laterRows);
    TableReader laterReader(laterPart, layout, laterTable, reader.columns());
    const auto readLater = [&laterReader] { return laterReader.read(); };
    std::future<bool> later;
    try {
        later = std::async(std::launch::async, readLater);
    } catch (const std::system_error&) { // no thread to be had: read the parts one after the other
        later = std::async(std::launch::deferred, readLater);
    }
    const bool firstRead = reader.read();
    const bool laterRead = later.get();
    if (!firstRead || !laterRead) {
        error = !firstRead ? reader.error(file.displayName()) : laterReader.error(file.displayName(), reader.lines());
        return false;
    }
    table.join(laterTable);
    return true;
}

bool DelimitedTableLoader::load(const std::string& path, std::string& error)
{
    return LoadGuard::run(path, error, [&] { return loadTable(path, error); });
}

bool DelimitedTableLoader::loadTable(const std::string& path, std::string& error)
{
    FileBlockReader file;
    if (!file.open(path, error))
        return false;
    // A long file may be read in two parts at once, split at the line start nearest its middle.
    long long split = file.size();
    if (file.size() >= m_twoPartsFrom && std::thread::hardware_concurrency() > 1
        && !file.lineStartAfter(file.size() / 2, split, error))
        return false;
    size_t linesBefore = 0, linesAfter = 0;
    bool quotesBefore = false, quotesAfter = false;
    std::string sample;
    if (!file.countLines(0, split, linesBefore, quotesBefore, error)
        || !file.countLines(split, FileBlockReader::ToEnd, linesAfter, quotesAfter, error)
        || !readSample(file, sample, error))
        return false;
    const std::string& name = file.displayName();
    TableLayout layout;
    if (!TableLayout::recognise(sample, delimiters(), layout, error)) {
        error = name + ": " + error;
        return false;
    }
    sample = std::string();

    // The host hears of progress on this thread only; a second part stops once the first is cancelled.
    std::atomic<bool> cancelled{false};
    file.setBlockHook([&file, &cancelled](long long offset) {
        const long long total = file.size();
        const long long done =
            total == 0 || file.end() == FileBlockReader::ToEnd ? offset : offset * total / file.end();
        cancelled = cancelled
                    || !LoadProgress::report(static_cast<std::uint64_t>(std::min(done, total)),
                                             static_cast<std::uint64_t>(total));
        return !cancelled;
    });
    ColumnTable table(layout.kinds, {layout.decimalComma, true});
    // The first half is read up to its first record of values, which tells whether the second half may be read
    // beside it. Quotes could hold a line break across the split, so such files are read in one part.
    bool twoParts = split < file.size() && !quotesBefore && !quotesAfter;
    if (twoParts)
        file.endAt(split);
    auto reader = std::make_unique<TableReader>(file, layout, table);
    if (!reader->read(true)) {
        error = reader->error(name);
        return false;
    }
    if (twoParts && !table.allNumbers()) {
        twoParts = false;
        file.endAt(FileBlockReader::ToEnd);
        if (reader->finished()) { // the first half held no record of values: read the file afresh in one part
            file.rewind();
            table = ColumnTable(layout.kinds, {layout.decimalComma, true});
            reader = std::make_unique<TableReader>(file, layout, table);
        }
    }
    // Room for no more rows than the lines allow, nor than the bytes allow for rows
    // of this many values (each at least a separator or the line's end, even when
    // empty): blank and comment lines must not make a wide table ask for room it
    // never fills.
    const size_t bytesPerRow = std::max<size_t>(reader->columns(), 1);
    const auto rowsIn = [bytesPerRow](size_t lines, long long bytes) {
        return std::min(lines, static_cast<size_t>(bytes) / bytesPerRow + 1);
    };
    const size_t firstRows = rowsIn(linesBefore, split);
    const size_t laterRows = rowsIn(linesAfter + 1, file.size() - split);
    table.reserve(twoParts ? firstRows + laterRows : rowsIn(linesBefore + linesAfter + 1, file.size()));
    if (twoParts ? !readInTwoParts(file, split, firstRows, laterRows, layout, table, *reader, cancelled, error)
                 : !reader->read()) {
        if (!twoParts)
            error = reader->error(name);
        return false;
    }
    if (table.rowCount() == 0) {
        error = name + " holds no rows of values.";
        return false;
    }
    const size_t columns = reader->columns();
    std::vector<std::string>& headerCells = reader->headerCells();

    const std::string title = QFileInfo(QFile::decodeName(path.c_str())).completeBaseName().toStdString();
    kernel::DataSet data(title, TableLayout::columnNames(std::move(headerCells), columns));
    std::string notes;
    for (size_t c = 0; c < columns; ++c)
        if (table.kind(c) == ColumnTable::Kind::Category) {
            data.setCategories(static_cast<int>(c + 1), table.categories(c));
            notes += ", " + data.varName(static_cast<int>(c + 1)) + " as "
                     + plural(table.categories(c).size(), "category", "categories");
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
