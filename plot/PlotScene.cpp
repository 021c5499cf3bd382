#include "plot/PlotScene.h"

#include <cmath>
#include <limits>

bool PlotScene::drawable(double v)
{
    const double size = std::abs(v);
    return size <= MostMagnitude && (size >= std::numeric_limits<double>::min() || v == 0.0);
}

bool PlotScene::anyScatter() const
{
    return std::any_of(zones.begin(), zones.end(), [](const Zone& z) { return z.scatter; });
}

QRgb PlotScene::lineColour(size_t line, QRgb zoneColour) const
{
    if (line == 0)
        return zoneColour;
    std::vector<QRgb> colours;
    for (QRgb colour : linePalette)
        if (colour != zoneColour)
            colours.push_back(colour);
    return colours.empty() ? zoneColour : colours[(line - 1) % colours.size()];
}

bool PlotScene::anyRamp() const
{
    return std::any_of(zones.begin(), zones.end(), [](const Zone& z) {
        return (z.mesh && z.meshColours.onMap()) || (z.scatter && z.scatterColours.onMap());
    });
}
