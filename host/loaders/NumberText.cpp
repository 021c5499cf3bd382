#include "host/loaders/NumberText.h"
#include <charconv>
#include <cmath>
#include <cstring>
#include "host/loaders/TextExcerpt.h"

namespace orrery {
namespace sdk {

namespace {

bool equalsIgnoringCase(std::string_view text, const char* word)
{
    const size_t length = std::strlen(word);
    if (text.size() != length)
        return false;
    for (size_t i = 0; i < length; ++i)
        if ((text[i] | 0x20) != word[i])
            return false;
    return true;
}

bool namesNonFinite(std::string_view unsignedText)
{
    return equalsIgnoringCase(unsignedText, "nan") || equalsIgnoringCase(unsignedText, "inf")
           || equalsIgnoringCase(unsignedText, "infinity");
}

} // namespace

NumberText::Verdict NumberText::parse(std::string_view text, bool decimalComma, double& value)
{
    if (!decimalComma && !text.empty()) {
        // The common case at full speed; anything unusual is looked at closely below.
        const bool plus = text[0] == '+';
        const char* begin = text.data() + (plus ? 1 : 0);
        const char* end = text.data() + text.size();
        double parsed = 0;
        const std::from_chars_result result = std::from_chars(begin, end, parsed, std::chars_format::general);
        if (result.ec == std::errc() && result.ptr == end && !(plus && *begin == '-') && std::isfinite(parsed)) {
            value = parsed;
            return Verdict::Number;
        }
    }
    std::string_view digits = text;
    if (!digits.empty() && (digits[0] == '+' || digits[0] == '-'))
        digits.remove_prefix(1);
    // from_chars takes no '+' and would read nan, inf and (after "0") stop at an 'x'.
    if (digits.empty() || digits[0] == '+' || digits[0] == '-')
        return Verdict::NotANumber;
    if (namesNonFinite(digits))
        return Verdict::NotFinite;
    if (digits.size() > 1 && digits[0] == '0' && (digits[1] | 0x20) == 'x')
        return Verdict::Hexadecimal;
    const bool negative = text[0] == '-';

    char local[64];
    const char* begin = digits.data();
    if (decimalComma) {
        if (digits.size() > sizeof local || digits.find('.') != std::string_view::npos)
            return digits.find('.') != std::string_view::npos ? Verdict::WrongDecimalMark : Verdict::NotANumber;
        std::memcpy(local, digits.data(), digits.size());
        for (size_t i = 0; i < digits.size(); ++i)
            if (local[i] == ',')
                local[i] = '.';
        begin = local;
    } else if (digits.find(',') != std::string_view::npos) {
        return Verdict::WrongDecimalMark;
    }
    const char* end = begin + digits.size();
    double parsed = 0;
    const std::from_chars_result result = std::from_chars(begin, end, parsed, std::chars_format::general);
    if (result.ptr != end)
        return Verdict::NotANumber;
    if (result.ec == std::errc::result_out_of_range)
        return Verdict::OutOfRange;
    if (result.ec != std::errc())
        return Verdict::NotANumber;
    value = negative ? -parsed : parsed;
    return Verdict::Number;
}

bool NumberText::isMissingToken(std::string_view text)
{
    if (text.size() > 3)
        return false;
    return text.empty() || text == "-" || equalsIgnoringCase(text, "na") || equalsIgnoringCase(text, "n/a")
           || equalsIgnoringCase(text, "nan");
}

std::string NumberText::explain(std::string_view text, Verdict verdict)
{
    const std::string quoted = TextExcerpt::quoted(text);
    switch (verdict) {
    case Verdict::NotFinite: return quoted + " is not a finite number; only finite decimal numbers are read.";
    case Verdict::Hexadecimal: return quoted + " is hexadecimal; only decimal numbers are read.";
    case Verdict::OutOfRange:
        return quoted + " is out of range: a value must lie within +-1.8e308 and not round to zero.";
    case Verdict::WrongDecimalMark: return quoted + " uses a decimal mark other than the file's.";
    case Verdict::NotANumber:
    case Verdict::Number: break;
    }
    return quoted + " is not a number.";
}

} // namespace sdk
} // namespace orrery
