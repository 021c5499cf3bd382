#pragma once
#include <QFont>
#include <QRectF>

struct PlotScene;
class QPainter;

// The key beside the axes: a colour bar (or a legend of its categories) for
// the variable that colours the points, and the zones with their symbols.
class PlotKey
{
public:
    PlotKey(const PlotScene& scene, const QFont& font);

    // The room the key needs beside the axes; 0 when there is nothing to explain.
    double width() const { return m_width; }
    void paint(QPainter& painter, const QRectF& column) const;

private:
    double paintColourBar(QPainter& painter, const QRectF& column) const;
    double paintCategories(QPainter& painter, const QRectF& column) const;
    void paintZones(QPainter& painter, const QRectF& column) const;
    QString sizeText() const;

    const PlotScene& m_scene;
    QFont m_font;
    bool m_colourBar = false;
    bool m_categories = false;
    bool m_zones = false;
    double m_width = 0.0;
};
