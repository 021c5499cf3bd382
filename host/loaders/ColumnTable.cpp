#include "host/loaders/ColumnTable.h"
#include <algorithm>
#include <cstdint>
#include <cstring>
#include <limits>
#include "host/loaders/NumberText.h"
#ifdef __linux__
#include <sys/mman.h>
#endif

namespace orrery {
namespace sdk {

namespace {

// Makes room for the rows, on large pages where the system offers them: a
// large column then fills without a page fault every 4 KiB. The room is not
// touched until rows are added.
void makeRoom(std::vector<double>& values, size_t rows)
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

const char* const ColumnTable::NoRoomReason = "the file changed while it was being read.";

ColumnTable::ColumnTable(std::vector<Kind> kinds, Options options)
    : m_initialKinds(std::move(kinds)), m_options(options)
{}

void ColumnTable::reserve(size_t rows)
{
    m_reserved = rows;
    for (Column& column : m_columns)
        if (!column.elsewhere)
            makeRoom(column.values, rows);
}

ColumnTable ColumnTable::continuation(size_t firstRow, size_t rows)
{
    ColumnTable rest(m_initialKinds, m_options);
    rest.m_fixedRoom = m_fixedRoom = true;
    for (Column& column : m_columns) {
        // From here on rows are written in place, in the room both parts share.
        column.values.resize(std::max(column.values.size(), firstRow + rows));
        column.room = firstRow;
        Column& part = rest.m_columns.emplace_back();
        part.kind = column.kind;
        part.elsewhere = column.values.data() + firstRow;
        part.room = rows;
    }
    return rest;
}

void ColumnTable::join(ColumnTable& continuation)
{
    for (size_t c = 0; c < m_columns.size() && c < continuation.m_columns.size(); ++c) {
        Column& column = m_columns[c];
        const Column& part = continuation.m_columns[c];
        // The part's rows start where this table's room ended; close the gap its unused room left.
        if (part.elsewhere != column.values.data() + column.count)
            std::memmove(column.values.data() + column.count, part.elsewhere, part.count * sizeof(double));
        column.count += part.count;
        column.values.resize(column.count);
    }
    m_missing += continuation.m_missing;
    m_fixedRoom = false;
    continuation.m_columns.clear();
}

bool ColumnTable::put(Column& column, double value)
{
    if (!m_fixedRoom) {
        column.values.push_back(value);
        column.count = column.values.size();
        return true;
    }
    if (column.count == column.room)
        return false;
    (column.elsewhere ? column.elsewhere : column.values.data())[column.count++] = value;
    return true;
}

bool ColumnTable::add(size_t index, std::string_view text, std::string& reason)
{
    if (index >= m_columns.size()) {
        if (m_columns.size() >= MaxColumns || m_fixedRoom) {
            reason = m_fixedRoom ? NoRoomReason : "more than " + std::to_string(MaxColumns) + " columns.";
            return false;
        }
        m_columns.emplace_back();
        Column& added = m_columns.back();
        if (m_columns.size() <= m_initialKinds.size())
            added.kind = m_initialKinds[m_columns.size() - 1];
        makeRoom(added.values, m_reserved);
        index = m_columns.size() - 1;
    }
    Column& column = m_columns[index];
    if (m_options.missingTokens && NumberText::isMissingToken(text)) {
        ++m_missing;
        if (put(column, std::numeric_limits<double>::quiet_NaN()))
            return true;
        reason = NoRoomReason;
        return false;
    }
    switch (column.kind) {
    case Kind::Number: return addNumber(column, text, reason);
    case Kind::Category:
        if (addCategory(column, text))
            return true;
        reason = NoRoomReason;
        return false;
    case Kind::Undecided: break;
    }
    // The first value of a column decides what it holds.
    double value = 0;
    column.kind = NumberText::parse(text, m_options.decimalComma, value) == NumberText::Verdict::Number
                      ? Kind::Number
                      : Kind::Category;
    return add(index, text, reason);
}

bool ColumnTable::addRow(const double* values)
{
    for (Column& column : m_columns)
        if (!put(column, *values++))
            return false;
    return true;
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
    if (put(column, value))
        return true;
    reason = NoRoomReason;
    return false;
}

bool ColumnTable::addCategory(Column& column, std::string_view text)
{
    const auto [entry, added] =
        column.categoryNumbers.emplace(std::string(text), static_cast<double>(column.categories.size() + 1));
    if (added)
        column.categories.emplace_back(text);
    return put(column, entry->second);
}

std::vector<std::vector<double>> ColumnTable::takeValues()
{
    std::vector<std::vector<double>> values;
    values.reserve(m_columns.size());
    for (Column& column : m_columns) {
        column.values.resize(column.count);
        values.push_back(std::move(column.values));
        column.categoryNumbers.clear();
    }
    return values;
}

} // namespace sdk
} // namespace orrery
