#include "framework/SpinBoxLgIndexPropertyBinding.h"

#include <algorithm>
#include <limits>

namespace orrery::sdk::ui::dialogs::propertybindings {

SpinBoxLgIndexPropertyBinding::SpinBoxLgIndexPropertyBinding(QSpinBox& spinBox,
                                                             const boost::shared_ptr<PropertyAbstract<long>>& property,
                                                             BindingInterface::WidgetUpdateMode_e mode)
    : SpinBoxPropertyBindingAbstract<long, QSpinBox, int>(spinBox, property, mode)
{
    updateWidget();
}

int SpinBoxLgIndexPropertyBinding::toShown(const long& value) const
{
    const long lowest = std::numeric_limits<int>::min();
    const long highest = std::numeric_limits<int>::max();
    return static_cast<int>(std::max(lowest, std::min(value, highest)));
}

} // namespace orrery::sdk::ui::dialogs::propertybindings
