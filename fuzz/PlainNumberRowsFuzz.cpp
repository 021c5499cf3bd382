// The short route for plain numeric rows: whatever it takes must be whole
// lines of exactly one number per column, and every number it stores must
// equal, to the last bit, what the full number parse makes of the same cell.
// The first byte chooses the delimiter, the decimal mark and the column count.
#include <cstdint>
#include <cstring>
#include <string>
#include <string_view>
#include <vector>

#include "fuzz/FuzzCheck.h"
#include "host/loaders/ColumnTable.h"
#include "host/loaders/NumberText.h"
#include "host/loaders/PlainNumberRows.h"

using orrery::sdk::ColumnTable;
using orrery::sdk::NumberText;
using orrery::sdk::PlainNumberRows;

namespace {

// The cells of one line, split independently of the reader under test.
std::vector<std::string_view> cellsOf(std::string_view line, char delimiter)
{
    std::vector<std::string_view> cells;
    if (delimiter) {
        for (size_t start = 0;;) {
            const size_t stop = line.find(delimiter, start);
            cells.push_back(line.substr(start, stop == std::string_view::npos ? std::string_view::npos : stop - start));
            if (stop == std::string_view::npos)
                return cells;
            start = stop + 1;
        }
    }
    for (size_t at = 0; at < line.size();) {
        const size_t start = line.find_first_not_of(" \t", at);
        if (start == std::string_view::npos)
            break;
        const size_t stop = line.find_first_of(" \t", start);
        cells.push_back(line.substr(start, stop == std::string_view::npos ? std::string_view::npos : stop - start));
        at = stop == std::string_view::npos ? line.size() : stop;
    }
    return cells;
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    if (size < 1)
        return 0;
    const char delimiters[] = {',', ';', '\t', 0};
    const char delimiter = delimiters[data[0] & 3];
    const bool decimalComma = (data[0] >> 2) & 1;
    const size_t columns = ((data[0] >> 3) & 3) + 1;
    const std::string_view text(reinterpret_cast<const char*>(data + 1), size - 1);

    ColumnTable table(std::vector<ColumnTable::Kind>(columns, ColumnTable::Kind::Number), {decimalComma, true});
    std::string reason;
    for (size_t c = 0; c < columns; ++c)
        FUZZ_CHECK(table.add(c, "0", reason), "%s", reason.c_str());
    size_t records = 0;
    const size_t taken = PlainNumberRows(delimiter, decimalComma).read(text, table, records);
    FUZZ_CHECK(taken <= text.size(), "took %zu of %zu bytes", taken, text.size());
    FUZZ_CHECK(taken == 0 || text[taken - 1] == '\n', "stopped inside a line at %zu", taken);
    const std::vector<std::vector<double>> values = table.takeValues();
    FUZZ_CHECK(values.size() == columns && values[0].size() == records + 1, "%zu records, %zu rows", records,
               values[0].size());

    size_t record = 0;
    for (size_t start = 0; start < taken; ++record) {
        const size_t end = text.find('\n', start);
        std::string_view line = text.substr(start, end - start);
        start = end + 1;
        if (!line.empty() && line.back() == '\r')
            line.remove_suffix(1);
        const std::vector<std::string_view> cells = cellsOf(line, delimiter);
        FUZZ_CHECK(cells.size() == columns, "record %zu has %zu cells, not %zu", record, cells.size(), columns);
        for (size_t c = 0; c < columns; ++c) {
            double expected = 0;
            const std::string cell(cells[c]);
            FUZZ_CHECK(NumberText::parse(cell, decimalComma, expected) == NumberText::Verdict::Number,
                       "record %zu took \"%s\", which is no number", record, cell.c_str());
            FUZZ_CHECK(std::memcmp(&expected, &values[c][record + 1], sizeof expected) == 0,
                       "record %zu: \"%s\" read as %.17g, not %.17g", record, cell.c_str(), values[c][record + 1],
                       expected);
        }
    }
    FUZZ_CHECK(record == records, "%zu lines taken for %zu records", record, records);
    return 0;
}
