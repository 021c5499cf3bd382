#include "platform/sdk/AppLock.h"
#include "platform/common/IdleQueue.h"

namespace orrery {
namespace sdk {

namespace {
int g_depth = 0;
int g_suppressing = 0;
} // namespace

AppLock::AppLock(ImplicitMacroRecording recording) : m_recording(recording)
{
    if (++g_depth == 1)
        ui::common::IdleQueue::instance().setHostBusy(true);
    if (m_recording == ImplicitMacroRecording_Suppress)
        ++g_suppressing;
}

AppLock::~AppLock()
{
    if (m_recording == ImplicitMacroRecording_Suppress)
        --g_suppressing;
    if (--g_depth == 0) {
        ui::common::IdleQueue::instance().setHostBusy(false);
        becameIdleSignal()();
    }
}

bool AppLock::isBusy()
{
    return g_depth > 0;
}

int AppLock::depth()
{
    return g_depth;
}

bool AppLock::recordingSuppressed()
{
    return g_suppressing > 0;
}

boost::signals2::signal<void()>& AppLock::becameIdleSignal()
{
    static boost::signals2::signal<void()> signal;
    return signal;
}

} // namespace sdk
} // namespace orrery
