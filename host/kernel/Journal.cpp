#include "host/kernel/Journal.h"
#include <cerrno>
#include <charconv>
#include <cstdio>
#include <cstring>
#include <fstream>
#include <system_error>
#include "platform/sdk/AppLock.h"

namespace orrery {
namespace kernel {

namespace {

bool isBlank(char c)
{
    return c == ' ' || c == '\t' || c == '\r';
}

std::string trimmed(const std::string& text)
{
    size_t first = 0, last = text.size();
    while (first < last && isBlank(text[first]))
        ++first;
    while (last > first && isBlank(text[last - 1]))
        --last;
    return text.substr(first, last - first);
}

template <typename T>
std::optional<T> number(const std::string& text)
{
    T value{};
    const char* begin = text.data();
    const char* end = begin + text.size();
    if (begin != end && *begin == '+')
        ++begin;
    const auto [stop, error] = std::from_chars(begin, end, value);
    if (error != std::errc() || stop != end || begin == end)
        return std::nullopt;
    return value;
}

} // namespace

void Journal::clear()
{
    m_lines.clear();
    m_pending.clear();
    m_brackets.clear();
}

bool Journal::recording() const
{
    return !sdk::AppLock::recordingSuppressed();
}

void Journal::add(const std::string& line)
{
    if (!m_brackets.empty()) {
        m_pending.push_back(line);
        return;
    }
    m_lines.push_back(line);
    m_lineAdded(line);
}

void Journal::recordStyle(const toolbox::StringList& prefix, const toolbox::StringList& path, long member,
                          const StyleDatum& value)
{
    if (!recording())
        return;
    std::string target = prefix.empty() ? path.join("/") : prefix.join("/") + "/" + path.join("/");
    if (member > 0)
        target += "[" + std::to_string(member) + "]";
    add("style " + target + " " + format(value));
}

void Journal::recordUndo()
{
    if (recording())
        add("undo");
}

void Journal::recordRedo()
{
    if (recording())
        add("redo");
}

void Journal::beginBracket(const std::string& name)
{
    m_brackets.push_back({name, m_pending.size()});
}

void Journal::endBracket(bool revert, bool record)
{
    if (m_brackets.empty())
        return;
    const Bracket closed = std::move(m_brackets.back());
    m_brackets.pop_back();
    if (revert)
        m_pending.resize(closed.start);
    if (!m_brackets.empty() || m_pending.empty()) // an inner bracket's lines stay, as the enclosing one's
        return;
    std::vector<std::string> lines = std::move(m_pending);
    m_pending.clear();
    add(closed.name.empty() ? "begin" : "begin " + quote(closed.name));
    for (const std::string& line : lines)
        add(line);
    add(record ? "end" : "end unrecorded");
}

bool Journal::save(const std::string& path, std::string& error) const
{
    std::ofstream out(path, std::ios::binary | std::ios::trunc);
    if (out)
        for (const std::string& line : m_lines)
            out << line << '\n';
    out.flush();
    if (!out) {
        error = "Cannot write the journal to " + path + ": " + std::strerror(errno);
        return false;
    }
    return true;
}

std::string Journal::format(const StyleDatum& value)
{
    if (const long* l = std::get_if<long>(&value))
        return std::to_string(*l);
    if (const bool* b = std::get_if<bool>(&value))
        return *b ? "true" : "false";
    if (const double* d = std::get_if<double>(&value)) {
        // Shortest text that reads back as the same double.
        char buffer[64];
        const auto result = std::to_chars(buffer, buffer + sizeof buffer, *d);
        return std::string(buffer, result.ptr);
    }
    return quote(std::get<std::string>(value));
}

std::optional<StyleDatum> Journal::parse(const std::string& raw, const StyleDatum& like)
{
    const std::string text = trimmed(raw);
    switch (like.index()) {
    case 0:
        if (auto l = number<long>(text))
            return StyleDatum(*l);
        break;
    case 1:
        if (auto d = number<double>(text))
            return StyleDatum(*d);
        break;
    case 2:
        if (text == "true" || text == "false")
            return StyleDatum(text == "true");
        break;
    default: {
        std::string rest;
        auto s = unquote(text, &rest);
        if (s && trimmed(rest).empty())
            return StyleDatum(*s);
        break;
    }
    }
    return std::nullopt;
}

// Every control byte is escaped, so that a journal line is one printable line
// whatever a text holds.
std::string Journal::quote(const std::string& text)
{
    static const char* const HexDigits = "0123456789abcdef";
    std::string quoted = "\"";
    for (char c : text) {
        const unsigned char byte = static_cast<unsigned char>(c);
        switch (c) {
        case '"': quoted += "\\\""; break;
        case '\\': quoted += "\\\\"; break;
        case '\n': quoted += "\\n"; break;
        case '\t': quoted += "\\t"; break;
        case '\r': quoted += "\\r"; break;
        default:
            if (byte < 0x20 || byte == 0x7f) {
                quoted += "\\x";
                quoted += HexDigits[byte >> 4];
                quoted += HexDigits[byte & 0xf];
            } else {
                quoted += c;
            }
        }
    }
    return quoted + "\"";
}

std::optional<std::string> Journal::unquote(const std::string& text, std::string* rest)
{
    if (text.empty() || text[0] != '"')
        return std::nullopt;
    std::string value;
    for (size_t i = 1; i < text.size(); ++i) {
        const char c = text[i];
        if (c == '"') {
            if (rest)
                *rest = text.substr(i + 1);
            return value;
        }
        if (c != '\\') {
            value += c;
            continue;
        }
        if (++i == text.size())
            break;
        switch (text[i]) {
        case 'n': value += '\n'; break;
        case 't': value += '\t'; break;
        case 'r': value += '\r'; break;
        case '"':
        case '\\': value += text[i]; break;
        case 'x': {
            unsigned char byte = 0;
            const char* first = text.data() + i + 1;
            if (i + 2 >= text.size() || std::from_chars(first, first + 2, byte, 16).ptr != first + 2)
                return std::nullopt;
            value += static_cast<char>(byte);
            i += 2;
            break;
        }
        default: return std::nullopt;
        }
    }
    return std::nullopt;
}

} // namespace kernel
} // namespace orrery
