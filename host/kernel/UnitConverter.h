#pragma once

namespace orrery {
namespace kernel {

// Converts lengths between the Units_e codes for a frame of the given height
// whose axis area, 80% of the frame height, shows gridExtent grid units.
class UnitConverter
{
public:
    UnitConverter(double gridExtent, double frameHeightCm);

    // An unknown unit code leaves the value unconverted.
    double convert(int fromUnits, int toUnits, double value) const;

private:
    bool centimetresPerUnit(int units, double& factor) const;

    double m_gridExtent;
    double m_frameHeightCm;
};

} // namespace kernel
} // namespace orrery
