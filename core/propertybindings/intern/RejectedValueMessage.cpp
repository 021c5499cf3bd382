#include "core/propertybindings/intern/RejectedValueMessage.h"

#include <cstring>
#include "platform/common/HostCall.h"
#include "platform/kernel/OrrUtil.h"

namespace orrery::sdk::ui::dialogs::propertybindings::intern {

void showRejectedValueMessage(const InvalidPropertyValueException& rejection)
{
    const char* text = rejection.what();
    if (std::strlen(text) != 0)
        ORRERY_HOST_CALL(0, OrrUtilDialogMessageBox(text, MessageBoxType_Error));
}

} // namespace orrery::sdk::ui::dialogs::propertybindings::intern
