// Journals, arbitrary and recorded. Any text replayed on a kernel holding the
// sample data set: no crash or leak; a refusal names a line of the text, and
// the lines before it replay alone to the same state; undo takes everything
// back to the start. And a journal the kernel records while the input drives
// it (writes of every kind of value, brackets kept, unrecorded or taken back,
// undo, redo) replays to the identical state and journal.
#include <cstdint>
#include <cstring>
#include <sstream>
#include <string>
#include <vector>
#include <QCoreApplication>
#include "fuzz/FuzzCheck.h"
#include "host/kernel/Journal.h"
#include "host/kernel/JournalReplayer.h"
#include "host/kernel/Kernel.h"
#include "host/kernel/KernelDriver.h"
#include "host/kernel/OrrUtilHost.h"
#include "platform/sdk/AppLock.h"

namespace {

using orrery::kernel::Journal;
using orrery::kernel::JournalReplayer;
using orrery::kernel::Kernel;
using orrery::kernel::KernelDriver;
using orrery::kernel::StyleDatum;

void fresh()
{
    KernelDriver::resetKernel();
    KernelDriver::loadSampleDataSet();
    Kernel::instance().undoStack().setLimit(1 << 20); // so that undo reaches the start
}

// Every style value of the current frame, as journal text.
std::string fingerprint()
{
    const Kernel& kernel = Kernel::instance();
    std::string out;
    for (const std::string& key : kernel.schema().keys()) {
        const bool perZone = kernel.schema().find(key)->perZone;
        for (long member = perZone ? 1 : 0; member <= (perZone ? kernel.dataSet().numZones() : 0); ++member)
            out += key + "[" + std::to_string(member) + "]=" + Journal::format(kernel.currentStyle(key, member)) + "\n";
    }
    return out;
}

std::string text(const std::vector<std::string>& lines, size_t count)
{
    std::string joined;
    for (size_t i = 0; i < count && i < lines.size(); ++i)
        joined += lines[i] + "\n";
    return joined;
}

JournalReplayer::Result replay(const std::string& journal)
{
    std::istringstream in(journal);
    return JournalReplayer::replay(in, "fuzz");
}

// How many of the lines a refused replay keeps: those before the refused one,
// less a step it stopped inside (taken back whole).
size_t keptLines(const std::vector<std::string>& lines, size_t refused)
{
    int depth = 0;
    size_t stepStart = 0;
    for (size_t i = 0; i < refused && i < lines.size(); ++i) {
        const size_t first = lines[i].find_first_not_of(" \t");
        const std::string word =
            first == std::string::npos ? "" : lines[i].substr(first, lines[i].find_first_of(" \t\r", first) - first);
        if (word == "begin" && depth++ == 0)
            stepStart = i;
        else if (word == "end" && depth > 0)
            --depth;
    }
    return depth > 0 ? stepStart : refused;
}

void arbitraryText(const std::string& input)
{
    fresh();
    const std::string start = fingerprint();
    const JournalReplayer::Result result = replay(input);
    if (!result.ok) {
        std::vector<std::string> lines;
        std::istringstream split(input);
        for (std::string line; std::getline(split, line);)
            lines.push_back(line);
        FUZZ_CHECK(result.line >= 1 && size_t(result.line) <= lines.size() + 1, "refused at line %d of %zu",
                   result.line, lines.size());
        const std::string reached = fingerprint();
        // A data file refused before anything was played leaves the start.
        if (result.played == 0) {
            FUZZ_CHECK(reached == start, "a replay that played nothing changed the state");
            return;
        }
        fresh();
        const JournalReplayer::Result before = replay(text(lines, keptLines(lines, size_t(result.line - 1))));
        FUZZ_CHECK(before.ok, "the lines before the refused one were refused: %s", before.message.c_str());
        FUZZ_CHECK(fingerprint() == reached, "the lines before line %d reach another state", result.line);
    }
    // Writes kept without an undo step cannot be taken back by undo, and a data
    // set loaded starts the undo history afresh.
    for (const char* word : {"unrecorded", "sample", "load"})
        if (input.find(word) != std::string::npos)
            return;
    while (OrrUtilUndoPerform()) {
    }
    FUZZ_CHECK(fingerprint() == start, "undo did not take the replay back to the start");
}

// The input as a program of kernel operations.
class Program
{
public:
    Program(const uint8_t* data, size_t size) : m_data(data), m_size(size) {}

    bool more() const { return m_at < m_size; }
    uint8_t byte() { return m_at < m_size ? m_data[m_at++] : 0; }

    StyleDatum valueLike(const StyleDatum& like)
    {
        switch (like.index()) {
        case 0: return StyleDatum(long(int8_t(byte())));
        case 1: {
            double d = 0;
            uint64_t bits = 0;
            for (int i = 0; i < 8; ++i)
                bits = bits << 8 | byte();
            std::memcpy(&d, &bits, sizeof d);
            return StyleDatum(byte() % 2 ? d : double(int8_t(bits & 0xff)) / 4);
        }
        case 2: return StyleDatum(byte() % 2 == 1);
        default: {
            std::string s;
            for (size_t n = byte() % 12; n > 0; --n)
                s += char(byte());
            return StyleDatum(s);
        }
        }
    }

private:
    const uint8_t* m_data;
    size_t m_size;
    size_t m_at = 0;
};

void recordedJournal(const uint8_t* data, size_t size)
{
    fresh();
    const std::vector<std::string> keys = Kernel::instance().schema().keys();
    Program program(data, size);
    int open = 0;
    {
        orrery::sdk::AppLock lock(orrery::sdk::AppLock::ImplicitMacroRecording_Allow);
        for (int steps = 0; program.more() && steps < 200; ++steps) {
            switch (program.byte() % 8) {
            case 0:
                OrrUtilUndoStateBeginNamed(0, program.byte() % 2 ? "Fuzz step" : nullptr);
                ++open;
                break;
            case 1:
                if (open > 0) {
                    const uint8_t how = program.byte();
                    OrrUtilUndoStateEnd(how % 3 == 0, how % 3 != 1);
                    --open;
                }
                break;
            case 2: OrrUtilUndoPerform(); break;
            case 3: OrrUtilRedoPerform(); break;
            default: {
                const std::string& key = keys[program.byte() % keys.size()];
                const auto* entry = Kernel::instance().schema().find(key);
                orrery::toolbox::StringList path;
                for (size_t start = 0, slash; start <= key.size(); start = slash + 1) {
                    slash = std::min(key.find('/', start), key.size());
                    path.append(key.substr(start, slash - start));
                }
                const long member = entry->perZone ? long(program.byte() % 4) : -1;
                KernelDriver::setStyle(path, program.valueLike(entry->defaultValue), member == 0 ? -1 : member);
            }
            }
        }
        for (; open > 0; --open)
            OrrUtilUndoStateEnd(false, true);
    }
    const std::vector<std::string> lines = Kernel::instance().journal().lines();
    const std::string state = fingerprint();
    fresh();
    const JournalReplayer::Result result = replay(text(lines, lines.size()));
    FUZZ_CHECK(result.ok, "the kernel's own journal was refused: %s", result.message.substr(0, 300).c_str());
    FUZZ_CHECK(fingerprint() == state, "the replay reached another state");
    FUZZ_CHECK(Kernel::instance().journal().lines() == lines, "the replay recorded another journal");
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size)
{
    static int argc = 1;
    static char name[] = "journal-fuzz";
    static char* argv[] = {name, nullptr};
    static QCoreApplication* app = QCoreApplication::instance() ? nullptr : new QCoreApplication(argc, argv);
    (void)app;
    arbitraryText(std::string(reinterpret_cast<const char*>(data), size));
    recordedJournal(data, size);
    return 0;
}
