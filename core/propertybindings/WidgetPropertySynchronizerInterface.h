#pragma once
#include "core/CoreExport.h"

namespace orrery::sdk::ui::dialogs::propertybindings {

/// Keeps a widget and a property in step when neither direction is a plain value copy.
class ORRERY_CORE_EXPORT WidgetPropertySynchronizerInterface
{
public:
    virtual ~WidgetPropertySynchronizerInterface() = default;
    /// Makes the widget show the property's value.
    virtual void updateWidgetFromProperty() = 0;
    /// Stores what the widget shows in the property.
    virtual void updatePropertyFromWidget() = 0;
};

} // namespace orrery::sdk::ui::dialogs::propertybindings
