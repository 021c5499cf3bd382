#pragma once
#include "core/CoreExport.h"
#include "core/propertybindings/BindingInterface.h"

namespace orrery::sdk::ui::dialogs::propertybindings {

/// A binding tied to a property.
class ORRERY_CORE_EXPORT PropertyBindingInterface : public virtual BindingInterface
{};

} // namespace orrery::sdk::ui::dialogs::propertybindings
