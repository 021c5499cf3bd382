#pragma once
#include "platform/PlatformExport.h"
#include <boost/signals2/signal.hpp>

namespace orrery {
namespace sdk {

// Marks the host busy while held (locks nest). Idle work waits until the last
// lock is released.
class ORRERY_PLATFORM_EXPORT AppLock
{
public:
    enum ImplicitMacroRecording
    {
        ImplicitMacroRecording_Allow = 0,
        ImplicitMacroRecording_Suppress = 1
    };

    explicit AppLock(ImplicitMacroRecording recording = ImplicitMacroRecording_Allow);
    AppLock(const AppLock&) = delete;
    AppLock& operator=(const AppLock&) = delete;
    ~AppLock();

    ImplicitMacroRecording recording() const { return m_recording; }

    static bool isBusy();
    static int depth();
    // True while any held lock suppresses implicit recording: the changes made
    // then are not written to the journal.
    static bool recordingSuppressed();
    // Fired when the last lock is released and the host becomes idle.
    static boost::signals2::signal<void()>& becameIdleSignal();

private:
    ImplicitMacroRecording m_recording;
};

} // namespace sdk
} // namespace orrery
