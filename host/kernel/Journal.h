#pragma once
#include <cstdint>
#include <optional>
#include <string>
#include <vector>
#include <boost/signals2/signal.hpp>
#include "host/kernel/StyleDatum.h"
#include "platform/toolbox/StringList.h"

namespace orrery {
namespace kernel {

// The host's record of what the user did, one command per line:
//
//   style GlobalRGB/RedChannelVar 4          a style value (frame-prefixed paths
//   style FieldMap/Scatter/Color[2] -6       such as Frame/2/... name a frame;
//   style GlobalScatter/BaseFontFamily "Sans Serif"   [n] names a zone's member)
//   begin "Assign Variables"                 the lines up to "end" are one undo
//   end                                      step ("end unrecorded": no step)
//   undo
//   redo
//   load "data/iris.csv" loader "CSV table" size 177 sha256 9f86...
//                                            a data file read by a loader
//   sample "Sample"                          a built-in data set
//   # a comment
//
// Changes are recorded unless an AppLock that suppresses implicit recording is
// held. The lines of an undo bracket are held back until the outermost bracket
// closes, so a bracket that is taken back leaves no lines.
class Journal
{
public:
    typedef boost::signals2::signal<void(const std::string&)> LineSignal;

    const std::vector<std::string>& lines() const { return m_lines; }
    void clear();

    // A style value changed. prefix: the frame names the write used ("Frame",
    // "2"), empty for the current frame. member 0: not a collection.
    void recordStyle(const toolbox::StringList& prefix, const toolbox::StringList& path, long member,
                     const StyleDatum& value);
    // A data file read by a loader: where, by which loader, and what it held.
    struct FileRecord
    {
        std::string path; // absolute while recorded; relative to the journal's folder when saved inside it
        std::string loader;
        std::uint64_t size = 0;
        std::string sha256; // lower-case hex
    };
    void recordLoad(const FileRecord& file);
    void recordSample(const std::string& name);
    void recordUndo();
    void recordRedo();
    void beginBracket(const std::string& name);
    void endBracket(bool revert, bool record);

    // Writes every line to path, naming the data files that lie in its folder
    // (or below) relative to it, so that a session moves with its data. False,
    // with error naming the file, on failure.
    bool save(const std::string& path, std::string& error) const;

    // Fired for each line as it joins the journal.
    LineSignal& lineAdded() { return m_lineAdded; }

    // The text of a value on a journal line, and back (for a value of the
    // type of like); nullopt when text is not such a value.
    static std::string format(const StyleDatum& value);
    static std::optional<StyleDatum> parse(const std::string& text, const StyleDatum& like);
    static std::string quote(const std::string& text);
    static std::string formatLoad(const FileRecord& file);
    // Reads the arguments of a load line; false with error when they are not one.
    static bool parseLoad(const std::string& arguments, FileRecord& file, std::string& error);
    // Reads a quoted text at the start of text; nullopt when it is not one.
    // rest receives what follows the closing quote.
    static std::optional<std::string> unquote(const std::string& text, std::string* rest = nullptr);

private:
    bool recording() const;
    void add(const std::string& line);

    // An open bracket: where its lines start in m_pending.
    struct Bracket
    {
        std::string name;
        size_t start;
    };

    std::vector<std::string> m_lines;
    // The lines of every open bracket, outermost first, so that closing an inner
    // bracket moves nothing.
    std::vector<std::string> m_pending;
    std::vector<Bracket> m_brackets;
    LineSignal m_lineAdded;
};

} // namespace kernel
} // namespace orrery
