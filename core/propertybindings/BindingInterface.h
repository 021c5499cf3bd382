#pragma once
#include "core/CoreExport.h"

namespace orrery::sdk::ui::dialogs::propertybindings {

/// Root of every binding: something that can refresh its widget's value,
/// visibility and enabled state. Dialogs own their bindings through this type.
class ORRERY_CORE_EXPORT BindingInterface
{
public:
    enum WidgetUpdateMode_e
    {
        WidgetUpdateMode_Immediate = 0, // refresh inside the change notification
        WidgetUpdateMode_OnIdle = 1     // refresh once, when the host is next idle
    };

    enum ModelUpdateMode
    {
        ModelUpdate_Immediate = 0,
        ModelUpdate_DeferredWhileBusy = 1 // hold the widget's repaints back while the host is busy
    };

    virtual ~BindingInterface() = default;
    virtual void updateWidget() = 0;
    virtual void updateVisibility() = 0;
    virtual void updateSensitivity() = 0;
};

} // namespace orrery::sdk::ui::dialogs::propertybindings
