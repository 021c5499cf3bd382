#include "plot/PlotSymbol.h"

#include <QPainter>

PlotSymbol::PlotSymbol(const QString& character, const QFont& font)
{
    if (character.isEmpty())
        return;
    QFont large(font);
    large.setPixelSize(100);
    m_glyph.addText(0, 0, large, character);
    const QRectF box = m_glyph.boundingRect();
    QTransform toUnit;
    const double side = std::max(box.width(), box.height());
    if (side > 0)
        toUnit.scale(2.0 / side, 2.0 / side).translate(-box.center().x(), -box.center().y());
    m_glyph = toUnit.map(m_glyph);
}

void PlotSymbol::draw(QPainter& painter, const QPointF& centre, double radius, const QBrush& fill) const
{
    if (m_glyph.isEmpty()) {
        painter.setPen(QPen(fill.gradient() ? QColor(Qt::darkGray) : fill.color().darker(160), 1));
        painter.setBrush(fill);
        painter.drawEllipse(centre, radius, radius);
        return;
    }
    QTransform place;
    place.translate(centre.x(), centre.y()).scale(radius, radius);
    painter.fillPath(place.map(m_glyph), fill);
}
