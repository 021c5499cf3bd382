#pragma once
#include <string>
#include <string_view>

namespace orrery {
namespace sdk {

// How the loaders read a number, whatever the user's locale: a decimal number
// (optional sign, digits with an optional decimal mark, optional exponent),
// finite and within the range of a double. Subnormal values are kept. Not
// accepted: nan and inf (a missing value has its own spelling in tables),
// hexadecimal, thousands separators.
class NumberText
{
public:
    enum class Verdict
    {
        Number,
        NotANumber,
        NotFinite,
        Hexadecimal,
        OutOfRange,
        WrongDecimalMark
    };

    // Reads the whole text as a number; the decimal mark is ',' when
    // decimalComma is set, '.' otherwise.
    static Verdict parse(std::string_view text, bool decimalComma, double& value);
    // The cells tables use for "no value here": empty, NA, N/A, NaN (any case) and "-".
    static bool isMissingToken(std::string_view text);
    // Why the text was refused, quoting a short excerpt of it.
    static std::string explain(std::string_view text, Verdict verdict);
};

} // namespace sdk
} // namespace orrery
