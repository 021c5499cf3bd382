#pragma once
#include <vector>
#include "plot/PlotScene.h"

namespace testsupport {

// Columns a scene points into, kept alive beside it.
struct Figure
{
    std::vector<double> x, y, colour;
    PlotScene scene;

    // One zone of the columns over the axes' given ranges.
    const PlotScene& make(double xMin, double xMax, double yMin, double yMax)
    {
        scene.axes[0].name = scene.axes[0].title = "X";
        scene.axes[1].name = scene.axes[1].title = "Y";
        scene.axes[0].min = xMin, scene.axes[0].max = xMax;
        scene.axes[1].min = yMin, scene.axes[1].max = yMax;
        PlotScene::Zone zone;
        zone.name = "Zone";
        zone.points = long(x.size());
        zone.values[0] = x.data();
        zone.values[1] = y.data();
        zone.mesh = true;
        if (!colour.empty()) {
            scene.contourName = "C";
            scene.contour.min = 0.0, scene.contour.max = 1.0;
            zone.meshColours = PointColours::mapped(qRgb(0, 0, 0), colour.data(), scene.contour);
        }
        scene.zones = {zone};
        return scene;
    }
};

} // namespace testsupport
