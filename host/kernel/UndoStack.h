#pragma once
#include <deque>
#include <string>
#include <boost/signals2/signal.hpp>
#include <vector>
#include "host/kernel/StyleDatum.h"
#include "platform/toolbox/StringList.h"

namespace orrery {
namespace kernel {

// One style value changed by one write.
struct UndoRecord
{
    long frameID;
    toolbox::StringList path; // the style path proper (no frame prefix)
    long member;
    StyleDatum before;
    StyleDatum after;
};

// Undoable steps of style writes. A write outside any bracket is a step of its
// own; the writes inside an outermost bracket form one step. Only the newest
// steps are kept, up to a limit.
class UndoStack
{
public:
    typedef std::vector<UndoRecord> Step;
    static constexpr size_t DefaultLimit = 1000;
    // More steps than a setting may ask for: each keeps the values it changed.
    static constexpr size_t MostSteps = 1000000;
    // The limit a setting's text asks for: a whole number from 1 to MostSteps;
    // otherwise DefaultLimit, with problem saying why.
    static size_t limitFromSetting(const std::string& text, std::string& problem);

    void add(const UndoRecord& record);
    // name: what the step is called in an Edit menu ("Assign Variables"); an
    // inner bracket's name is dropped, the outermost one names the step.
    void begin(const std::string& name = std::string());
    // Closes the innermost bracket and returns the writes to take back (all of
    // the bracket's when revert is set, else none).
    Step end(bool revert, bool record);

    // The step to take back (records in the order written), moved to the redo
    // list; empty when there is nothing to undo.
    Step undo();
    // The step to write again, moved back to the undo list.
    Step redo();
    void clear();
    // Keeps at most this many steps to undo (at least one), dropping the oldest.
    void setLimit(size_t steps);
    size_t limit() const { return m_limit; }
    // True while a bracket is open: its writes are not a step yet.
    bool bracketOpen() const { return !m_brackets.empty(); }

    // Names of the steps that undo() and redo() would take; empty when there is
    // none.
    std::string undoName() const;
    std::string redoName() const;
    // Fired whenever the steps to undo or redo change.
    boost::signals2::signal<void()>& changedSignal() { return m_changed; }

private:
    struct Named
    {
        Step records;
        std::string name;
    };
    // An open bracket: where its records start in m_pending.
    struct Bracket
    {
        size_t start;
        std::string name;
    };
    void push(Named step);
    // Moves the newest step of from to to and returns its records (none when from is empty).
    Step moveNewest(std::deque<Named>& from, std::deque<Named>& to);
    static std::string nameFor(const UndoRecord& record);

    // The records of every open bracket, outermost first, so that closing an
    // inner bracket moves nothing.
    Step m_pending;
    std::vector<Bracket> m_brackets;
    std::deque<Named> m_done;
    std::deque<Named> m_undone;
    size_t m_limit = DefaultLimit;
    boost::signals2::signal<void()> m_changed;
};

} // namespace kernel
} // namespace orrery
