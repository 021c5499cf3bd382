#include "platform/common/HostCall.h"
#include <cstdio>
#include <set>
#include "platform/common/IdleQueue.h"
#include "platform/kernel/OrrUtil.h"

namespace orrery {

std::string HostCall::take(const char* operation, char* text, Null null) noexcept
{
    if (!text) {
        if (null == Null::Fault)
            fault(operation, "returned no text; it is shown empty");
        return std::string();
    }
    std::string taken = text;
    run("OrrUtilStringDealloc(&text)", [&] { OrrUtilStringDealloc(&text); });
    return taken;
}

void HostCall::fault(const char* operation, const std::string& what) noexcept
{
    static std::set<std::string> told;
    try {
        if (!told.insert(operation).second)
            return;
        const std::string message = std::string("The host's operation ") + operation + " " + what + ".";
        // Not now: the fault may have come in the middle of painting a list.
        sdk::ui::common::IdleQueue::instance().schedule([message] {
            try {
                OrrUtilDialogMessageBox(message.c_str(), MessageBoxType_Error);
            } catch (...) {
                std::fprintf(stderr, "%s\n", message.c_str());
            }
        });
    } catch (...) {
        std::fprintf(stderr, "The host's operation %s %s.\n", operation, what.c_str());
    }
}

} // namespace orrery
