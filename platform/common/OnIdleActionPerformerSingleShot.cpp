#include "platform/common/OnIdleActionPerformerSingleShot.h"

namespace orrery {
namespace sdk {
namespace ui {
namespace common {

OnIdleActionPerformerSingleShot::OnIdleActionPerformerSingleShot(const boost::function<void()>& action)
    : m_action(action)
{}

OnIdleActionPerformerSingleShot::~OnIdleActionPerformerSingleShot()
{
    if (m_armed)
        IdleQueue::instance().cancel(m_ticket);
}

void OnIdleActionPerformerSingleShot::arm()
{
    m_armed = true;
    m_ticket = IdleQueue::instance().schedule([this] { perform(); });
}

void OnIdleActionPerformerSingleShot::perform()
{
    // Disarm first so that the action may arm the performer again.
    m_armed = false;
    m_action();
}

} // namespace common
} // namespace ui
} // namespace sdk
} // namespace orrery
