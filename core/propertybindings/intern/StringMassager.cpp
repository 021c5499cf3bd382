#include "core/propertybindings/intern/StringMassager.h"

namespace orrery::sdk::ui::dialogs::propertybindings::intern {

StringMassager::~StringMassager() = default;

} // namespace orrery::sdk::ui::dialogs::propertybindings::intern
