#pragma once
#include <cmath>
#include <QRectF>
#include <QString>

// The part of the data a 2D plot shows, in data values; a user's zoom or pan sets it.
struct PlotWindow
{
    double min[2] = {0.0, 0.0};
    double max[2] = {1.0, 1.0};
};

// Where the last picture put its axes, so that the view can turn a mouse
// position into data values and zoom or pan about it.
struct PlotGeometry
{
    bool navigable = false; // a 2D frame with both axes drawn
    bool threeD = false;    // a 3D box, drawn within plot
    QRectF plot;            // the axes box
    PlotWindow shown;
    bool log[2] = {false, false};
    QString names[2]; // of the axis variables

    // Positions along an axis are linear in these units.
    double toAxis(int a, double value) const { return log[a] ? std::log10(value) : value; }
    double fromAxis(int a, double units) const { return log[a] ? std::pow(10.0, units) : units; }

    double toPixel(int a, double value) const
    {
        const double t =
            (toAxis(a, value) - toAxis(a, shown.min[a])) / (toAxis(a, shown.max[a]) - toAxis(a, shown.min[a]));
        return a == 0 ? plot.left() + t * plot.width() : plot.bottom() - t * plot.height();
    }
    double toValue(int a, double pixel) const
    {
        const double t = a == 0 ? (pixel - plot.left()) / plot.width() : (plot.bottom() - pixel) / plot.height();
        return fromAxis(a, toAxis(a, shown.min[a]) + t * (toAxis(a, shown.max[a]) - toAxis(a, shown.min[a])));
    }
};
