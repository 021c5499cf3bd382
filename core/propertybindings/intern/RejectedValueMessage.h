#pragma once
#include "core/CoreExport.h"
#include "core/property/InvalidPropertyValueException.h"

namespace orrery::sdk::ui::dialogs::propertybindings::intern {

/// Tells the user why a value was refused, through the host's message box.
/// A refusal without a text shows nothing.
ORRERY_CORE_EXPORT void showRejectedValueMessage(const InvalidPropertyValueException& rejection);

} // namespace orrery::sdk::ui::dialogs::propertybindings::intern
