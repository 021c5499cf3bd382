#include "framework/SpinBoxIncDecCalculatorBase.h"

namespace orrery::sdk::ui::propertymanager {

SpinBoxIncDecCalculatorBase::~SpinBoxIncDecCalculatorBase() = default;

double SpinBoxIncDecCalculatorBase::deltaFor(int steps)
{
    m_deltaFactor = steps;
    return delta();
}

} // namespace orrery::sdk::ui::propertymanager
