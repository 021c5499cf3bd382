#pragma once
#include <QFont>
#include <QRectF>
#include "plot/AxisTicks.h"

struct PlotScene;
class QPainter;

// The key beside the axes: a colour bar (or a legend of its categories) for
// the variable that colours the points, the Y variables of an XY line plot
// drawing several, and the zones with their symbols.
// Every text is shown whole; the key is as wide as its widest.
class PlotKey
{
public:
    // height: of the column the key will be painted in; 0 for a key stacked
    // below the axes, its colour bar at its shortest.
    PlotKey(const PlotScene& scene, const QFont& font, double height);

    // The room the key needs beside the axes; 0 when there is nothing to explain.
    double columnWidth() const { return m_width; }
    // The height of the whole key in a column of its width: what a key built
    // with height 0 needs below the axes.
    double stackedHeight() const;
    void paint(QPainter& painter, const QRectF& column) const;

private:
    double paintColourBar(QPainter& painter, const QRectF& column) const;
    double paintCategories(QPainter& painter, const QRectF& column) const;
    double paintLines(QPainter& painter, const QRectF& column) const;
    void paintZones(QPainter& painter, const QRectF& column) const;
    QString sizeText() const;
    // The colour bar within a column.
    QRectF barIn(const QRectF& column) const;
    // Where the next part of the key starts after a colour bar in column.
    double belowBar(const QRectF& column) const;
    // Heights of a row of text and of a zone's row.
    double textRow() const;
    double zoneRow() const;
    bool sizeRow() const;

    const PlotScene& m_scene;
    QFont m_font;
    bool m_colourBar = false;
    bool m_categories = false;
    bool m_lines = false;
    bool m_zones = false;
    AxisTicks::Scale m_barScale;
    double m_barHeight = 0.0; // with the variable's name above it
    double m_width = 0.0;
};
