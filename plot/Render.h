#pragma once
#include <optional>
#include <QImage>
#include <QRectF>
#include <QSize>
#include "plot/PlotGeometry.h"

class QPainter;
struct PlotScene;

// How the user looks at a figure: the turn and size of a 3D box, the part of a 2D plot shown.
struct PlotViewpoint
{
    double yaw = 35.0;                // degrees about the vertical axis
    double pitch = 25.0;              // degrees of tilt towards the viewer
    std::optional<PlotWindow> window; // of a 2D plot; none shows all of the data
    double zoom = 1.0;                // of the 3D box: 1 fits the plot area, above 1 is closer

    // Smaller, the box is a dot; larger, a corner of it fills the plot.
    static constexpr double LeastZoom = 0.25;
    static constexpr double MostZoom = 16.0;
};

// Draws scene over rect (in the logical units of the painter's device) as seen
// from view, on any paint device; returns where the axes went.
PlotGeometry render(const PlotScene& scene, const PlotViewpoint& view, QPainter& painter, const QRectF& rect);

// A scene drawn into an image of its own.
struct PlotPicture
{
    QImage image;
    PlotGeometry geometry;
    PlotViewpoint view;
};
// The picture of size logical pixels at ratio device pixels each. Never throws:
// what kept the scene from being drawn is written on the picture instead.
PlotPicture renderPicture(const PlotScene& scene, const PlotViewpoint& view, const QSize& size, double ratio);
