#pragma once
#include "core/CoreExport.h"

namespace orrery::sdk::ui::dialogs::propertybindings {

/// Root of every binding: something that can refresh its widget's value,
/// visibility and enabled state. Dialogs own their bindings through this type.
class ORRERY_CORE_EXPORT BindingInterface
{
public:
    /// When a binding shows a property change in its widget.
    enum WidgetUpdateMode_e
    {
        WidgetUpdateMode_Immediate = 0, ///< refresh inside the change notification
        WidgetUpdateMode_OnIdle = 1     ///< refresh once, when the host is next idle
    };

    /// How a choice widget follows changes of its rows.
    enum ModelUpdateMode
    {
        ModelUpdate_Immediate = 0,        ///< repaint with every change of the rows
        ModelUpdate_DeferredWhileBusy = 1 ///< hold the widget's repaints back while the host is busy
    };

    virtual ~BindingInterface() = default;
    /// Shows the property's current value in the widget.
    virtual void updateWidget() = 0;
    /// Shows or hides the widget as the property's relevance says.
    virtual void updateVisibility() = 0;
    /// Enables or disables the widget as the property's relevance says.
    virtual void updateSensitivity() = 0;
};

} // namespace orrery::sdk::ui::dialogs::propertybindings
