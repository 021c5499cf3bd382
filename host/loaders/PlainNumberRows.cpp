#include "host/loaders/PlainNumberRows.h"
#include <cstdint>
#include "host/loaders/ColumnTable.h"
#include "host/loaders/NumberText.h"

namespace orrery {
namespace sdk {

namespace {

// Powers of ten a double holds exactly.
constexpr double ExactPowers[] = {1e0,  1e1,  1e2,  1e3,  1e4,  1e5,  1e6,  1e7,  1e8,  1e9,  1e10, 1e11,
                                  1e12, 1e13, 1e14, 1e15, 1e16, 1e17, 1e18, 1e19, 1e20, 1e21, 1e22};
constexpr int MaxExactPower = 22;
constexpr std::uint64_t MaxExactInteger = std::uint64_t(1) << 53;

bool isDigit(char c)
{
    return static_cast<unsigned char>(c - '0') < 10;
}

// Appends the digits at p to mantissa; returns how many there were.
size_t takeDigits(const char*& p, const char* end, std::uint64_t& mantissa)
{
    const char* start = p;
    for (; p != end && isDigit(*p); ++p)
        mantissa = mantissa * 10 + static_cast<unsigned>(*p - '0');
    return static_cast<size_t>(p - start);
}

// The short route for the numbers tables are mostly made of: reads
// [sign] digits [mark digits] [e [sign] digits] at cursor, with at most 19
// digits and a value that one multiplication or division by a power of ten
// gives exactly, so that the result equals NumberText::parse's to the last
// bit. True with the value and cursor moved past the number; false, with
// cursor unchanged, for any other text, which NumberText::parse then judges.
bool readShortNumber(const char*& cursor, const char* end, char decimalMark, double& value)
{
    const char* p = cursor;
    const bool negative = p != end && *p == '-';
    if (p != end && (*p == '-' || *p == '+'))
        ++p;
    // 19 digits fit in 64 bits; more are refused below, so a wrapped mantissa is never used.
    std::uint64_t mantissa = 0;
    const size_t whole = takeDigits(p, end, mantissa);
    size_t fraction = 0;
    if (p != end && *p == decimalMark) {
        ++p;
        fraction = takeDigits(p, end, mantissa);
    }
    if (whole + fraction == 0 || whole + fraction > 19)
        return false;
    int exponent = -static_cast<int>(fraction);
    if (p != end && (*p | 0x20) == 'e') {
        ++p;
        const bool negativeExponent = p != end && *p == '-';
        if (p != end && (*p == '-' || *p == '+'))
            ++p;
        std::uint64_t power = 0;
        const size_t powerDigits = takeDigits(p, end, power);
        if (powerDigits == 0 || powerDigits > 4)
            return false;
        exponent += negativeExponent ? -static_cast<int>(power) : static_cast<int>(power);
    }
    double magnitude = 0;
    if (mantissa != 0) {
        if (mantissa > MaxExactInteger || exponent < -MaxExactPower || exponent > MaxExactPower)
            return false;
        magnitude = exponent < 0 ? static_cast<double>(mantissa) / ExactPowers[-exponent]
                                 : static_cast<double>(mantissa) * ExactPowers[exponent];
    }
    value = negative ? -magnitude : magnitude;
    cursor = p;
    return true;
}

} // namespace

PlainNumberRows::PlainNumberRows(char delimiter, bool decimalComma)
    : m_delimiter(delimiter), m_decimalComma(decimalComma)
{}

size_t PlainNumberRows::read(std::string_view text, ColumnTable& table, size_t& records)
{
    records = 0;
    // A comma that both separates and marks decimals splits the cell first,
    // which this route, reading numbers whole, would not do.
    if (table.columnCount() == 0 || (m_decimalComma && m_delimiter == ','))
        return 0;
    m_row.resize(table.columnCount());
    const char* begin = text.data();
    const char* end = begin + text.size();
    const char* cursor = begin;
    for (const char* next = cursor; readRecord(next, end) && table.addRow(m_row.data()); cursor = next)
        ++records;
    return static_cast<size_t>(cursor - begin);
}

bool PlainNumberRows::isSeparator(char c) const
{
    return m_delimiter ? c == m_delimiter : c == ' ' || c == '\t';
}

void PlainNumberRows::skipBlanks(const char*& p, const char* end) const
{
    if (!m_delimiter)
        while (p != end && isSeparator(*p))
            ++p;
}

bool PlainNumberRows::readRecord(const char*& cursor, const char* end)
{
    const char* p = cursor;
    const size_t last = m_row.size() - 1;
    for (size_t column = 0; column <= last; ++column) {
        skipBlanks(p, end);
        if (!readNumber(p, end, m_row[column]) || p == end)
            return false;
        if (column < last) {
            if (!isSeparator(*p++))
                return false;
            continue;
        }
        skipBlanks(p, end);
        if (p != end && *p == '\n') {
            ++p;
        } else if (end - p > 1 && p[0] == '\r' && p[1] == '\n') {
            p += 2;
        } else {
            return false;
        }
    }
    cursor = p;
    return true;
}

bool PlainNumberRows::readNumber(const char*& cursor, const char* end, double& value) const
{
    if (readShortNumber(cursor, end, m_decimalComma ? ',' : '.', value))
        return true;
    // Long or extreme numbers go the full way, judged as the cell they fill.
    const char* p = cursor;
    while (p != end && !isSeparator(*p) && *p != '\n' && *p != '\r')
        ++p;
    if (p == end
        || NumberText::parse(std::string_view(cursor, static_cast<size_t>(p - cursor)), m_decimalComma, value)
               != NumberText::Verdict::Number)
        return false;
    cursor = p;
    return true;
}

} // namespace sdk
} // namespace orrery
