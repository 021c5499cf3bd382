#include "host/kernel/UnitConverter.h"
#include "platform/kernel/OrrTypes.h"

namespace orrery {
namespace kernel {

namespace {
const double AxisAreaShare = 0.8;
const double CentimetresPerPoint = 2.54 / 72.0;
} // namespace

UnitConverter::UnitConverter(double gridExtent, double frameHeightCm)
    : m_gridExtent(gridExtent), m_frameHeightCm(frameHeightCm)
{}

double UnitConverter::convert(int fromUnits, int toUnits, double value) const
{
    double from = 0.0;
    double to = 0.0;
    if (!centimetresPerUnit(fromUnits, from) || !centimetresPerUnit(toUnits, to))
        return value;
    return value * from / to;
}

bool UnitConverter::centimetresPerUnit(int units, double& factor) const
{
    switch (units) {
    case Units_Grid: factor = AxisAreaShare * m_frameHeightCm / m_gridExtent; return true;
    case Units_Frame: factor = m_frameHeightCm / 100.0; return true;
    case Units_Point: factor = CentimetresPerPoint; return true;
    case Units_Centimetre: factor = 1.0; return true;
    default: return false;
    }
}

} // namespace kernel
} // namespace orrery
