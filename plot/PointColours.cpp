#include "plot/PointColours.h"

#include <algorithm>
#include <cmath>
#include "plot/ColourRamp.h"

PointColours PointColours::mapped(QRgb fixed, const double* values, const Contour& contour)
{
    PointColours colours(fixed);
    colours.m_onMap = true;
    colours.m_contour = contour;
    colours.m_channels.values[0] = values;
    if (values)
        colours.m_kind = Kind::Ramp;
    return colours;
}

PointColours PointColours::rgb(QRgb fixed, const Channels& channels)
{
    PointColours colours(fixed);
    colours.m_kind = Kind::RGB;
    colours.m_channels = channels;
    return colours;
}

double PointColours::valueAt(long i) const
{
    const double v = m_channels.values[0][i];
    if (!std::isfinite(v))
        return -1.0;
    const double span = m_contour.max - m_contour.min;
    return span > 0.0 ? std::clamp((v - m_contour.min) / span, 0.0, 1.0) : 0.5;
}

QRgb PointColours::at(long i) const
{
    if (m_kind == Kind::Fixed)
        return m_fixed;
    if (m_kind == Kind::Ramp) {
        const double t = valueAt(i);
        return t < 0.0 ? qRgb(160, 160, 160) : ColourRamp::at(m_contour.map, t);
    }
    return rgbAt(i);
}
