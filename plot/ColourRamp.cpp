#include "plot/ColourRamp.h"

#include <algorithm>
#include <cmath>
#include <QCoreApplication>

namespace {

// Blue through green to red.
QRgb rainbow(double t)
{
    const double r = std::clamp(1.5 - std::abs(4.0 * t - 3.0), 0.0, 1.0);
    const double g = std::clamp(1.5 - std::abs(4.0 * t - 2.0), 0.0, 1.0);
    const double b = std::clamp(1.5 - std::abs(4.0 * t - 1.0), 0.0, 1.0);
    return qRgb(int(r * 255), int(g * 255), int(b * 255));
}

// Dark violet through teal to yellow: even in lightness, readable in grey and by most colour-blind readers.
QRgb perceptual(double t)
{
    static const QRgb stops[] = {qRgb(68, 1, 84), qRgb(59, 82, 139), qRgb(33, 145, 140), qRgb(94, 201, 98),
                                 qRgb(253, 231, 37)};
    const double x = t * 4.0;
    const int i = std::min(3, int(x));
    const double f = x - i;
    auto mix = [f](int a, int b) { return int(a + (b - a) * f); };
    return qRgb(mix(qRed(stops[i]), qRed(stops[i + 1])), mix(qGreen(stops[i]), qGreen(stops[i + 1])),
                mix(qBlue(stops[i]), qBlue(stops[i + 1])));
}

} // namespace

QString ColourRamp::name(int map)
{
    switch (map) {
    case 1: return QCoreApplication::translate("ColourRamp", "Perceptual (violet to yellow)");
    case 2: return QCoreApplication::translate("ColourRamp", "Grey");
    default: return QCoreApplication::translate("ColourRamp", "Rainbow (blue to red)");
    }
}

QRgb ColourRamp::at(int map, double t)
{
    t = std::isfinite(t) ? std::clamp(t, 0.0, 1.0) : 0.0;
    switch (map) {
    case 1: return perceptual(t);
    case 2: {
        const int grey = int(220 - 200 * t);
        return qRgb(grey, grey, grey);
    }
    default: return rainbow(t);
    }
}
