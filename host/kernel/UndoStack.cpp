#include "host/kernel/UndoStack.h"
#include <algorithm>
#include <cctype>
#include <charconv>
#include "host/loaders/TextExcerpt.h"

namespace orrery {
namespace kernel {

void UndoStack::add(const UndoRecord& record)
{
    if (m_brackets.empty())
        push({{record}, nameFor(record)});
    else
        m_pending.push_back(record);
}

void UndoStack::begin(const std::string& name)
{
    m_brackets.push_back({m_pending.size(), name});
}

UndoStack::Step UndoStack::end(bool revert, bool record)
{
    if (m_brackets.empty())
        return {};
    const Bracket closed = std::move(m_brackets.back());
    m_brackets.pop_back();
    if (revert) {
        Step taken(m_pending.begin() + static_cast<std::ptrdiff_t>(closed.start), m_pending.end());
        m_pending.resize(closed.start);
        return taken;
    }
    if (!m_brackets.empty()) // the records stay, as the enclosing bracket's
        return {};
    Named step{std::move(m_pending), closed.name};
    m_pending.clear();
    if (record && !step.records.empty()) {
        if (step.name.empty())
            step.name = step.records.size() == 1 ? nameFor(step.records.front()) : "Style Changes";
        push(std::move(step));
    }
    return {};
}

UndoStack::Step UndoStack::undo()
{
    return moveNewest(m_done, m_undone);
}

UndoStack::Step UndoStack::redo()
{
    return moveNewest(m_undone, m_done);
}

UndoStack::Step UndoStack::moveNewest(std::deque<Named>& from, std::deque<Named>& to)
{
    if (from.empty())
        return {};
    to.push_back(std::move(from.back()));
    from.pop_back();
    m_changed();
    return to.back().records;
}

void UndoStack::clear()
{
    m_brackets.clear();
    m_pending.clear();
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

size_t UndoStack::limitFromSetting(const std::string& text, std::string& problem)
{
    size_t steps = 0;
    const auto [end, failed] = std::from_chars(text.data(), text.data() + text.size(), steps);
    if (failed == std::errc() && end == text.data() + text.size() && steps >= 1 && steps <= MostSteps)
        return steps;
    problem = "The setting UndoStepLimit = \"" + sdk::TextExcerpt::printable(text.substr(0, 40))
              + "\" is not a whole number from 1 to " + std::to_string(MostSteps) + "; Undo keeps "
              + std::to_string(DefaultLimit) + " steps.";
    return DefaultLimit;
}

void UndoStack::setLimit(size_t steps)
{
    m_limit = std::max<size_t>(steps, 1);
    while (m_done.size() > m_limit)
        m_done.pop_front();
    m_changed();
}

void UndoStack::push(Named step)
{
    m_done.push_back(std::move(step));
    if (m_done.size() > m_limit)
        m_done.pop_front();
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
