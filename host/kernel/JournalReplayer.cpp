#include "host/kernel/JournalReplayer.h"
#include <algorithm>
#include <cerrno>
#include <charconv>
#include <cstring>
#include <fstream>
#include "host/kernel/Journal.h"
#include "host/kernel/Kernel.h"
#include "host/kernel/OrrUtilHost.h"
#include "platform/sdk/AppLock.h"

namespace orrery {
namespace kernel {

namespace {

// Splits "word rest" at the first blank; rest keeps its own blanks.
void splitWord(const std::string& line, std::string& word, std::string& rest)
{
    const size_t end = line.find_first_of(" \t");
    word = line.substr(0, end);
    const size_t next = end == std::string::npos ? std::string::npos : line.find_first_not_of(" \t", end);
    rest = next == std::string::npos ? std::string() : line.substr(next);
}

bool isPrintable(const std::string& line)
{
    for (unsigned char c : line)
        if ((c < 0x20 && c != '\t') || c == 0x7f)
            return false;
    return true;
}

std::string lastErrorOr(const std::string& fallback)
{
    char* text = OrrUtilStyleGetLastErrorString();
    const std::string message = text ? text : fallback;
    OrrUtilStringDealloc(&text);
    return message;
}

// "Path/To/Value" or "Path/To/Value[3]".
bool parseTarget(const std::string& text, toolbox::StringList& names, long& member, std::string& error)
{
    std::string path = text;
    member = -1;
    if (!path.empty() && path.back() == ']') {
        const size_t open = path.rfind('[');
        const char* first = open == std::string::npos ? nullptr : path.data() + open + 1;
        const char* last = path.data() + path.size() - 1;
        if (!first || first == last || std::from_chars(first, last, member).ptr != last || member < 1) {
            error = "\"" + text + "\" does not name a member as [n] with n from 1.";
            return false;
        }
        path.erase(open);
    }
    size_t start = 0;
    while (start <= path.size()) {
        const size_t slash = std::min(path.find('/', start), path.size());
        const std::string name = path.substr(start, slash - start);
        if (name.empty()) {
            error = "\"" + text + "\" is not a style path (names separated by /).";
            return false;
        }
        names.append(name);
        start = slash + 1;
    }
    return true;
}

} // namespace

JournalReplayer::Result JournalReplayer::replayFile(const std::string& path)
{
    std::ifstream in(path, std::ios::binary);
    if (!in) {
        Result result;
        result.ok = false;
        result.message = "Cannot open the journal " + path + ": " + std::strerror(errno);
        return result;
    }
    return replay(in, path);
}

JournalReplayer::Result JournalReplayer::replay(std::istream& in, const std::string& source)
{
    Result result;
    sdk::AppLock lock(sdk::AppLock::ImplicitMacroRecording_Allow);
    int openBrackets = 0;
    std::string line;
    int number = 0;
    auto fail = [&](const std::string& why) {
        result.ok = false;
        result.line = number;
        result.message = source + ", line " + std::to_string(number) + ": " + why;
    };
    while (result.ok) {
        line.clear();
        bool ended = false;
        bool tooLong = false;
        for (int c; (c = in.get()) != std::char_traits<char>::eof();) {
            if (c == '\n') {
                ended = true;
                break;
            }
            if (line.size() == MaxLineLength) {
                tooLong = true;
                break;
            }
            line += static_cast<char>(c);
        }
        if (!ended && !tooLong && line.empty())
            break;
        ++number;
        if (!line.empty() && line.back() == '\r')
            line.pop_back();
        std::string error;
        if (tooLong)
            fail("the line is longer than " + std::to_string(MaxLineLength) + " characters.");
        else if (!isPrintable(line))
            fail("the line holds control characters; this is not a journal.");
        else if (!play(line, openBrackets, error))
            fail(error);
        else if (line.find_first_not_of(" \t") != std::string::npos && line[line.find_first_not_of(" \t")] != '#')
            ++result.played;
    }
    // What was played stays, as undo steps; an open bracket becomes one.
    while (openBrackets-- > 0)
        OrrUtilUndoStateEnd(false, true);
    return result;
}

bool JournalReplayer::play(const std::string& rawLine, int& openBrackets, std::string& error)
{
    const size_t first = rawLine.find_first_not_of(" \t");
    if (first == std::string::npos || rawLine[first] == '#')
        return true;
    std::string command, arguments;
    splitWord(rawLine.substr(first), command, arguments);
    while (!arguments.empty() && (arguments.back() == ' ' || arguments.back() == '\t'))
        arguments.pop_back();

    if (command == "style")
        return playStyle(arguments, error);
    if (command == "begin") {
        std::string rest;
        std::optional<std::string> name;
        if (!arguments.empty() && (!(name = Journal::unquote(arguments, &rest)) || !rest.empty())) {
            error = "begin takes a quoted step name or nothing.";
            return false;
        }
        OrrUtilUndoStateBeginNamed(0, name ? name->c_str() : nullptr);
        ++openBrackets;
        return true;
    }
    if (command == "end") {
        if (openBrackets == 0) {
            error = "end without a begin.";
            return false;
        }
        if (!arguments.empty() && arguments != "unrecorded") {
            error = "end takes nothing or \"unrecorded\".";
            return false;
        }
        --openBrackets;
        OrrUtilUndoStateEnd(false, arguments.empty());
        return true;
    }
    if (command == "undo" || command == "redo") {
        if (!arguments.empty()) {
            error = command + " takes no arguments.";
            return false;
        }
        if (openBrackets > 0) {
            error = command + " inside a begin/end step.";
            return false;
        }
        if (!(command == "undo" ? OrrUtilUndoPerform() : OrrUtilRedoPerform())) {
            error = "there is nothing to " + command + ".";
            return false;
        }
        return true;
    }
    error = "unknown command \"" + command.substr(0, 40) + "\" (expected style, begin, end, undo or redo).";
    return false;
}

bool JournalReplayer::playStyle(const std::string& arguments, std::string& error)
{
    std::string target, valueText;
    splitWord(arguments, target, valueText);
    if (target.empty() || valueText.empty()) {
        error = "style takes a path and a value.";
        return false;
    }
    toolbox::StringList names;
    long member = -1;
    if (!parseTarget(target, names, member, error))
        return false;
    const size_t skip = names.count() > 2 && names[0] == "Frame" ? 2 : 0;
    toolbox::StringList key;
    for (size_t i = skip; i < names.count(); ++i)
        key.append(names[i]);
    Kernel& kernel = Kernel::instance();
    const StyleEntry* entry = kernel.schema().find(key.join("/"));
    if (!entry) {
        error = "unknown style path " + key.join("/") + ".";
        return false;
    }
    const std::optional<StyleDatum> value = Journal::parse(valueText, entry->defaultValue);
    if (!value) {
        static const char* const kinds[] = {"an integer", "a number", "true or false", "a quoted text"};
        error =
            key.join("/") + " takes " + kinds[entry->defaultValue.index()] + ", not " + valueText.substr(0, 40) + ".";
        return false;
    }
    const SetValueReturnCode_e code = kernel.style().write(names, nullptr, member, AssignOp_Equals, *value);
    if (code != SetValue_Ok) {
        error = "the kernel refused " + key.join("/") + " = " + valueText.substr(0, 40) + ": "
                + lastErrorOr("code " + std::to_string(int(code)) + ".");
        return false;
    }
    return true;
}

} // namespace kernel
} // namespace orrery
