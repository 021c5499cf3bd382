#pragma once
#include "framework/FrameworkExport.h"
#include <memory>
#include "framework/SpinBoxIncDecCalculatorBase.h"
#include "framework/SpinBoxPropertyBindingAbstract.h"
#include "platform/ui/QScientificSpinBox.h"

namespace orrery::sdk::ui::dialogs::propertybindings {

/// A scientific spin box editing a double property; its steps are sized by a
/// calculator, which the binding owns.
class ORRERY_FRAMEWORK_EXPORT SpinBoxDoublePropertyBinding
    : public SpinBoxPropertyBindingAbstract<double, orrery::ui::QScientificSpinBox, double>
{
public:
    /// Binds \a spinBox, which must outlive the binding, stepping by \a calculator,
    /// which the binding takes over.
    SpinBoxDoublePropertyBinding(orrery::ui::QScientificSpinBox* spinBox,
                                 const boost::shared_ptr<PropertyAbstract<double>>& property,
                                 propertymanager::SpinBoxIncDecCalculatorBase* calculator,
                                 BindingInterface::WidgetUpdateMode_e mode = BindingInterface::WidgetUpdateMode_OnIdle);
    ~SpinBoxDoublePropertyBinding() override;

private:
    std::unique_ptr<propertymanager::SpinBoxIncDecCalculatorBase> m_calculator;
};

} // namespace orrery::sdk::ui::dialogs::propertybindings
