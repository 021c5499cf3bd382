#include "platform/ui/IntegralSpinBox.h"

namespace orrery::ui {

IntegralSpinBox::IntegralSpinBox(QWidget* parent) : QSpinBox(parent)
{
    setRange(-LargestMagnitude, LargestMagnitude);
}

} // namespace orrery::ui
