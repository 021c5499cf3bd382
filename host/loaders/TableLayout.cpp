#include "host/loaders/TableLayout.h"
#include <set>
#include "host/loaders/FieldTokenizer.h"
#include "host/loaders/NumberText.h"

namespace orrery {
namespace sdk {

namespace {

typedef std::vector<std::vector<std::string>> Records;

// The sample's complete records read with the delimiter, up to the first error.
Records sampleRecords(std::string_view sample, char delimiter)
{
    FieldTokenizer tokenizer(sample, delimiter);
    Records records;
    std::vector<std::string> record;
    FieldTokenizer::Field field;
    while (records.size() < TableLayout::SampleRecords && tokenizer.next(field) == FieldTokenizer::Step::Field) {
        record.emplace_back(field.text);
        if (field.lastInRecord) {
            records.push_back(std::move(record));
            record.clear();
        }
    }
    return records;
}

bool isNumber(const std::string& cell, bool decimalComma)
{
    double value = 0;
    return NumberText::parse(cell, decimalComma, value) == NumberText::Verdict::Number;
}

} // namespace

bool TableLayout::recognise(std::string_view sample, const std::vector<char>& delimiters, TableLayout& layout,
                            std::string& error)
{
    size_t bestScore = 0;
    Records best;
    bool found = false;
    for (char delimiter : delimiters) {
        Records records = sampleRecords(sample, delimiter);
        if (records.empty() || records.front().size() < 2)
            continue;
        size_t score = 0;
        for (const auto& record : records)
            score += record.size() == records.front().size() ? 1 : 0;
        if (score > bestScore) {
            bestScore = score;
            best = std::move(records);
            layout.delimiter = delimiter;
            found = true;
        }
    }
    if (!found) { // one column, or nothing yet: any delimiter reads it alike
        layout.delimiter = delimiters.front();
        best = sampleRecords(sample, layout.delimiter);
    } else if (best.size() >= 3 && bestScore * 2 < best.size()) {
        error = "cannot tell how the values are separated: tried ";
        for (size_t i = 0; i < delimiters.size(); ++i)
            error += (i == 0 ? "" : i + 1 == delimiters.size() ? " and " : ", ") + delimiterName(delimiters[i]);
        error +=
            "; none gives the same number of values on most of the first " + std::to_string(best.size()) + " lines.";
        return false;
    }

    size_t commaNumbers = 0, pointNumbers = 0;
    if (layout.delimiter != ',')
        for (size_t r = 1; r < best.size(); ++r)
            for (const std::string& cell : best[r]) {
                if (cell.find(',') != std::string::npos && isNumber(cell, true))
                    ++commaNumbers;
                if (cell.find('.') != std::string::npos && isNumber(cell, false))
                    ++pointNumbers;
            }
    layout.decimalComma = commaNumbers > pointNumbers;

    layout.header = false;
    if (!best.empty()) {
        bool anyNumber = false, anyName = false;
        for (const std::string& cell : best.front()) {
            anyNumber = anyNumber || isNumber(cell, layout.decimalComma);
            anyName = anyName || !NumberText::isMissingToken(cell);
        }
        layout.header = anyName && !anyNumber;
    }

    // A column whose sample cells are all text holds categories; one number makes it a column of numbers,
    // so that a stray text cell is reported rather than turning the column into categories.
    layout.kinds.assign(best.empty() ? 0 : best.front().size(), ColumnTable::Kind::Undecided);
    for (size_t r = layout.header ? 1 : 0; r < best.size(); ++r)
        for (size_t c = 0; c < best[r].size() && c < layout.kinds.size(); ++c) {
            const std::string& cell = best[r][c];
            if (isNumber(cell, layout.decimalComma))
                layout.kinds[c] = ColumnTable::Kind::Number;
            else if (!NumberText::isMissingToken(cell) && layout.kinds[c] == ColumnTable::Kind::Undecided)
                layout.kinds[c] = ColumnTable::Kind::Category;
        }
    return true;
}

std::string TableLayout::delimiterName(char delimiter)
{
    switch (delimiter) {
    case ',': return "comma";
    case ';': return "semicolon";
    case '\t': return "tab";
    case 0: return "spaces";
    default: return std::string("'") + delimiter + "'";
    }
}

std::string TableLayout::description() const
{
    std::string text = delimiter ? delimiterName(delimiter) + "-separated" : "separated by spaces";
    text += decimalComma ? ", decimal comma" : ", decimal point";
    text += header ? ", header row" : ", no header row";
    return text;
}

std::vector<std::string> TableLayout::columnNames(std::vector<std::string> headerCells, size_t columnCount)
{
    headerCells.resize(columnCount);
    std::set<std::string> taken;
    for (size_t i = 0; i < columnCount; ++i)
        if (headerCells[i].empty())
            headerCells[i] = "V" + std::to_string(i + 1);
    for (std::string& name : headerCells) {
        if (!taken.insert(name).second) {
            std::string unique;
            for (int n = 2; !taken.insert(unique = name + "_" + std::to_string(n)).second; ++n) {
            }
            name = unique;
        }
    }
    return headerCells;
}

} // namespace sdk
} // namespace orrery
