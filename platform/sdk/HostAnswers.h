#pragma once
#include "platform/PlatformExport.h"
#include <string>
#include "platform/kernel/OrrTypes.h"
#include "platform/toolbox/Set.h"

namespace orrery {
namespace sdk {

// The host's answers about its current frame and data set, asked once and kept
// until the host announces its next change (every announcement forgets them, before
// any listener hears of it). A host's operation may be slow (a remote kernel, a
// lock to take), and a dialog that opens asks the same things in many places: its
// lists, its relevance, its default choices. Every call goes through HostCall.
class ORRERY_PLATFORM_EXPORT HostAnswers
{
public:
    static long frameUniqueID();
    static PlotType_e plotType();
    static bool dataSetAvailable();
    static int pageCount();
    static int frameCount();
    static int numZones();
    static int numVars();
    // Of the frame with that unique ID; empty for an unknown frame. Copies, so that
    // a change announced while the caller goes through them cannot pull them away.
    static toolbox::Set enabledZones(long frameUniqueID);
    static toolbox::Set enabledVars(long frameUniqueID);
    // A null name from the host is shown empty and told once.
    static std::string zoneName(int zone);
    static std::string varName(int var);
    // The same name, not copied: for going through every variable's name. It
    // holds until the next name is asked or a change is announced.
    static const std::string& keptVarName(int var);

    // Called for every announcement of a change, before it is passed on.
    static void forget();
};

} // namespace sdk
} // namespace orrery
