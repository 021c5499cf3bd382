#include "demo/PointColours.h"

#include <algorithm>
#include <cmath>
#include "plot/ColourRamp.h"
#include "demo/HostStyle.h"
#include "host/kernel/OrrUtilHost.h"

namespace {

QColor basicColor(int index)
{
    unsigned char r = 0, g = 0, b = 0;
    OrrUtilColorMapGetBasicColorRGB(index, &r, &g, &b);
    return QColor(r, g, b);
}

} // namespace

PointColours::PointColours(int colorIndex, int zone, const Contour& contour) : m_contour(contour)
{
    if (colorIndex == RGBColoring) {
        m_kind = Kind::RGB;
        m_mode = static_cast<int>(HostStyle::integer("GlobalRGB/RGBMode"));
        m_min = HostStyle::number("GlobalRGB/RangeMin", -1, 0.0);
        m_max = HostStyle::number("GlobalRGB/RangeMax", -1, 1.0);
        const char* channels[] = {"GlobalRGB/RedChannelVar", "GlobalRGB/GreenChannelVar", "GlobalRGB/BlueChannelVar"};
        for (int c = 0; c < 3; ++c)
            m_channel[c] = OrrUtilVarGetValuesInZone(zone, int(HostStyle::integer(channels[c])));
    } else if (colorIndex < 0) {
        m_kind = Kind::Ramp;
        m_channel[0] = OrrUtilVarGetValuesInZone(zone, contour.var);
        if (!m_channel[0])
            m_kind = Kind::Fixed;
    }
    m_fixed = basicColor(colorIndex < 0 ? 0 : colorIndex).rgb();
}

double PointColours::valueAt(long i) const
{
    const double v = m_channel[0][i];
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
    double c[3];
    for (int k = 0; k < 3; ++k)
        c[k] = m_channel[k] ? std::clamp((m_channel[k][i] - m_min) / (m_max > m_min ? m_max - m_min : 1.0), 0.0, 1.0)
                            : 0.0;
    // Modes 1 to 3 leave one channel to be calculated from the other two.
    if (m_mode >= 1 && m_mode <= 3) {
        const int calculated = m_mode == 1 ? 2 : m_mode == 2 ? 1 : 0;
        c[calculated] = std::clamp(1.0 - c[(calculated + 1) % 3] - c[(calculated + 2) % 3], 0.0, 1.0);
    }
    if (!std::isfinite(c[0]) || !std::isfinite(c[1]) || !std::isfinite(c[2]))
        return qRgb(128, 128, 128);
    return qRgb(int(c[0] * 255), int(c[1] * 255), int(c[2] * 255));
}
