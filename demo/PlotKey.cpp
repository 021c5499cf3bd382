#include "demo/PlotKey.h"

#include <algorithm>
#include <QCoreApplication>
#include <QFontMetricsF>
#include <QLinearGradient>
#include <QPainter>
#include "demo/AxisTicks.h"
#include "demo/ColourRamp.h"
#include "demo/PlotScene.h"
#include "demo/PlotSymbol.h"

namespace {

const double Swatch = 12.0;   // side of a colour square
const double Bar = 14.0;      // width of the colour bar
const double MaxText = 160.0; // a name longer than this is shortened

} // namespace

PlotKey::PlotKey(const PlotScene& scene, const QFont& font) : m_scene(scene), m_font(font)
{
    const QFontMetricsF metrics(font);
    auto textWidth = [&](const QString& text) { return std::min(MaxText, metrics.horizontalAdvance(text)); };
    if (scene.anyRamp()) {
        m_categories = !scene.contourCategories.empty();
        m_colourBar = !m_categories;
        m_width = std::max(m_width, textWidth(scene.contourName));
        if (m_categories)
            for (const std::string& name : scene.contourCategories)
                m_width = std::max(m_width, Swatch + 6 + textWidth(QString::fromStdString(name)));
        else
            m_width = std::max(m_width, Bar + 6 + metrics.horizontalAdvance("-0.000000"));
    }
    // Zones are listed when they can be told apart: by colour, symbol or one picked out.
    m_zones = scene.anyScatter()
              || (scene.zones.size() > 1
                  && std::any_of(scene.zones.begin(), scene.zones.end(), [&](const PlotScene::Zone& z) {
                         return z.faded || z.meshColour != scene.zones.front().meshColour;
                     }));
    if (m_zones)
        for (const PlotScene::Zone& zone : scene.zones)
            m_width = std::max(m_width, 2 * Swatch + 6 + textWidth(zone.name));
    if (scene.anyScatter() && !scene.sizeName.isEmpty())
        m_width = std::max(m_width, 2 * Swatch + 6 + textWidth(sizeText()));
    if (m_width > 0)
        m_width += 16;
}

void PlotKey::paint(QPainter& painter, const QRectF& column) const
{
    if (m_width <= 0)
        return;
    painter.save();
    painter.setFont(m_font);
    QRectF rest = column.adjusted(8, 0, -8, 0);
    if (m_colourBar)
        rest.setTop(paintColourBar(painter, rest));
    else if (m_categories)
        rest.setTop(paintCategories(painter, rest));
    if (m_zones)
        paintZones(painter, rest);
    painter.restore();
}

// Returns where the next part of the key may start.
double PlotKey::paintColourBar(QPainter& painter, const QRectF& column) const
{
    const QFontMetricsF metrics(m_font);
    const double em = metrics.height();
    painter.setPen(Qt::black);
    painter.drawText(QRectF(column.left(), column.top(), column.width(), em), Qt::AlignLeft,
                     metrics.elidedText(m_scene.contourName, Qt::ElideRight, column.width()));
    const double height = std::max(3 * em, std::min(column.height() * 0.55, 260.0));
    const QRectF bar(column.left(), column.top() + em * 1.5, Bar, height - em * 1.5);
    QLinearGradient gradient(bar.bottomLeft(), bar.topLeft());
    for (int s = 0; s <= 10; ++s)
        gradient.setColorAt(s / 10.0, QColor(ColourRamp::at(m_scene.contour.map, s / 10.0)));
    painter.fillRect(bar, gradient);
    painter.setPen(QColor(90, 90, 90));
    painter.drawRect(bar);
    const double min = m_scene.contour.min, max = m_scene.contour.max;
    const AxisTicks::Scale scale = AxisTicks::fit(
        min, max, bar.height(), [em](const QString&) { return em; }, em * 1.2);
    painter.setPen(Qt::black);
    for (const AxisTicks::Tick& tick : scale.ticks) {
        const double y = max > min ? bar.bottom() - (tick.value - min) / (max - min) * bar.height() : bar.center().y();
        painter.drawLine(QPointF(bar.right(), y), QPointF(bar.right() + 3, y));
        painter.drawText(QRectF(bar.right() + 5, y - em / 2, column.width(), em), Qt::AlignLeft | Qt::AlignVCenter,
                         tick.label);
    }
    if (!scale.note.isEmpty())
        painter.drawText(QRectF(column.left(), bar.bottom() + 2, column.width(), em), Qt::AlignLeft, scale.note);
    return bar.bottom() + em * (scale.note.isEmpty() ? 1.0 : 2.2);
}

double PlotKey::paintCategories(QPainter& painter, const QRectF& column) const
{
    const QFontMetricsF metrics(m_font);
    const double row = metrics.height() + 3;
    double y = column.top();
    painter.setPen(Qt::black);
    painter.drawText(QRectF(column.left(), y, column.width(), row), Qt::AlignLeft,
                     metrics.elidedText(m_scene.contourName, Qt::ElideRight, column.width()));
    const size_t count = m_scene.contourCategories.size();
    for (size_t k = 0; k < count; ++k) {
        y += row;
        const double t = count > 1 ? double(k) / double(count - 1) : 0.5;
        const double span = m_scene.contour.max - m_scene.contour.min;
        const double value = span > 0 ? (double(k + 1) - m_scene.contour.min) / span : t;
        painter.fillRect(QRectF(column.left(), y + (row - Swatch) / 2, Swatch, Swatch),
                         QColor(ColourRamp::at(m_scene.contour.map, value)));
        painter.drawText(QRectF(column.left() + Swatch + 6, y, column.width() - Swatch - 6, row),
                         Qt::AlignLeft | Qt::AlignVCenter,
                         metrics.elidedText(QString::fromStdString(m_scene.contourCategories[k]), Qt::ElideRight,
                                            column.width() - Swatch - 6));
    }
    return y + row * 1.8;
}

void PlotKey::paintZones(QPainter& painter, const QRectF& column) const
{
    const QFontMetricsF metrics(m_font);
    const double row = std::max(metrics.height(), 2 * Swatch) + 3;
    double y = column.top();
    for (const PlotScene::Zone& zone : m_scene.zones) {
        if (y + row > column.bottom())
            break;
        const QPointF centre(column.left() + Swatch, y + row / 2);
        const PointColours colours(zone.scatter ? zone.scatterColour : zone.meshColour, zone.zone, m_scene.contour);
        QColor colour = colours.varies() ? QColor(ColourRamp::at(m_scene.contour.map, 0.7)) : QColor(colours.fixed());
        if (zone.faded)
            colour = QColor::fromHsv(colour.hsvHue(), colour.hsvSaturation() / 4, 255 - (255 - colour.value()) / 4);
        if (zone.scatter)
            PlotSymbol(m_scene.symbol, m_font).draw(painter, centre, Swatch * 0.8, colour);
        else
            painter.fillRect(QRectF(centre.x() - Swatch / 2, centre.y() - Swatch / 2, Swatch, Swatch), colour);
        painter.setPen(zone.faded ? Qt::gray : Qt::black);
        painter.drawText(QRectF(column.left() + 2 * Swatch + 6, y, column.width() - 2 * Swatch - 6, row),
                         Qt::AlignLeft | Qt::AlignVCenter,
                         metrics.elidedText(zone.name, Qt::ElideRight, column.width() - 2 * Swatch - 6));
        y += row;
    }
    // Symbols sized by a variable: a small and a large one beside its name.
    if (!m_scene.anyScatter() || m_scene.sizeName.isEmpty() || y + row > column.bottom())
        return;
    const PlotSymbol symbol(m_scene.symbol, m_font);
    symbol.draw(painter, QPointF(column.left() + 4, y + row / 2), 2.5, Qt::gray);
    symbol.draw(painter, QPointF(column.left() + Swatch + 4, y + row / 2), Swatch * 0.8, Qt::gray);
    painter.setPen(Qt::black);
    painter.drawText(QRectF(column.left() + 2 * Swatch + 6, y, column.width() - 2 * Swatch - 6, row),
                     Qt::AlignLeft | Qt::AlignVCenter, sizeText());
}

QString PlotKey::sizeText() const
{
    return QCoreApplication::translate("PlotKey", "size ~ |%1|").arg(m_scene.sizeName);
}
