#pragma once
#include "framework/FrameworkExport.h"

namespace orrery::sdk::ui::propertymanager {

/// Computes how far a spin box moves per step, when a fixed step does not fit
/// the values (a step proportional to a data range, for instance).
class ORRERY_FRAMEWORK_EXPORT SpinBoxIncDecCalculatorBase
{
public:
    virtual ~SpinBoxIncDecCalculatorBase();

    /// The move for the current deltaFactor().
    virtual double delta() = 0;

    /// Number of steps asked for at once, negative downwards: 1 or -1 for an arrow,
    /// 10 or -10 for Page Up or Page Down.
    int deltaFactor() const { return m_deltaFactor; }
    /// The move for \a steps steps at once; sets deltaFactor() and asks delta().
    double deltaFor(int steps);

private:
    int m_deltaFactor = 1;
};

} // namespace orrery::sdk::ui::propertymanager
