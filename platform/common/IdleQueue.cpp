#include "platform/common/IdleQueue.h"

#include <QTimer>

namespace orrery {
namespace sdk {
namespace ui {
namespace common {

IdleQueue& IdleQueue::instance()
{
    static IdleQueue queue;
    return queue;
}

IdleQueue::IdleQueue() = default;

void IdleQueue::setHostBusy(bool busy)
{
    m_hostBusy = busy;
    if (!busy && !m_tasks.empty())
        wake();
}

IdleQueue::Ticket IdleQueue::schedule(Task task)
{
    const Ticket ticket = m_nextTicket++;
    m_tasks.push_back(Entry{ticket, std::move(task)});
    wake();
    return ticket;
}

void IdleQueue::cancel(Ticket ticket)
{
    for (auto it = m_tasks.begin(); it != m_tasks.end(); ++it) {
        if (it->ticket == ticket) {
            m_tasks.erase(it);
            return;
        }
    }
}

int IdleQueue::flush()
{
    int ran = 0;
    while (!m_tasks.empty() && !m_hostBusy) {
        Task task = std::move(m_tasks.front().task);
        m_tasks.pop_front();
        task();
        ++ran;
    }
    return ran;
}

void IdleQueue::wake()
{
    if (m_wakeRequested)
        return;
    m_wakeRequested = true;
    // A zero timer fires once the event loop has handled what is already queued.
    QTimer::singleShot(0, this, [this] {
        m_wakeRequested = false;
        flush();
    });
}

} // namespace common
} // namespace ui
} // namespace sdk
} // namespace orrery
