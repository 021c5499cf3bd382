#pragma once
#include <QBrush>
#include <QFont>
#include <QPainterPath>

class QPainter;

// A scatter symbol: a disc, or a character drawn as an outline so that
// thousands of them cost one glyph lookup.
class PlotSymbol
{
public:
    PlotSymbol(const QString& character, const QFont& font);

    // fill: a colour, or a gradient (a disc then has a grey rim).
    void draw(QPainter& painter, const QPointF& centre, double radius, const QBrush& fill) const;

private:
    QPainterPath m_glyph; // centred on the origin, one unit high; empty for a disc
};
