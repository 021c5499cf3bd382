#pragma once
#include "platform/PlatformExport.h"
#include <boost/function.hpp>
#include "platform/common/IdleQueue.h"

namespace orrery {
namespace sdk {
namespace ui {
namespace common {

// Runs one action once when the host is next idle, however often it was armed before.
class ORRERY_PLATFORM_EXPORT OnIdleActionPerformerSingleShot
{
public:
    explicit OnIdleActionPerformerSingleShot(const boost::function<void()>& action);
    OnIdleActionPerformerSingleShot(const OnIdleActionPerformerSingleShot&) = delete;
    OnIdleActionPerformerSingleShot& operator=(const OnIdleActionPerformerSingleShot&) = delete;
    ~OnIdleActionPerformerSingleShot();

    void enableNotification()
    {
        if (!m_armed)
            arm();
    }
    bool isArmed() const { return m_armed; }

private:
    void arm();
    void perform();

    boost::function<void()> m_action;
    IdleQueue::Ticket m_ticket = 0;
    bool m_armed = false;
};

} // namespace common
} // namespace ui
} // namespace sdk
} // namespace orrery
