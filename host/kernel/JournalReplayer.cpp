#include "host/kernel/JournalReplayer.h"
#include <algorithm>
#include <cerrno>
#include <charconv>
#include <cstring>
#include <filesystem>
#include <fstream>
#include <set>
#include <sys/stat.h>
#include <stdexcept>
#include "host/kernel/FileLoad.h"
#include "host/kernel/Journal.h"
#include "host/kernel/Kernel.h"
#include "host/kernel/OrrUtilHost.h"
#include "host/loaders/FileBlockReader.h"
#include "platform/loaders/DataLoaderRepository.h"
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

bool playStyle(const std::string& arguments, std::string& error)
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

enum class Read
{
    Line,
    End,
    TooLong,
    CutOff
};

Read readLine(std::istream& in, std::string& line, bool lastLineNeedsEnd)
{
    line.clear();
    for (int c; (c = in.get()) != std::char_traits<char>::eof();) {
        if (c == '\n') {
            if (!line.empty() && line.back() == '\r')
                line.pop_back();
            return Read::Line;
        }
        if (line.size() == JournalReplayer::MaxLineLength)
            return Read::TooLong;
        line += static_cast<char>(c);
    }
    if (line.empty())
        return Read::End;
    return lastLineNeedsEnd ? Read::CutOff : Read::Line;
}

// The command word of a line and its arguments; an empty command for a blank
// line or a comment.
void commandOf(const std::string& line, std::string& command, std::string& arguments)
{
    command.clear();
    arguments.clear();
    const size_t first = line.find_first_not_of(" \t");
    if (first == std::string::npos || line[first] == '#')
        return;
    splitWord(line.substr(first), command, arguments);
    while (!arguments.empty() && (arguments.back() == ' ' || arguments.back() == '\t'))
        arguments.pop_back();
}

} // namespace

// One replay: the brackets it opened, the files it checked.
class JournalReplayer::Run
{
public:
    Run(const std::string& source, const Options& options) : m_source(source), m_options(options) {}

    // Lines are played as they are read, so that a journal of any length
    // takes no more memory than its longest line.
    Result replay(std::istream& in)
    {
        const std::istream::pos_type start = in.tellg();
        if (start != std::istream::pos_type(-1)) {
            if (!checkLoads(in))
                return m_result;
            in.clear();
            in.seekg(start);
        }
        sdk::AppLock lock(sdk::AppLock::ImplicitMacroRecording_Allow);
        std::string line, command, arguments, error;
        int number = 0;
        for (Read read; m_result.ok && (read = readLine(in, line, m_options.lastLineNeedsEnd)) != Read::End;) {
            ++number;
            const std::string fault = faultOf(read, line);
            if (!fault.empty()) {
                fail(number, fault);
                m_result.cutOff = read == Read::CutOff;
                break;
            }
            commandOf(line, command, arguments);
            if (command.empty())
                continue;
            if (!play(number, command, arguments, error))
                fail(number, error);
            else
                ++m_result.played;
        }
        if (m_result.ok && m_openBrackets > 0 && m_options.lastLineNeedsEnd) {
            fail(m_stepLine, "the step begun here has no end; it was taken back.");
            m_result.cutOff = true;
        }
        // A step the replay stopped inside is taken back whole; one a complete
        // journal leaves open is closed as a step.
        if (!m_result.ok && m_openBrackets > 0)
            m_result.played = m_playedBeforeStep;
        for (; m_openBrackets > 0; --m_openBrackets)
            OrrUtilUndoStateEnd(!m_result.ok, m_result.ok);
        return m_result;
    }

private:
    static std::string faultOf(Read read, const std::string& line)
    {
        if (read == Read::TooLong)
            return "the line is longer than " + std::to_string(MaxLineLength) + " characters.";
        if (read == Read::CutOff)
            return "the line was cut off while it was written; it was not played.";
        if (!isPrintable(line))
            return "the line holds control characters; this is not a journal.";
        return std::string();
    }

    Result fail(int line, const std::string& why)
    {
        m_result.ok = false;
        m_result.line = line;
        m_result.message = m_source + ", line " + std::to_string(line) + ": " + why;
        return m_result;
    }

    bool acceptChanged(int line, const std::string& why) const
    {
        return m_options.acceptChangedFile
               && m_options.acceptChangedFile(m_source + ", line " + std::to_string(line) + ": " + why);
    }

    // What a load line names: the file as recorded, where it is now, and its loader.
    struct LoadLine
    {
        Journal::FileRecord recorded;
        std::string path;
        sdk::DataLoaderRepository::LoaderPtr loader;
    };

    // The file a load line names, and its loader; false with error when the loader is gone.
    bool resolve(const std::string& arguments, LoadLine& load, std::string& error)
    {
        if (!Journal::parseLoad(arguments, load.recorded, error))
            return false;
        std::filesystem::path named(load.recorded.path);
        if (named.is_relative() && !m_options.folder.empty())
            named = std::filesystem::path(m_options.folder) / named;
        load.path = named.string();
        if (!(load.loader = sdk::DataLoaderRepository::getInstance().loaderNamed(load.recorded.loader))) {
            error = "the loader \"" + load.recorded.loader + "\" for " + load.path + " is not installed.";
            return false;
        }
        return true;
    }

    // Before anything is played, every load line's file is checked as far as
    // it can be without reading it: its loader, its kind and its size. Its
    // content is checked as it is loaded.
    bool checkLoads(std::istream& in)
    {
        std::string line, command, arguments, error;
        int number = 0;
        for (Read read; (read = readLine(in, line, m_options.lastLineNeedsEnd)) != Read::End;) {
            ++number;
            if (!faultOf(read, line).empty())
                return true; // the replay stops there, after the lines before it
            commandOf(line, command, arguments);
            if (command == "load" && !checkLoad(number, arguments, error)) {
                fail(number, error);
                return false;
            }
        }
        return true;
    }

    bool checkLoad(int line, const std::string& arguments, std::string& error)
    {
        LoadLine load;
        if (!resolve(arguments, load, error))
            return false;
        const Journal::FileRecord& recorded = load.recorded;
        const std::string& path = load.path;
        sdk::FileBlockReader file;
        std::string why;
        if (!file.open(path, why)) {
            error = file.missing() ? "the data file " + path + " is missing." : why;
            return false;
        }
        const std::uint64_t size = static_cast<std::uint64_t>(file.size());
        if (size == recorded.size)
            return true;
        error = FileLoad::changedText(path, recorded.size, size);
        if (!acceptChanged(line, error))
            return false;
        m_acceptedLines.insert(line);
        return true;
    }

    bool playLoad(int line, const std::string& arguments, std::string& error)
    {
        LoadLine load;
        if (!resolve(arguments, load, error))
            return false;
        const Journal::FileRecord& recorded = load.recorded;
        const std::string& path = load.path;
        bool changed = false;
        FileLoad::Expected expected;
        expected.size = recorded.size;
        expected.sha256 = recorded.sha256;
        expected.acceptChanged = [&](const std::string& why) {
            changed = true;
            return acceptChanged(line, why);
        };
        std::string why;
        if (FileLoad::load(*load.loader, path, why, m_acceptedLines.count(line) ? nullptr : &expected))
            return true;
        error = changed ? why : "cannot load " + path + ": " + why;
        return false;
    }

    bool play(int line, const std::string& command, const std::string& arguments, std::string& error)
    {
        if (command == "style")
            return playStyle(arguments, error);
        if (command == "begin") {
            std::string rest;
            std::optional<std::string> name;
            if (!arguments.empty() && (!(name = Journal::unquote(arguments, &rest)) || !rest.empty())) {
                error = "begin takes a quoted step name or nothing.";
                return false;
            }
            if (m_openBrackets++ == 0) {
                m_stepLine = line;
                m_playedBeforeStep = m_result.played;
            }
            OrrUtilUndoStateBeginNamed(0, name ? name->c_str() : nullptr);
            return true;
        }
        if (command == "end") {
            if (m_openBrackets == 0) {
                error = "end without a begin.";
                return false;
            }
            if (!arguments.empty() && arguments != "unrecorded") {
                error = "end takes nothing or \"unrecorded\".";
                return false;
            }
            --m_openBrackets;
            OrrUtilUndoStateEnd(false, arguments.empty());
            return true;
        }
        if (m_openBrackets > 0 && command != "style") {
            error = command + " inside a begin/end step.";
            return false;
        }
        if (command == "undo" || command == "redo") {
            if (!arguments.empty()) {
                error = command + " takes no arguments.";
                return false;
            }
            if (!(command == "undo" ? OrrUtilUndoPerform() : OrrUtilRedoPerform())) {
                error = "there is nothing to " + command + ".";
                return false;
            }
            return true;
        }
        if (command == "load")
            return playLoad(line, arguments, error);
        if (command == "sample") {
            std::string rest;
            const std::optional<std::string> name = Journal::unquote(arguments, &rest);
            try {
                if (name && rest.empty()) {
                    FileLoad::loadSample(*name);
                    return true;
                }
            } catch (const std::invalid_argument&) {
                error = "there is no built-in data set " + arguments + ".";
                return false;
            }
            error = "sample takes the quoted name of a built-in data set.";
            return false;
        }
        error = "unknown command \"" + command.substr(0, 40)
                + "\" (expected style, begin, end, undo, redo, load or sample).";
        return false;
    }

    std::string m_source;
    const Options& m_options;
    std::set<int> m_acceptedLines; // load lines whose changed file the user accepted before the replay
    Result m_result;
    int m_openBrackets = 0;
    int m_stepLine = 0;         // where the outermost open step began
    int m_playedBeforeStep = 0; // commands played before it
};

JournalReplayer::Result JournalReplayer::replayFile(const std::string& path)
{
    return replayFile(path, Options());
}

JournalReplayer::Result JournalReplayer::replayFile(const std::string& path, Options options)
{
    Result result;
    result.ok = false;
    // A pipe or device in a journal's place would block the open or never end.
    struct stat status
    {};
    if (::stat(path.c_str(), &status) == 0 && !S_ISREG(status.st_mode)) {
        result.message = "Cannot open the journal " + path + ": it is "
                         + (S_ISDIR(status.st_mode) ? "a folder" : "not a regular file") + ".";
        return result;
    }
    std::ifstream in(path, std::ios::binary);
    if (!in) {
        result.message = "Cannot open the journal " + path + ": " + std::strerror(errno);
        return result;
    }
    if (options.folder.empty())
        options.folder = std::filesystem::path(path).parent_path().string();
    return replay(in, path, options);
}

JournalReplayer::Result JournalReplayer::replay(std::istream& in, const std::string& source)
{
    return replay(in, source, Options());
}

JournalReplayer::Result JournalReplayer::replay(std::istream& in, const std::string& source, const Options& options)
{
    return Run(source, options).replay(in);
}

} // namespace kernel
} // namespace orrery
