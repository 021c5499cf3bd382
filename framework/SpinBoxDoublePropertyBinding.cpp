#include "framework/SpinBoxDoublePropertyBinding.h"

namespace orrery::sdk::ui::dialogs::propertybindings {

SpinBoxDoublePropertyBinding::SpinBoxDoublePropertyBinding(orrery::ui::QScientificSpinBox* spinBox,
                                                           const boost::shared_ptr<PropertyAbstract<double>>& property,
                                                           propertymanager::SpinBoxIncDecCalculatorBase* calculator,
                                                           BindingInterface::WidgetUpdateMode_e mode)
    : SpinBoxPropertyBindingAbstract<double, orrery::ui::QScientificSpinBox, double>(*spinBox, property, mode),
      m_calculator(calculator)
{
    if (m_calculator)
        spinBox->setStepCalculator([this](int steps) { return m_calculator->deltaFor(steps); });
    updateWidget();
}

SpinBoxDoublePropertyBinding::~SpinBoxDoublePropertyBinding()
{
    if (m_calculator)
        spinBox().setStepCalculator(orrery::ui::QScientificSpinBox::StepCalculator());
}

} // namespace orrery::sdk::ui::dialogs::propertybindings
