#pragma once
#include "framework/FrameworkExport.h"
#include <QSpinBox>
#include "framework/SpinBoxPropertyBindingAbstract.h"

namespace orrery::sdk::ui::dialogs::propertybindings {

/// An integer spin box editing a long property. Values beyond the spin box's
/// int range are shown at its nearest end.
class ORRERY_FRAMEWORK_EXPORT SpinBoxLgIndexPropertyBinding : public SpinBoxPropertyBindingAbstract<long, QSpinBox, int>
{
public:
    /// Binds \a spinBox, which must outlive the binding.
    SpinBoxLgIndexPropertyBinding(
        QSpinBox& spinBox, const boost::shared_ptr<PropertyAbstract<long>>& property,
        BindingInterface::WidgetUpdateMode_e mode = BindingInterface::WidgetUpdateMode_OnIdle);

private:
    int toShown(const long& value) const override;
};

} // namespace orrery::sdk::ui::dialogs::propertybindings
