#pragma once
#include <istream>
#include <string>

namespace orrery {
namespace kernel {

// Plays journal lines back through the kernel's own operations: style writes
// with the kernel's rules, undo brackets, undo and redo. The first line that
// cannot be played stops the replay; what was played before it stays, as undo
// steps of its own (an open bracket is closed as a step).
class JournalReplayer
{
public:
    struct Result
    {
        bool ok = true;
        int line = 0;        // the line that stopped the replay (1-based), 0 when ok
        int played = 0;      // commands carried out
        std::string message; // why it stopped, naming the source and the line
    };

    // Lines longer than this are refused rather than read into memory; the
    // longest text the kernel takes fits, escaped, with room to spare.
    static const size_t MaxLineLength = 8 << 20;

    // source names the journal in messages (normally its file name).
    static Result replay(std::istream& in, const std::string& source);
    static Result replayFile(const std::string& path);

private:
    // Carries out one line; false with error set when it cannot.
    static bool play(const std::string& line, int& openBrackets, std::string& error);
    static bool playStyle(const std::string& arguments, std::string& error);
};

} // namespace kernel
} // namespace orrery
