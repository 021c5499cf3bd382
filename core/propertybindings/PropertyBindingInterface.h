#pragma once
#include "core/propertybindings/BindingInterface.h"

namespace orrery::sdk::ui::dialogs::propertybindings {

// A binding tied to a property.
class PropertyBindingInterface : public virtual BindingInterface
{
};

} // namespace orrery::sdk::ui::dialogs::propertybindings
