#include "plot/PlotKey.h"

#include <algorithm>
#include <QCoreApplication>
#include <QFontMetricsF>
#include <QLinearGradient>
#include <QPainter>
#include "plot/AxisTicks.h"
#include "plot/ColourRamp.h"
#include "plot/PlotScene.h"
#include "plot/PlotSymbol.h"

namespace {

const double Swatch = 12.0; // side of a colour square
const double Bar = 14.0;    // width of the colour bar
// Between the labels of the colour bar, in line heights.
const double BarGap = 1.2, BarSpacing = 3.0;

} // namespace

PlotKey::PlotKey(const PlotScene& scene, const QFont& font, double height) : m_scene(scene), m_font(font)
{
    const QFontMetricsF metrics(font);
    const double em = metrics.height();
    auto textWidth = [&](const QString& text) { return metrics.horizontalAdvance(text); };
    if (scene.anyRamp()) {
        m_categories = !scene.contourCategories.empty();
        m_colourBar = !m_categories;
        m_width = std::max(m_width, textWidth(scene.contourName));
        if (m_categories)
            for (const std::string& name : scene.contourCategories)
                m_width = std::max(m_width, Swatch + 6 + textWidth(QString::fromStdString(name)));
        else {
            AxisTicks::Options options;
            options.integers = scene.contourIntegers;
            options.spacing = BarSpacing * em;
            m_barHeight = std::max(4 * em, std::min(height * 0.55, 260.0));
            m_barScale = AxisTicks::fit(
                scene.contour.min, scene.contour.max, barIn(QRectF()).height(), [em](const QString&) { return em; },
                BarGap * em, options);
            for (const AxisTicks::Tick& tick : m_barScale.ticks)
                m_width = std::max(m_width, Bar + 5 + textWidth(tick.label));
            m_width = std::max(m_width, textWidth(m_barScale.note));
        }
    }
    // The lines of several Y variables, each in its colour.
    m_lines = scene.lines && scene.lineVars.size() > 1 && !scene.zones.empty();
    if (m_lines)
        for (const QString& name : scene.lineNames)
            m_width = std::max(m_width, 2 * Swatch + 6 + textWidth(name));
    // Zones are listed when they can be told apart: by colour, symbol or one picked out.
    m_zones = scene.anyScatter()
              || (scene.zones.size() > 1
                  && std::any_of(scene.zones.begin(), scene.zones.end(), [&](const PlotScene::Zone& z) {
                         return z.faded || !z.meshColours.sameAs(scene.zones.front().meshColours);
                     }));
    if (m_zones)
        for (const PlotScene::Zone& zone : scene.zones)
            m_width = std::max(m_width, 2 * Swatch + 6 + textWidth(zone.name));
    if (sizeRow())
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
    if (m_lines)
        rest.setTop(paintLines(painter, rest));
    if (m_zones)
        paintZones(painter, rest);
    painter.restore();
}

QRectF PlotKey::barIn(const QRectF& column) const
{
    // Below the name, with half a line for the top label to reach over the bar's end.
    const double em = QFontMetricsF(m_font).height();
    return QRectF(column.left(), column.top() + em * 1.6, Bar, m_barHeight - em * 1.6);
}

// Returns where the next part of the key may start.
double PlotKey::paintColourBar(QPainter& painter, const QRectF& column) const
{
    const QFontMetricsF metrics(m_font);
    const double em = metrics.height();
    painter.setPen(Qt::black);
    painter.drawText(QRectF(column.left(), column.top(), column.width(), em), Qt::AlignLeft | Qt::TextDontClip,
                     m_scene.contourName);
    const QRectF bar = barIn(column);
    QLinearGradient gradient(bar.bottomLeft(), bar.topLeft());
    for (int s = 0; s <= 10; ++s)
        gradient.setColorAt(s / 10.0, QColor(ColourRamp::at(m_scene.contour.map, s / 10.0)));
    painter.fillRect(bar, gradient);
    painter.setPen(QColor(90, 90, 90));
    painter.drawRect(bar);
    const double min = m_scene.contour.min, max = m_scene.contour.max;
    painter.setPen(Qt::black);
    for (const AxisTicks::Tick& tick : m_barScale.ticks) {
        const double y = max > min ? bar.bottom() - (tick.value - min) / (max - min) * bar.height() : bar.center().y();
        painter.drawLine(QPointF(bar.right(), y), QPointF(bar.right() + 3, y));
        painter.drawText(QRectF(bar.right() + 5, y - em / 2, column.width(), em),
                         Qt::AlignLeft | Qt::AlignVCenter | Qt::TextDontClip, tick.label);
    }
    // The power of ten or offset on a line of its own, below the lowest label's reach.
    if (!m_barScale.note.isEmpty())
        painter.drawText(QRectF(column.left(), bar.bottom() + em / 2 + 2, column.width(), em),
                         Qt::AlignLeft | Qt::TextDontClip, m_barScale.note);
    return belowBar(column);
}

double PlotKey::belowBar(const QRectF& column) const
{
    const double em = QFontMetricsF(m_font).height();
    return barIn(column).bottom() + em / 2 + 2 + em * (m_barScale.note.isEmpty() ? 0.5 : 1.5);
}

double PlotKey::textRow() const
{
    return QFontMetricsF(m_font).height() + 3;
}

double PlotKey::zoneRow() const
{
    return std::max(QFontMetricsF(m_font).height(), 2 * Swatch) + 3;
}

bool PlotKey::sizeRow() const
{
    return m_scene.anyScatter() && !m_scene.sizeName.isEmpty();
}

double PlotKey::stackedHeight() const
{
    if (m_width <= 0)
        return 0.0;
    double height = 0.0;
    if (m_colourBar)
        height += belowBar(QRectF());
    else if (m_categories)
        height += textRow() * (double(m_scene.contourCategories.size()) + 1.8);
    if (m_lines)
        height += textRow() * (double(m_scene.lineNames.size()) + 0.8);
    if (m_zones)
        height += zoneRow() * (double(m_scene.zones.size()) + (sizeRow() ? 1 : 0));
    return height;
}

double PlotKey::paintCategories(QPainter& painter, const QRectF& column) const
{
    const double row = textRow();
    double y = column.top();
    painter.setPen(Qt::black);
    painter.drawText(QRectF(column.left(), y, column.width(), row), Qt::AlignLeft | Qt::TextDontClip,
                     m_scene.contourName);
    const size_t count = m_scene.contourCategories.size();
    for (size_t k = 0; k < count; ++k) {
        y += row;
        const double t = count > 1 ? double(k) / double(count - 1) : 0.5;
        const double span = m_scene.contour.max - m_scene.contour.min;
        const double value = span > 0 ? (double(k + 1) - m_scene.contour.min) / span : t;
        painter.fillRect(QRectF(column.left(), y + (row - Swatch) / 2, Swatch, Swatch),
                         QColor(ColourRamp::at(m_scene.contour.map, value)));
        painter.drawText(QRectF(column.left() + Swatch + 6, y, column.width() - Swatch - 6, row),
                         Qt::AlignLeft | Qt::AlignVCenter | Qt::TextDontClip,
                         QString::fromStdString(m_scene.contourCategories[k]));
    }
    return y + row * 1.8;
}

// Returns where the next part of the key may start.
double PlotKey::paintLines(QPainter& painter, const QRectF& column) const
{
    const double row = textRow();
    const PlotScene::Zone& first = m_scene.zones.front();
    const QRgb zoneColour = first.meshColours.fixed();
    double y = column.top();
    for (int line = 0; line < m_scene.lineNames.size() && y + row <= column.bottom(); ++line, y += row) {
        painter.setPen(QPen(QColor(m_scene.lineColour(size_t(line), zoneColour)), 2));
        painter.drawLine(QPointF(column.left(), y + row / 2), QPointF(column.left() + 2 * Swatch, y + row / 2));
        painter.setPen(Qt::black);
        painter.drawText(QRectF(column.left() + 2 * Swatch + 6, y, column.width() - 2 * Swatch - 6, row),
                         Qt::AlignLeft | Qt::AlignVCenter | Qt::TextDontClip, m_scene.lineNames[line]);
    }
    return y + row * 0.8;
}

void PlotKey::paintZones(QPainter& painter, const QRectF& column) const
{
    const double row = zoneRow();
    double y = column.top();
    for (const PlotScene::Zone& zone : m_scene.zones) {
        if (y + row > column.bottom())
            break;
        const QPointF centre(column.left() + Swatch, y + row / 2);
        const PointColours& colours = zone.scatter ? zone.scatterColours : zone.meshColours;
        const auto shown = [&zone](QColor colour) {
            return zone.faded
                       ? QColor::fromHsv(colour.hsvHue(), colour.hsvSaturation() / 4, 255 - (255 - colour.value()) / 4)
                       : colour;
        };
        QBrush fill(shown(colours.ramped() ? ColourRamp::at(m_scene.contour.map, 0.7) : colours.fixed()));
        if (colours.varies() && !colours.ramped()) { // red, green and blue from variables: all three
            QLinearGradient spread(centre.x() - Swatch / 2, 0, centre.x() + Swatch / 2, 0);
            spread.setColorAt(0.0, shown(Qt::red));
            spread.setColorAt(0.5, shown(Qt::green));
            spread.setColorAt(1.0, shown(Qt::blue));
            fill = QBrush(spread);
        }
        if (zone.scatter)
            PlotSymbol(m_scene.symbol, m_font).draw(painter, centre, Swatch * 0.8, fill);
        else
            painter.fillRect(QRectF(centre.x() - Swatch / 2, centre.y() - Swatch / 2, Swatch, Swatch), fill);
        painter.setPen(zone.faded ? Qt::gray : Qt::black);
        painter.drawText(QRectF(column.left() + 2 * Swatch + 6, y, column.width() - 2 * Swatch - 6, row),
                         Qt::AlignLeft | Qt::AlignVCenter | Qt::TextDontClip, zone.name);
        y += row;
    }
    // Symbols sized by a variable: a small and a large one beside its name.
    if (!sizeRow() || y + row > column.bottom())
        return;
    const PlotSymbol symbol(m_scene.symbol, m_font);
    symbol.draw(painter, QPointF(column.left() + 4, y + row / 2), 2.5, Qt::gray);
    symbol.draw(painter, QPointF(column.left() + Swatch + 4, y + row / 2), Swatch * 0.8, Qt::gray);
    painter.setPen(Qt::black);
    painter.drawText(QRectF(column.left() + 2 * Swatch + 6, y, column.width() - 2 * Swatch - 6, row),
                     Qt::AlignLeft | Qt::AlignVCenter | Qt::TextDontClip, sizeText());
}

QString PlotKey::sizeText() const
{
    return QCoreApplication::translate("PlotKey", "size ~ |%1|").arg(m_scene.sizeName);
}
