#pragma once
#include <map>
#include <optional>
#include <string>
#include <vector>
#include "platform/kernel/OrrTypes.h"
#include "host/kernel/StyleEntry.h"
#include "host/kernel/UndoStack.h"
#include "platform/toolbox/StringList.h"

namespace orrery {
namespace toolbox {
class ArgList;
class Set;
} // namespace toolbox
namespace kernel {

class Frame;
class Kernel;

// Reads and writes the style state on behalf of style-value calls: resolves the
// path (optionally prefixed by "Frame", "<position>"), checks type, member and
// rule, stores, records undo and announces.
class StyleAccess
{
public:
    explicit StyleAccess(Kernel& kernel) : m_kernel(kernel) {}

    GetValueReturnCode_e get(const toolbox::ArgList& args) const;
    SetValueReturnCode_e set(const toolbox::ArgList& args);

    GetValueReturnCode_e read(const toolbox::StringList& names, long member, StyleDatum& value) const;
    SetValueReturnCode_e write(const toolbox::StringList& names, const toolbox::Set* members, long first, AssignOp_e op,
                               const StyleDatum& value);
    // Puts back the values before (undoing) or after (redoing) a step.
    void restore(const UndoStack::Step& step, bool undoing);

    // The next write ends with this verdict, whatever its value.
    void forceNextVerdict(const WriteVerdict& verdict) { m_forced = verdict; }
    int writeCount() const { return m_writeTotal; }
    int writeCount(const std::string& key) const;
    // Counters and forced verdict back to their start.
    void reset();

private:
    struct Target
    {
        Frame* frame = nullptr;
        toolbox::StringList path;
        std::string key;
        const StyleEntry* entry = nullptr;
    };

    SetValueReturnCode_e perform(const toolbox::StringList& names, const Target& target, WriteVerdict verdict,
                                 const std::optional<StyleDatum>& value, const toolbox::Set* set, long first,
                                 AssignOp_e op);
    WriteVerdict resolve(const toolbox::StringList& names, Target& target) const;
    WriteVerdict members(const Target& target, const toolbox::Set* set, long first, std::vector<long>& chosen) const;
    WriteVerdict combine(const StyleDatum& old, AssignOp_e op, const StyleDatum& operand, StyleDatum& result) const;
    SetValueReturnCode_e finish(const WriteVerdict& verdict);

    Kernel& m_kernel;
    std::optional<WriteVerdict> m_forced;
    int m_writeTotal = 0;
    std::map<std::string, int> m_writes;
};

} // namespace kernel
} // namespace orrery
