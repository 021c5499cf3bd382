#pragma once
#include <vector>
#include <QPointF>
#include <QRectF>
#include <QString>
#include "plot/AxisTicks.h"
#include "plot/PlotGeometry.h"
#include "plot/Render.h"

class QColor;
class QPainter;
struct PlotScene;

// What render() draws with: axes with round ticks, the zones' points, lines,
// symbols and vectors, the key and the title. The object holds only how the
// user looks at the scene.
class PlotPainter
{
public:
    explicit PlotPainter(const PlotViewpoint& view) : m_view(view) {}

    // area in the painter's logical units; returns where the axes went.
    PlotGeometry paint(QPainter& painter, const QRectF& area, const PlotScene& scene) const;

    // Above this many points a layer is drawn through a raster of the axes box.
    static constexpr long ManyPoints = 20000;
    // Rastered layers in an SVG or PDF are drawn at least this fine.
    static constexpr double VectorRasterDpi = 300.0;
    // Device pixels per logical unit for a raster drawn through painter.
    static double rasterRatio(const QPainter& painter);

private:
    struct Projection;

    PlotGeometry paintField(QPainter& painter, const QRectF& area, const PlotScene& scene) const;
    void paintAxes2D(QPainter& painter, const PlotScene& scene, const PlotGeometry& geometry, const AxisTicks::Scale& x,
                     const AxisTicks::Scale& y) const;
    void paintBox3D(QPainter& painter, const Projection& projection, const PlotScene& scene) const;
    void paintLayers(QPainter& painter, const QRectF& plot, const Projection& projection, const PlotScene& scene) const;
    class LineOrder;
    // One Y variable of an XY line plot against X, points in the given order.
    void paintLine(QPainter& painter, const Projection& projection, const LineOrder& order, const double* x,
                   const double* y, const QColor& colour) const;
    void paintTitle(QPainter& painter, const QRectF& area, const QRectF& plot, const PlotScene& scene) const;
    void paintMessage(QPainter& painter, const QRectF& area, const QString& text) const;

    const PlotViewpoint& m_view;
};
