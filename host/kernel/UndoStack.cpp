#include "host/kernel/UndoStack.h"
#include <cctype>

namespace orrery {
namespace kernel {

void UndoStack::add(const UndoRecord& record)
{
    if (m_brackets.empty())
        push({{record}, nameFor(record)});
    else
        m_brackets.back().records.push_back(record);
}

void UndoStack::begin(const std::string& name)
{
    m_brackets.push_back({{}, name});
}

UndoStack::Step UndoStack::end(bool revert, bool record)
{
    if (m_brackets.empty())
        return {};
    Named closed = std::move(m_brackets.back());
    m_brackets.pop_back();
    if (revert)
        return closed.records;
    if (!m_brackets.empty()) {
        Step& outer = m_brackets.back().records;
        outer.insert(outer.end(), closed.records.begin(), closed.records.end());
    } else if (record && !closed.records.empty()) {
        if (closed.name.empty())
            closed.name = closed.records.size() == 1 ? nameFor(closed.records.front()) : "Style Changes";
        push(std::move(closed));
    }
    return {};
}

UndoStack::Step UndoStack::undo()
{
    if (m_done.empty())
        return {};
    m_undone.push_back(std::move(m_done.back()));
    m_done.pop_back();
    m_changed();
    return m_undone.back().records;
}

UndoStack::Step UndoStack::redo()
{
    if (m_undone.empty())
        return {};
    m_done.push_back(std::move(m_undone.back()));
    m_undone.pop_back();
    m_changed();
    return m_done.back().records;
}

void UndoStack::clear()
{
    m_brackets.clear();
    m_done.clear();
    m_undone.clear();
    m_changed();
}

std::string UndoStack::undoName() const
{
    return m_done.empty() ? std::string() : m_done.back().name;
}

std::string UndoStack::redoName() const
{
    return m_undone.empty() ? std::string() : m_undone.back().name;
}

void UndoStack::push(Named step)
{
    m_done.push_back(std::move(step));
    m_undone.clear();
    m_changed();
}

// "RedChannelVar" becomes "Change Red Channel Var": a single write is named
// after the value it changed.
std::string UndoStack::nameFor(const UndoRecord& record)
{
    if (record.path.empty())
        return "Style Change";
    const std::string& last = record.path[record.path.count() - 1];
    std::string name = "Change ";
    for (size_t i = 0; i < last.size(); ++i) {
        const unsigned char c = static_cast<unsigned char>(last[i]);
        if (i > 0 && std::isupper(c) && std::islower(static_cast<unsigned char>(last[i - 1])))
            name += ' ';
        name += last[i];
    }
    return name;
}

} // namespace kernel
} // namespace orrery
