#pragma once
#include "platform/PlatformExport.h"
#include <deque>
#include <functional>
#include <QObject>

namespace orrery {
namespace sdk {
namespace ui {
namespace common {

// Runs queued work when the host is idle: once the event loop has nothing else
// to do and the host is not busy (AppLock tells it). Tests and tools without an event loop call flush().
class ORRERY_PLATFORM_EXPORT IdleQueue : public QObject
{
    Q_OBJECT
public:
    typedef std::function<void()> Task;
    typedef unsigned long long Ticket;

    static IdleQueue& instance();

    Ticket schedule(Task task);
    void cancel(Ticket ticket);
    // Runs everything queued (including work queued meanwhile) unless the host is busy.
    // Returns how many tasks ran.
    int flush();
    size_t pending() const { return m_tasks.size(); }
    // While the host is busy nothing runs; becoming idle runs what waits.
    void setHostBusy(bool busy);

private:
    IdleQueue();
    void wake();

    struct Entry
    {
        Ticket ticket;
        Task task;
    };
    std::deque<Entry> m_tasks;
    Ticket m_nextTicket = 1;
    bool m_wakeRequested = false;
    bool m_hostBusy = false;
};

} // namespace common
} // namespace ui
} // namespace sdk
} // namespace orrery
