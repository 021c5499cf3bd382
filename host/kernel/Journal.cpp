#include "host/kernel/Journal.h"
#include <algorithm>
#include <cerrno>
#include <charconv>
#include <cstdio>
#include <cstring>
#include <filesystem>
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

// Splits off the first blank-separated word of text.
std::string nextWord(std::string& text)
{
    text = trimmed(text);
    const size_t end = std::min(text.find_first_of(" \t"), text.size());
    std::string word = text.substr(0, end);
    text.erase(0, end);
    return word;
}

// A quoted text at the start of text, taken off it.
std::optional<std::string> nextQuoted(std::string& text)
{
    text = trimmed(text);
    std::string rest;
    std::optional<std::string> value = Journal::unquote(text, &rest);
    if (value)
        text = rest;
    return value;
}

// A load line as it reads from a journal saved at folder: a file in that
// folder or below it is named relative to it.
std::string relativeLoad(const std::string& line, const std::filesystem::path& folder)
{
    Journal::FileRecord file;
    std::string error;
    if (line.compare(0, 5, "load ") != 0 || !Journal::parseLoad(line.substr(5), file, error))
        return line;
    const std::filesystem::path relative = std::filesystem::path(file.path).lexically_relative(folder);
    if (relative.empty() || *relative.begin() == "..")
        return line;
    file.path = relative.generic_string();
    return "load " + Journal::formatLoad(file);
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

void Journal::recordLoad(const FileRecord& file)
{
    if (recording())
        add("load " + formatLoad(file));
}

void Journal::recordSample(const std::string& name)
{
    if (recording())
        add("sample " + quote(name));
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
    std::error_code failed;
    const std::filesystem::path folder = std::filesystem::absolute(path, failed).lexically_normal().parent_path();
    std::ofstream out(path, std::ios::binary | std::ios::trunc);
    if (out)
        for (const std::string& line : m_lines)
            out << relativeLoad(line, folder) << '\n';
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

std::string Journal::formatLoad(const FileRecord& file)
{
    return quote(file.path) + " loader " + quote(file.loader) + " size " + std::to_string(file.size) + " sha256 "
           + file.sha256;
}

bool Journal::parseLoad(const std::string& arguments, FileRecord& file, std::string& error)
{
    std::string rest = arguments;
    const std::optional<std::string> path = nextQuoted(rest);
    const bool loaderNamed = nextWord(rest) == "loader";
    const std::optional<std::string> loader = loaderNamed ? nextQuoted(rest) : std::nullopt;
    const bool sized = nextWord(rest) == "size";
    const std::optional<std::uint64_t> size = number<std::uint64_t>(nextWord(rest));
    const bool hashed = nextWord(rest) == "sha256";
    const std::string sha256 = nextWord(rest);
    const bool hex = sha256.size() == 64 && sha256.find_first_not_of("0123456789abcdef") == std::string::npos;
    if (!path || path->empty() || !loader || !sized || !size || !hashed || !hex || !trimmed(rest).empty()) {
        error = "load takes \"FILE\" loader \"LOADER\" size BYTES sha256 HEX.";
        return false;
    }
    file = {*path, *loader, *size, sha256};
    return true;
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
