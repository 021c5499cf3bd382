#include "host/loaders/TextExcerpt.h"
#include <cstdio>

namespace orrery {
namespace sdk {

namespace {

// Length of the valid UTF-8 sequence at text[i], or 0 when there is none.
size_t utf8Length(std::string_view text, size_t i)
{
    const unsigned char lead = static_cast<unsigned char>(text[i]);
    const size_t length = lead >= 0xF0 && lead <= 0xF4 ? 4 : lead >= 0xE0 ? 3 : lead >= 0xC2 && lead < 0xE0 ? 2 : 0;
    if (length == 0 || i + length > text.size())
        return 0;
    for (size_t k = 1; k < length; ++k)
        if ((static_cast<unsigned char>(text[i + k]) & 0xC0) != 0x80)
            return 0;
    return length;
}

// Appends up to maxChars printable characters; returns how many bytes were used.
size_t appendPrintable(std::string& out, std::string_view text, size_t maxChars)
{
    size_t i = 0;
    for (size_t chars = 0; i < text.size() && chars < maxChars; ++chars) {
        const unsigned char c = static_cast<unsigned char>(text[i]);
        if (c >= 0x20 && c < 0x7F) {
            out += static_cast<char>(c);
            ++i;
        } else if (const size_t length = c >= 0x80 ? utf8Length(text, i) : 0) {
            out.append(text.data() + i, length);
            i += length;
        } else {
            char escaped[8];
            std::snprintf(escaped, sizeof escaped, "\\x%02X", c);
            out += escaped;
            ++i;
        }
    }
    return i;
}

} // namespace

std::string TextExcerpt::printable(std::string_view text)
{
    std::string out;
    appendPrintable(out, text, text.size());
    return out;
}

std::string TextExcerpt::quoted(std::string_view text, size_t maxChars)
{
    std::string out = "\"";
    const size_t used = appendPrintable(out, text, maxChars);
    out += '"';
    if (used < text.size())
        out.insert(out.size() - 1, "...").append(" (" + std::to_string(text.size()) + " characters)");
    return out;
}

} // namespace sdk
} // namespace orrery
