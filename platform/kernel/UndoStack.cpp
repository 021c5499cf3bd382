#include "platform/kernel/UndoStack.h"

namespace orrery {
namespace kernel {

void UndoStack::add(const UndoRecord& record)
{
    if (m_brackets.empty())
        push({record});
    else
        m_brackets.back().push_back(record);
}

void UndoStack::begin()
{
    m_brackets.emplace_back();
}

UndoStack::Step UndoStack::end(bool revert, bool record)
{
    if (m_brackets.empty())
        return {};
    Step closed = std::move(m_brackets.back());
    m_brackets.pop_back();
    if (revert)
        return closed;
    if (!m_brackets.empty())
        m_brackets.back().insert(m_brackets.back().end(), closed.begin(), closed.end());
    else if (record && !closed.empty())
        push(closed);
    return {};
}

UndoStack::Step UndoStack::undo()
{
    if (m_done.empty())
        return {};
    Step step = std::move(m_done.back());
    m_done.pop_back();
    m_undone.push_back(step);
    return step;
}

UndoStack::Step UndoStack::redo()
{
    if (m_undone.empty())
        return {};
    Step step = std::move(m_undone.back());
    m_undone.pop_back();
    m_done.push_back(step);
    return step;
}

void UndoStack::clear()
{
    m_brackets.clear();
    m_done.clear();
    m_undone.clear();
}

void UndoStack::push(const Step& step)
{
    m_done.push_back(step);
    m_undone.clear();
}

} // namespace kernel
} // namespace orrery
