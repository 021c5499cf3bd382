#pragma once

namespace orrery::sdk::ui::dialogs::propertybindings {

// Keeps a widget and a property in step when neither direction is a plain value copy.
class WidgetPropertySynchronizerInterface
{
public:
    virtual ~WidgetPropertySynchronizerInterface() = default;
    virtual void updateWidgetFromProperty() = 0;
    virtual void updatePropertyFromWidget() = 0;
};

} // namespace orrery::sdk::ui::dialogs::propertybindings
