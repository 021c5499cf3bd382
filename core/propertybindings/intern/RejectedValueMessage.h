#pragma once
#include "core/property/InvalidPropertyValueException.h"

namespace orrery::sdk::ui::dialogs::propertybindings::intern {

// Tells the user why a value was refused, through the host's message box.
// A refusal without a text shows nothing.
void showRejectedValueMessage(const InvalidPropertyValueException& rejection);

} // namespace orrery::sdk::ui::dialogs::propertybindings::intern
