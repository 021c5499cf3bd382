#include "platform/loaders/ColumnTable.h"
#include <cstdint>
#include <limits>
#include "platform/loaders/NumberText.h"
#ifdef __linux__
#include <sys/mman.h>
#endif

namespace orrery {
namespace sdk {

namespace {

// Reserves room for the rows, on large pages where the system offers them: a
// large column then fills without a page fault every 4 KiB.
void reserveColumn(std::vector<double>& values, size_t rows)
{
    values.reserve(rows);
#if defined(__linux__) && defined(MADV_HUGEPAGE)
    constexpr std::uintptr_t LargePage = 2 << 20;
    const auto begin = (reinterpret_cast<std::uintptr_t>(values.data()) + LargePage - 1) & ~(LargePage - 1);
    const auto end = reinterpret_cast<std::uintptr_t>(values.data() + values.capacity()) & ~(LargePage - 1);
    if (end > begin)
        ::madvise(reinterpret_cast<void*>(begin), end - begin, MADV_HUGEPAGE); // only advice: failure is harmless
#endif
}

} // namespace

ColumnTable::ColumnTable(std::vector<Kind> kinds, Options options) : m_initialKinds(std::move(kinds)), m_options(options)
{
}

void ColumnTable::reserve(size_t rows)
{
    m_reserved = rows;
    for (Column& column : m_columns)
        reserveColumn(column.values, rows);
}

bool ColumnTable::add(size_t index, std::string_view text, std::string& reason)
{
    if (index >= m_columns.size()) {
        if (m_columns.size() >= MaxColumns) {
            reason = "more than " + std::to_string(MaxColumns) + " columns.";
            return false;
        }
        m_columns.emplace_back();
        Column& added = m_columns.back();
        if (m_columns.size() <= m_initialKinds.size())
            added.kind = m_initialKinds[m_columns.size() - 1];
        reserveColumn(added.values, m_reserved);
        index = m_columns.size() - 1;
    }
    Column& column = m_columns[index];
    if (m_options.missingTokens && NumberText::isMissingToken(text)) {
        column.values.push_back(std::numeric_limits<double>::quiet_NaN());
        ++m_missing;
        return true;
    }
    switch (column.kind) {
    case Kind::Number:
        return addNumber(column, text, reason);
    case Kind::Category:
        addCategory(column, text);
        return true;
    case Kind::Undecided:
        break;
    }
    // The first value of a column decides what it holds.
    double value = 0;
    column.kind = NumberText::parse(text, m_options.decimalComma, value) == NumberText::Verdict::Number
                      ? Kind::Number
                      : Kind::Category;
    return add(index, text, reason);
}

void ColumnTable::addRow(const double* values)
{
    for (Column& column : m_columns)
        column.values.push_back(*values++);
}

bool ColumnTable::allNumbers() const
{
    for (const Column& column : m_columns)
        if (column.kind != Kind::Number)
            return false;
    return !m_columns.empty();
}

bool ColumnTable::addNumber(Column& column, std::string_view text, std::string& reason)
{
    double value = 0;
    const NumberText::Verdict verdict = NumberText::parse(text, m_options.decimalComma, value);
    if (verdict != NumberText::Verdict::Number) {
        reason = NumberText::explain(text, verdict);
        return false;
    }
    column.values.push_back(value);
    return true;
}

void ColumnTable::addCategory(Column& column, std::string_view text)
{
    const auto [entry, added] =
        column.categoryNumbers.emplace(std::string(text), static_cast<double>(column.categories.size() + 1));
    if (added)
        column.categories.emplace_back(text);
    column.values.push_back(entry->second);
}

std::vector<std::vector<double>> ColumnTable::takeValues()
{
    std::vector<std::vector<double>> values;
    values.reserve(m_columns.size());
    for (Column& column : m_columns) {
        values.push_back(std::move(column.values));
        column.categoryNumbers.clear();
    }
    return values;
}

} // namespace sdk
} // namespace orrery
