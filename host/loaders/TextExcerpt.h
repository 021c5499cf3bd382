#pragma once
#include <string>
#include <string_view>

namespace orrery {
namespace sdk {

// Text from a file made safe to show in a message: short, one line, printable.
class TextExcerpt
{
public:
    // The text with control bytes and bytes that are not UTF-8 written as \xNN.
    static std::string printable(std::string_view text);
    // At most maxChars characters of the text, printable, in double quotes, with
    // "..." and the full length when it was cut.
    static std::string quoted(std::string_view text, size_t maxChars = 40);
};

} // namespace sdk
} // namespace orrery
