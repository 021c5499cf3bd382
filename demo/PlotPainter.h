#pragma once
#include <vector>
#include <QColor>
#include <QPointF>
#include <QRectF>
#include <QString>

class QPainter;

// Paints one frame of the host onto a painter. Everything is read from the
// host when paint() is called; the object holds only the 3D view angles.
class PlotPainter
{
public:
    PlotPainter(double yawDegrees, double pitchDegrees) : m_yaw(yawDegrees), m_pitch(pitchDegrees) {}

    void paint(QPainter& painter, const QRectF& area) const;

private:
    struct Axis
    {
        int var = 0;
        double min = 0.0;
        double max = 1.0;
        QString name;
    };
    // Where a point of the data lands on the picture.
    struct Projection;

    void paintField(QPainter& painter, const QRectF& area, bool threeD, bool lines) const;
    void paintFrame2D(QPainter& painter, const QRectF& plot, const Axis& x, const Axis& y) const;
    void paintBox3D(QPainter& painter, const Projection& projection, const Axis axes[3]) const;
    // The names of the categories the points are coloured by, beside their colours.
    void paintCategoryLegend(QPainter& painter, const QRectF& plot, int var) const;
    void paintMessage(QPainter& painter, const QRectF& area, const QString& text) const;

    double m_yaw;
    double m_pitch;
};
