#include "plot/PlotScene.h"

long PlotScene::countAll() const
{
    long count = 0;
    for (const Zone& z : zones)
        count += countIn(z.points);
    return count;
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
