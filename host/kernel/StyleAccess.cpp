#include "host/kernel/StyleAccess.h"
#include <charconv>
#include <cmath>
#include <limits>
#include <algorithm>
#include <boost/format.hpp>
#include "host/kernel/Kernel.h"
#include "host/kernel/StyleNameRegistry.h"
#include "platform/toolbox/ArgList.h"
#include "platform/toolbox/Set.h"

namespace orrery {
namespace kernel {

namespace {

const char* const FramePrefix = "Frame";

std::optional<toolbox::StringList> namesFromIDs(const toolbox::ArgList& args)
{
    const auto* ids = args.find<std::vector<long>>("IDs");
    if (!ids)
        return std::nullopt;
    toolbox::StringList names;
    for (long id : *ids) {
        if (id == -1)
            break;
        const std::string* name = StyleNameRegistry::instance().nameOf(id);
        names.append(name ? *name : "<id " + std::to_string(id) + ">");
    }
    return names;
}

const char* typeName(StyleType type)
{
    switch (type) {
    case StyleType::Long: return "an integer";
    case StyleType::Double: return "a number";
    case StyleType::Bool: return "a true/false";
    case StyleType::String: return "a text";
    }
    return "";
}

// Integers are stored as long but used as int everywhere (colours, variables,
// sizes); numbers are finite; a text must fit on a journal line.
WriteVerdict withinType(const StyleDatum& value)
{
    constexpr size_t LongestText = 1 << 20;
    if (const long* l = std::get_if<long>(&value)) {
        if (*l < std::numeric_limits<int>::min() || *l > std::numeric_limits<int>::max())
            return WriteVerdict::refuse(std::to_string(*l) + " is out of range: whole numbers lie between "
                                        + std::to_string(std::numeric_limits<int>::min()) + " and "
                                        + std::to_string(std::numeric_limits<int>::max()) + ".");
    } else if (const double* d = std::get_if<double>(&value)) {
        if (!std::isfinite(*d))
            return WriteVerdict::refuse("Style values are finite numbers.");
    } else if (const std::string* text = std::get_if<std::string>(&value)) {
        if (text->size() > LongestText)
            return WriteVerdict::refuse("The text is longer than " + std::to_string(LongestText) + " characters.");
    }
    return WriteVerdict::accept();
}

WriteVerdict mismatch(const std::string& key, StyleType type)
{
    return {SetValue_TypeMismatch, "Style path " + key + " takes " + typeName(type) + " value."};
}

std::optional<StyleDatum> operand(const toolbox::ArgList& args, StyleType type)
{
    const long* integer = args.find<long>("IValue");
    switch (type) {
    case StyleType::Long:
        if (integer)
            return StyleDatum(*integer);
        break;
    case StyleType::Bool:
        if (integer)
            return StyleDatum(*integer != 0);
        break;
    case StyleType::Double:
        if (const double* number = args.find<double>("DValue"))
            return StyleDatum(*number);
        if (integer)
            return StyleDatum(static_cast<double>(*integer));
        break;
    case StyleType::String:
        if (const std::string* text = args.find<std::string>("SValue"))
            return StyleDatum(*text);
        break;
    }
    return std::nullopt;
}

bool deliver(const StyleDatum& value, const toolbox::ArgList& args)
{
    if (const long* v = std::get_if<long>(&value)) {
        if (long* const* out = args.find<long*>("IValue"))
            return **out = *v, true;
    } else if (const bool* b = std::get_if<bool>(&value)) {
        if (long* const* out = args.find<long*>("IValue"))
            return **out = *b ? 1 : 0, true;
    } else if (const double* d = std::get_if<double>(&value)) {
        if (double* const* out = args.find<double*>("DValue"))
            return **out = *d, true;
    } else if (std::string* const* out = args.find<std::string*>("SValue")) {
        return **out = std::get<std::string>(value), true;
    }
    return false;
}

template <typename T>
WriteVerdict arithmetic(T a, AssignOp_e op, T b, StyleDatum& result)
{
    switch (op) {
    case AssignOp_PlusEquals: result = a + b; break;
    case AssignOp_MinusEquals: result = a - b; break;
    case AssignOp_TimesEquals: result = a * b; break;
    case AssignOp_DivideEquals:
        if (b == T(0))
            return WriteVerdict::refuse("Division by zero.");
        result = a / b;
        break;
    default: return {SetValue_InvalidOperator, "Unknown assignment operator " + std::to_string(op) + "."};
    }
    return WriteVerdict::accept();
}

GetValueReturnCode_e readCode(SetValueReturnCode_e code)
{
    return code == SetValue_NoFrame ? GetValue_NoFrame : GetValue_UnknownPath;
}

} // namespace

GetValueReturnCode_e StyleAccess::get(const toolbox::ArgList& args) const
{
    const auto names = namesFromIDs(args);
    if (!names)
        return GetValue_BadArguments;
    StyleDatum value;
    const GetValueReturnCode_e code = read(*names, args.longOr("Offset1", -1), value);
    if (code != GetValue_Ok)
        return code;
    return deliver(value, args) ? GetValue_Ok : GetValue_TypeMismatch;
}

GetValueReturnCode_e StyleAccess::read(const toolbox::StringList& names, long member, StyleDatum& value) const
{
    Target target;
    const WriteVerdict verdict = resolve(names, target);
    if (verdict.code != SetValue_Ok)
        return readCode(verdict.code);
    if (!target.entry->perZone)
        member = 0;
    else if (!m_kernel.dataSet().hasZone(static_cast<int>(member)))
        return GetValue_InvalidOffset;
    value = m_kernel.schema().valueIn(target.frame->style(), target.key, member);
    return GetValue_Ok;
}

SetValueReturnCode_e StyleAccess::set(const toolbox::ArgList& args)
{
    const auto names = namesFromIDs(args);
    if (!names)
        return finish({SetValue_BadArguments, "A style write needs a path."});
    Target target;
    WriteVerdict verdict = resolve(*names, target);
    std::optional<StyleDatum> value;
    if (verdict.code == SetValue_Ok) {
        value = operand(args, target.entry->type);
        if (!value)
            verdict = mismatch(target.key, target.entry->type);
    }
    const toolbox::Set* const* set = args.find<const toolbox::Set*>("Set");
    return perform(*names, target, verdict, value, set ? *set : nullptr, args.longOr("Offset1", -1),
                   static_cast<AssignOp_e>(args.longOr("AssignOp", AssignOp_Equals)));
}

SetValueReturnCode_e StyleAccess::write(const toolbox::StringList& names, const toolbox::Set* members, long first,
                                        AssignOp_e op, const StyleDatum& value)
{
    Target target;
    WriteVerdict verdict = resolve(names, target);
    if (verdict.code == SetValue_Ok && value.index() != static_cast<size_t>(target.entry->type))
        verdict = mismatch(target.key, target.entry->type);
    return perform(names, target, verdict, value, members, first, op);
}

SetValueReturnCode_e StyleAccess::perform(const toolbox::StringList& names, const Target& target, WriteVerdict verdict,
                                          const std::optional<StyleDatum>& value, const toolbox::Set* set, long first,
                                          AssignOp_e op)
{
    ++m_writeTotal;
    ++m_writes[target.entry ? target.key : names.join("/")];
    if (m_forced) {
        verdict = *m_forced;
        m_forced.reset();
    }
    if (verdict.code != SetValue_Ok)
        return finish(verdict);

    std::vector<long> chosen;
    verdict = members(target, set, first, chosen);
    if (verdict.code != SetValue_Ok)
        return finish(verdict);

    StyleState& style = target.frame->style();
    std::vector<UndoRecord> changes;
    for (long member : chosen) {
        const StyleDatum old = m_kernel.schema().valueIn(style, target.key, member);
        StyleDatum next = *value;
        if (op != AssignOp_Equals)
            verdict = combine(old, op, *value, next);
        if (verdict.code == SetValue_Ok)
            verdict = withinType(next);
        if (verdict.code == SetValue_Ok && target.entry->rule)
            verdict = target.entry->rule(next, RuleContext{m_kernel.dataSet(), style, member});
        if (verdict.code != SetValue_Ok)
            return finish(verdict);
        if (next != old)
            changes.push_back({target.frame->uniqueID(), target.path, member, old, next});
    }
    toolbox::StringList framePrefix;
    if (names.count() > target.path.count())
        framePrefix = toolbox::StringList{names[0], names[1]};
    for (const UndoRecord& change : changes) {
        style.store(target.key, change.member, change.after);
        m_kernel.undoStack().add(change);
        m_kernel.journal().recordStyle(framePrefix, target.path, change.member, change.after);
    }
    finish(WriteVerdict::accept());
    if (!changes.empty())
        m_kernel.announce(StateChange_Style, target.path);
    return SetValue_Ok;
}

void StyleAccess::restore(const UndoStack::Step& step, bool undoing)
{
    auto put = [this, undoing](const UndoRecord& record) {
        Frame* frame = m_kernel.frameByID(record.frameID);
        if (!frame)
            return;
        frame->style().store(record.path.join("/"), record.member, undoing ? record.before : record.after);
        m_kernel.announce(StateChange_Style, record.path);
    };
    if (undoing)
        std::for_each(step.rbegin(), step.rend(), put);
    else
        std::for_each(step.begin(), step.end(), put);
}

int StyleAccess::writeCount(const std::string& key) const
{
    const auto it = m_writes.find(key);
    return it == m_writes.end() ? 0 : it->second;
}

void StyleAccess::reset()
{
    m_forced.reset();
    m_writeTotal = 0;
    m_writes.clear();
}

WriteVerdict StyleAccess::resolve(const toolbox::StringList& names, Target& target) const
{
    Kernel& kernel = m_kernel;
    Frame* frame = kernel.currentFrame();
    size_t first = 0;
    if (names.count() > 2 && names[0] == FramePrefix) {
        // A frame is named by its position alone: "2x" names none.
        int position = 0;
        const std::string& text = names[1];
        const auto [end, error] = std::from_chars(text.data(), text.data() + text.size(), position);
        if (error != std::errc() || end != text.data() + text.size())
            position = 0;
        frame = kernel.frameAt(position);
        if (!frame)
            return {SetValue_NoFrame, "There is no frame " + names[1] + "."};
        first = 2;
    }
    for (size_t i = first; i < names.count(); ++i)
        target.path.append(names[i]);
    target.key = target.path.join("/");
    target.entry = kernel.schema().find(target.key);
    if (!target.entry)
        return {SetValue_UnknownPath, "Unknown style path: " + target.key};
    if (!frame)
        return {SetValue_NoFrame, "There is no frame to hold " + target.key + "."};
    target.frame = frame;
    return WriteVerdict::accept();
}

WriteVerdict StyleAccess::members(const Target& target, const toolbox::Set* set, long first,
                                  std::vector<long>& chosen) const
{
    if (!target.entry->perZone) {
        chosen.push_back(0);
        return WriteVerdict::accept();
    }
    if (set)
        chosen.assign(set->begin(), set->end());
    else
        chosen.push_back(first);
    const int count = m_kernel.dataSet().numZones();
    for (long member : chosen)
        if (member < 1 || member > count)
            return {SetValue_InvalidOffset,
                    (boost::format("Member %1% of %2% is out of range (the data set has %3% zones).") % member
                     % target.key % count)
                        .str()};
    return WriteVerdict::accept();
}

WriteVerdict StyleAccess::combine(const StyleDatum& old, AssignOp_e op, const StyleDatum& operand,
                                  StyleDatum& result) const
{
    if (const long* a = std::get_if<long>(&old))
        return arithmetic(*a, op, std::get<long>(operand), result);
    if (const double* a = std::get_if<double>(&old))
        return arithmetic(*a, op, std::get<double>(operand), result);
    return {SetValue_InvalidOperator, "Only numbers can be changed by +=, -=, *= and /=."};
}

SetValueReturnCode_e StyleAccess::finish(const WriteVerdict& verdict)
{
    // A refusal without a text leaves no last error, as an accepted write does.
    const bool explained = verdict.code != SetValue_Ok && verdict.code != SetValue_Declined && !verdict.text.empty();
    m_kernel.setLastError(explained ? std::optional<std::string>(verdict.text) : std::nullopt);
    return verdict.code;
}

} // namespace kernel
} // namespace orrery
