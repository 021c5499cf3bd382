#pragma once
#include <functional>
#include <istream>
#include <string>
#include <vector>

namespace orrery {
namespace kernel {

// Plays journal lines back through the kernel's own operations: data files
// loaded again, style writes with the kernel's rules, undo brackets, undo and
// redo. The data files come first: when one is missing, has changed (unless
// accepted) or has no loader any more, nothing is played. Otherwise the first
// line that cannot be played stops the replay; what was played before it stays,
// as undo steps of its own, but a step it stopped inside is taken back whole (a
// step left open at the end of a complete journal is closed as one).
class JournalReplayer
{
public:
    struct Result
    {
        bool ok = true;
        int line = 0;        // the line that stopped the replay (1-based), 0 when ok
        int played = 0;      // commands carried out
        std::string message; // why it stopped, naming the source and the line
        // It stopped where the journal's writer died (see lastLineNeedsEnd):
        // everything complete before that was played.
        bool cutOff = false;
    };

    struct Options
    {
        // Relative file names on load lines are read from here (normally the
        // journal's own folder); empty: the working folder.
        std::string folder;
        // Asked with a message naming the line when a data file's content is not
        // what the journal recorded; true loads it anyway. Unset: refused.
        std::function<bool(const std::string& message)> acceptChangedFile;
        // The journal was being written when its writer died (an autosave): a
        // last line without a line end was cut off and is reported, not played,
        // and a step without its end is taken back.
        bool lastLineNeedsEnd = false;
    };

    // Lines longer than this are refused rather than read into memory; the
    // longest text the kernel takes fits, escaped, with room to spare.
    static const size_t MaxLineLength = 8 << 20;

    // source names the journal in messages (normally its file name).
    static Result replay(std::istream& in, const std::string& source);
    static Result replay(std::istream& in, const std::string& source, const Options& options);
    // Relative file names are read from the journal's folder unless options say otherwise.
    static Result replayFile(const std::string& path);
    static Result replayFile(const std::string& path, Options options);

private:
    class Run;
};

} // namespace kernel
} // namespace orrery
