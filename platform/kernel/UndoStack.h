#pragma once
#include <string>
#include <vector>
#include "platform/kernel/StyleDatum.h"
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
// own; the writes inside an outermost bracket form one step.
class UndoStack
{
public:
    typedef std::vector<UndoRecord> Step;

    void add(const UndoRecord& record);
    void begin();
    // Closes the innermost bracket and returns the writes to take back (all of
    // the bracket's when revert is set, else none).
    Step end(bool revert, bool record);

    // The step to take back (records in the order written), moved to the redo
    // list; empty when there is nothing to undo.
    Step undo();
    // The step to write again, moved back to the undo list.
    Step redo();
    void clear();

private:
    void push(const Step& step);

    std::vector<Step> m_brackets;
    std::vector<Step> m_done;
    std::vector<Step> m_undone;
};

} // namespace kernel
} // namespace orrery
