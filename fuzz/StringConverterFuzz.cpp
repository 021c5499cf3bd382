// The text conversion of text fields, for every type it supports: whatever the
// text, it converts or throws InvalidArgumentException, and a converted number
// equals an independent parse of the same text.
#include <cerrno>
#include <charconv>
#include <cctype>
#include <cmath>
#include <cstdint>
#include <cstdlib>
#include <cstring>
#include <limits>
#include <string>

#include "core/propertybindings/intern/StringConverter.h"
#include "fuzz/FuzzCheck.h"

using orrery::InvalidArgumentException;
using orrery::sdk::ui::dialogs::propertybindings::intern::StringConverter;

namespace {

template <typename T>
bool converts(const std::string& text, T& value)
{
    try {
        StringConverter(text).convert(value);
        return true;
    } catch (const InvalidArgumentException&) {
        return false;
    }
}

// Decimal integer at the start of the text, optional sign, no leading blanks;
// trailing characters end it. False when there are no digits or it is out of range.
template <typename T>
bool parseInteger(const std::string& text, T& value)
{
    const char* begin = text.c_str();
    const char* end = begin + text.size();
    bool negative = false;
    if (begin != end && (*begin == '+' || *begin == '-'))
        negative = *begin++ == '-';
    if (begin == end || !std::isdigit(static_cast<unsigned char>(*begin)))
        return false;
    // Up to 2^64 - 1, enough for every type checked here, the most negative long included.
    unsigned long long magnitude = 0;
    const unsigned long long limit = std::numeric_limits<unsigned long long>::max();
    for (; begin != end && std::isdigit(static_cast<unsigned char>(*begin)); ++begin) {
        const unsigned digit = static_cast<unsigned>(*begin - '0');
        if (magnitude > (limit - digit) / 10)
            return false;
        magnitude = magnitude * 10 + digit;
    }
    const unsigned long long largest = negative
                                           ? static_cast<unsigned long long>(-(std::numeric_limits<T>::min() + 1)) + 1
                                           : static_cast<unsigned long long>(std::numeric_limits<T>::max());
    if (magnitude > largest)
        return false;
    const long long signedValue = negative ? (magnitude == 0 ? 0 : -static_cast<long long>(magnitude - 1) - 1)
                                           : static_cast<long long>(magnitude);
    value = static_cast<T>(signedValue);
    return true;
}

template <typename T>
void checkInteger(const std::string& text)
{
    T converted{};
    T parsed{};
    const bool ok = converts(text, converted);
    const bool expected = parseInteger(text, parsed);
    FUZZ_CHECK(ok == expected, "\"%s\": converter %s, independent parse %s", text.c_str(), ok ? "took it" : "refused",
               expected ? "took it" : "refused");
    if (ok)
        FUZZ_CHECK(converted == parsed, "\"%s\": %lld against %lld", text.c_str(), static_cast<long long>(converted),
                   static_cast<long long>(parsed));
}

bool isPlainDecimal(const std::string& text)
{
    // -?digits(.digits)?, short enough to be exact in both parsers' rounding
    size_t i = text[0] == '-' ? 1 : 0;
    const size_t firstDigit = i;
    while (i < text.size() && std::isdigit(static_cast<unsigned char>(text[i])))
        ++i;
    if (i == firstDigit)
        return false;
    if (i < text.size() && text[i] == '.') {
        const size_t fraction = ++i;
        while (i < text.size() && std::isdigit(static_cast<unsigned char>(text[i])))
            ++i;
        if (i == fraction)
            return false;
    }
    return i == text.size() && text.size() <= 40;
}

void checkDouble(const std::string& text)
{
    double converted = 0;
    const bool ok = converts(text, converted);
    // A plain decimal number is always taken.
    if (!text.empty() && isPlainDecimal(text))
        FUZZ_CHECK(ok, "\"%s\" is a plain decimal number but was refused", text.c_str());
    if (!ok)
        return;
    FUZZ_CHECK(!std::isnan(converted), "\"%s\" converted to NaN", text.c_str());
    const char* begin = text.c_str();
    if (*begin == '+')
        ++begin;
    double parsed = 0;
    const std::from_chars_result result = std::from_chars(begin, text.c_str() + text.size(), parsed);
    if (result.ec == std::errc())
        FUZZ_CHECK(converted == parsed, "\"%s\": %.17g against %.17g", text.c_str(), converted, parsed);
    else
        FUZZ_CHECK(result.ec == std::errc::result_out_of_range, "\"%s\" converted to %.17g but does not parse",
                   text.c_str(), converted);
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size)
{
    const std::string text(reinterpret_cast<const char*>(data), size);
    checkInteger<short>(text);
    checkInteger<int>(text);
    checkInteger<long>(text);
    checkDouble(text);
    std::string copy;
    FUZZ_CHECK(converts(text, copy) && copy == text, "a text does not convert to itself");
    // A type without a text form is refused, never misread.
    bool flag = false;
    FUZZ_CHECK(!converts(text, flag), "a bool was converted from text");
    return 0;
}
