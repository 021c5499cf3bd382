#include "plot/PlotPainter.h"
#include "plot/LineReduction.h"

#include <algorithm>
#include <cmath>
#include <limits>
#include <memory>
#include <numeric>
#include <QCoreApplication>
#include <QFontMetricsF>
#include <QPaintDevice>
#include <QPaintEngine>
#include <QPainter>
#include <QPainterPath>
#include "plot/AxisTicks.h"
#include "plot/ColourRamp.h"
#include "plot/PlotKey.h"
#include "plot/PlotScene.h"
#include "plot/PlotSymbol.h"
#include "plot/PointRaster.h"

namespace {

const double Pi = 3.14159265358979323846;
const double LongestArrowPx = 32.0; // vectors are scaled so that the longest is this long
const double CmInPixels = 96.0 / 2.54;
// Space between neighbouring tick labels, in line heights: enough for the eye to tell them apart.
const double XGap = 2.0, YGap = 2.2;
// The distance between ticks a reader likes, in line heights.
const double XSpacing = 7.0, YSpacing = 5.0;
// Between the axes' box and its tick labels, in pixels.
const double TickRoom = 6.0;
// The most of a view's width the key may take beside the axes, and of its height below them.
const double KeyShare = 0.25;

QString tr(const char* text)
{
    return QCoreApplication::translate("PlotPainter", text);
}

QFont titleFont(const QFont& base)
{
    QFont font(base);
    font.setBold(true);
    if (base.pointSizeF() > 0)
        font.setPointSizeF(base.pointSizeF() * 1.2);
    else
        font.setPixelSize(int(base.pixelSize() * 1.2));
    return font;
}

// A zone that is not the one picked out is drawn pale.
QRgb faded(QRgb c, bool fade)
{
    if (!fade)
        return c;
    auto pale = [](int v) { return 255 - int((255 - v) * 0.25); };
    return qRgb(pale(qRed(c)), pale(qGreen(c)), pale(qBlue(c)));
}

// The range an axis shows: the data's with a margin, so that no point sits on the frame.
void padded(const PlotScene::Axis& axis, double& min, double& max)
{
    min = axis.min;
    max = axis.max;
    if (axis.log) {
        const double lo = std::log10(min), hi = std::log10(max);
        const double pad = hi > lo ? 0.04 * (hi - lo) : 0.5;
        min = std::pow(10.0, lo - pad);
        max = std::pow(10.0, hi + pad);
        return;
    }
    const double span = max - min;
    if (!(span > 0.0) || !std::isfinite(span)) {
        const double half = std::isfinite(span) && min != 0.0 ? std::abs(min) * 0.1 : 0.5;
        min -= half;
        max += half;
        if (!std::isfinite(max - min)) { // a range across the whole of the doubles
            min /= 2;
            max /= 2;
        }
        return;
    }
    const double pad = std::max(0.04 * span, axis.categories.empty() ? 0.0 : 0.4);
    if (std::isfinite(span + 2 * pad)) {
        min -= pad;
        max += pad;
    }
}

// The ticks of one axis of a 2D frame, with the room its labels take as they will be drawn.
AxisTicks::Scale scaleFor(const PlotScene::Axis& axis, const PlotGeometry& geometry, int a,
                          const QFontMetricsF& metrics)
{
    const double em = metrics.height();
    const double min = geometry.shown.min[a], max = geometry.shown.max[a];
    const double length = a == 0 ? geometry.plot.width() : geometry.plot.height();
    // Along X a label takes its width, along Y its height.
    const AxisTicks::Extent extent =
        a == 0 ? AxisTicks::Extent([&](const QString& t) { return metrics.horizontalAdvance(t); })
               : AxisTicks::Extent([em](const QString&) { return em; });
    const double gap = (a == 0 ? XGap : YGap) * em;
    if (!axis.categories.empty()) {
        const AxisTicks::Position position = [&](double v) {
            return std::abs(geometry.toPixel(a, v) - geometry.toPixel(a, min));
        };
        return AxisTicks::categories(min, max, axis.categories, position, extent, gap);
    }
    if (axis.log)
        return AxisTicks::fitLog(min, max, length, extent, gap);
    AxisTicks::Options options;
    options.integers = axis.integers;
    options.spacing = (a == 0 ? XSpacing : YSpacing) * em;
    return AxisTicks::fit(min, max, length, extent, gap, options);
}

double widest(const AxisTicks::Scale& scale, const QFontMetricsF& metrics)
{
    double width = 0.0;
    for (const AxisTicks::Tick& tick : scale.ticks)
        width = std::max(width, metrics.horizontalAdvance(tick.label));
    return width;
}

} // namespace

struct PlotPainter::Projection
{
    bool threeD = false;
    // 2D: screen = offset + scale * axis units
    bool log[2] = {false, false};
    double ox = 0, sx = 1, oy = 0, sy = 1;
    // 3D: values normalized to -1..1, rotated, scaled about the centre
    double centre[2] = {0, 0};
    double scale = 1;
    double lo[3] = {0, 0, 0}, span[3] = {1, 1, 1};
    double m[2][3] = {{1, 0, 0}, {0, 1, 0}};

    void set2D(const PlotGeometry& g)
    {
        for (int a = 0; a < 2; ++a)
            log[a] = g.log[a];
        sx = g.plot.width() / (g.toAxis(0, g.shown.max[0]) - g.toAxis(0, g.shown.min[0]));
        ox = g.plot.left() - sx * g.toAxis(0, g.shown.min[0]);
        sy = -g.plot.height() / (g.toAxis(1, g.shown.max[1]) - g.toAxis(1, g.shown.min[1]));
        oy = g.plot.bottom() - sy * g.toAxis(1, g.shown.min[1]);
    }

    QPointF map(double x, double y, double z = 0.0) const
    {
        if (!threeD)
            return QPointF(ox + sx * (log[0] ? std::log10(x) : x), oy + sy * (log[1] ? std::log10(y) : y));
        const double n[3] = {2.0 * (x - lo[0]) / span[0] - 1.0, 2.0 * (y - lo[1]) / span[1] - 1.0,
                             2.0 * (z - lo[2]) / span[2] - 1.0};
        return QPointF(centre[0] + scale * (m[0][0] * n[0] + m[0][1] * n[1] + m[0][2] * n[2]),
                       centre[1] - scale * (m[1][0] * n[0] + m[1][1] * n[1] + m[1][2] * n[2]));
    }
};

// The order an XY line visits its points in: the scene's own while X never
// falls with the index (a time series, read once and without a copy), else
// sorted by X. Points without an X are left out.
class PlotPainter::LineOrder
{
public:
    LineOrder(const PlotScene& scene, long points, const double* x) : m_scene(scene), m_points(points), m_x(x) {}

    // Visits the points in order; false, having sorted them, when X turned out
    // to fall: the caller starts again.
    template <typename Visit>
    bool forEach(const Visit& visit) const
    {
        if (!m_sorted) {
            for (long i : m_order)
                visit(i);
            return true;
        }
        double previous = -std::numeric_limits<double>::infinity();
        bool rising = true;
        m_scene.forEachIndex(m_points, [&](long i) {
            if (!rising || !PlotScene::drawable(m_x[i]))
                return;
            rising = m_x[i] >= previous;
            previous = m_x[i];
            if (rising)
                visit(i);
        });
        if (!rising)
            sort();
        return rising;
    }

private:
    void sort() const
    {
        m_sorted = false;
        m_order.reserve(size_t(m_scene.countIn(m_points)));
        m_scene.forEachIndex(m_points, [&](long i) {
            if (PlotScene::drawable(m_x[i]))
                m_order.push_back(i);
        });
        const double* x = m_x;
        std::stable_sort(m_order.begin(), m_order.end(), [x](long a, long b) { return x[a] < x[b]; });
    }

    const PlotScene& m_scene;
    long m_points;
    const double* m_x;
    mutable bool m_sorted = true;
    mutable std::vector<long> m_order;
};

PlotGeometry PlotPainter::paint(QPainter& painter, const QRectF& area, const PlotScene& scene) const
{
    painter.fillRect(area, Qt::white);
    painter.setPen(Qt::black);
    if (!scene.problem.isEmpty()) {
        paintMessage(painter, area, scene.problem);
        return {};
    }
    const double em = QFontMetricsF(painter.font()).height();
    if (area.width() < 8 * em || area.height() < 6 * em) {
        paintMessage(painter, area, tr("Too small for a plot"));
        return {};
    }
    return paintField(painter, area, scene);
}

void PlotPainter::paintMessage(QPainter& painter, const QRectF& area, const QString& text) const
{
    painter.setPen(Qt::darkGray);
    painter.drawText(area, Qt::AlignCenter | Qt::TextWordWrap, text);
}

PlotGeometry PlotPainter::paintField(QPainter& painter, const QRectF& area, const PlotScene& scene) const
{
    const QFontMetricsF metrics(painter.font());
    const double em = metrics.height();
    const double titleHeight = QFontMetricsF(titleFont(painter.font())).height() * 1.5;
    const double top = scene.anchor / 3 == 0 ? titleHeight : em;
    const double bottom = (scene.threeD ? em : 2.4 * em + 10) + (scene.anchor / 3 == 2 ? titleHeight : 0.0)
                          + (scene.notes.isEmpty() ? 0.0 : em * scene.notes.size());

    // Where the key would take too much of a narrow view's width, it goes below the axes if
    // it takes little of the height there.
    std::unique_ptr<PlotKey> key = std::make_unique<PlotKey>(scene, painter.font(), 0.0);
    const bool keyBelow =
        key->columnWidth() > KeyShare * area.width() && key->stackedHeight() < KeyShare * area.height();
    const double keyHeight = keyBelow ? key->stackedHeight() : 0.0;
    double keyBeside = 0.0; // the width of the key's column beside the axes, once it is built for it
    const double axisLabels = scene.threeD ? em : 2.4 * em + 10;

    Projection p;
    PlotGeometry geometry;
    QRectF plot;
    QRectF field = area; // where the 3D box and its points may reach
    if (scene.threeD) {
        if (!keyBelow) {
            key = std::make_unique<PlotKey>(scene, painter.font(), area.height() - top - em);
            keyBeside = key->columnWidth();
        }
        plot = area.adjusted(3 * em, top, -keyBeside - 3 * em, -bottom - em - keyHeight);
        geometry.plot = plot;
        geometry.threeD = p.threeD = true;
        p.centre[0] = plot.center().x();
        p.centre[1] = plot.center().y();
        // A turned cube reaches up to sqrt(3) half-sides from its centre.
        p.scale = std::min(plot.width(), plot.height()) / (2 * 1.75) * m_view.zoom;
        for (int a = 0; a < 3; ++a) {
            double min = 0, max = 0;
            padded(scene.axes[a], min, max);
            p.lo[a] = min;
            p.span[a] = max - min;
        }
        const double yaw = m_view.yaw * Pi / 180.0, pitch = m_view.pitch * Pi / 180.0;
        // Turn about the vertical (z) axis, then tilt towards the viewer.
        p.m[0][0] = std::cos(yaw);
        p.m[0][1] = -std::sin(yaw);
        p.m[0][2] = 0.0;
        p.m[1][0] = std::sin(yaw) * std::sin(pitch);
        p.m[1][1] = std::cos(yaw) * std::sin(pitch);
        p.m[1][2] = std::cos(pitch);
        painter.save();
        // Zoomed in, the box may outgrow its room: it stays clear of the key.
        if (m_view.zoom > 1.0) {
            field = area.adjusted(0, 0, -keyBeside, -keyHeight);
            painter.setClipRect(field);
        }
        paintBox3D(painter, p, scene);
        painter.restore();
    } else {
        for (int a = 0; a < 2; ++a) {
            geometry.log[a] = scene.axes[a].log;
            geometry.names[a] = scene.axes[a].name;
            if (m_view.window) {
                geometry.shown.min[a] = m_view.window->min[a];
                geometry.shown.max[a] = m_view.window->max[a];
            } else
                padded(scene.axes[a], geometry.shown.min[a], geometry.shown.max[a]);
        }
        // Y first: its labels' widths decide the left margin, its note a row above the axes.
        geometry.plot = area.adjusted(0, top, 0, -bottom - keyHeight);
        AxisTicks::Scale y = scaleFor(scene.axes[1], geometry, 1, metrics);
        if (!y.note.isEmpty()) {
            geometry.plot.setTop(area.top() + top + 1.5 * em + 4);
            y = scaleFor(scene.axes[1], geometry, 1, metrics);
        }
        if (!keyBelow) {
            key = std::make_unique<PlotKey>(scene, painter.font(), area.bottom() - geometry.plot.top() - em);
            keyBeside = key->columnWidth();
        }
        geometry.plot.setLeft(area.left() + widest(y, metrics) + TickRoom + 1.6 * em + 4);
        geometry.plot.setRight(area.right() - keyBeside - em);
        // The last X label may reach past the axes, not past the figure or into the key.
        const double limit = area.right() - (keyBeside > 0 ? keyBeside : 2.0);
        AxisTicks::Scale x = scaleFor(scene.axes[0], geometry, 0, metrics);
        for (int round = 0; round < 3 && !x.ticks.empty(); ++round) {
            const double reach =
                geometry.toPixel(0, x.ticks.back().value) + metrics.horizontalAdvance(x.ticks.back().label) / 2;
            if (reach <= limit)
                break;
            geometry.plot.setRight(geometry.plot.right() - (reach - limit));
            x = scaleFor(scene.axes[0], geometry, 0, metrics);
        }
        geometry.navigable = true;
        plot = geometry.plot;
        p.set2D(geometry);
        paintAxes2D(painter, scene, geometry, x, y);
    }
    paintLayers(painter, scene.threeD ? field : plot, p, scene);
    if (keyBelow)
        key->paint(painter, QRectF(plot.left() - 8, plot.bottom() + axisLabels, key->columnWidth(), keyHeight));
    else
        key->paint(painter, QRectF(area.right() - keyBeside, plot.top(), keyBeside, area.bottom() - plot.top() - em));
    paintTitle(painter, area, plot, scene);
    painter.setPen(Qt::darkGray);
    for (int n = 0; n < scene.notes.size(); ++n)
        painter.drawText(QRectF(area.left() + 4, area.bottom() - em * (scene.notes.size() - n), area.width() - 8, em),
                         Qt::AlignLeft | Qt::TextDontClip, scene.notes[n]);
    return geometry;
}

void PlotPainter::paintAxes2D(QPainter& painter, const PlotScene& scene, const PlotGeometry& geometry,
                              const AxisTicks::Scale& x, const AxisTicks::Scale& y) const
{
    const QFontMetricsF metrics(painter.font());
    const double em = metrics.height();
    const QRectF& plot = geometry.plot;
    const auto width = [&](const QString& t) { return metrics.horizontalAdvance(t); };
    const double yLabels = widest(y, metrics);

    painter.save();
    painter.setPen(QPen(QColor(232, 232, 232), 1));
    for (const AxisTicks::Tick& tick : x.ticks)
        painter.drawLine(QPointF(geometry.toPixel(0, tick.value), plot.top()),
                         QPointF(geometry.toPixel(0, tick.value), plot.bottom()));
    for (const AxisTicks::Tick& tick : y.ticks)
        painter.drawLine(QPointF(plot.left(), geometry.toPixel(1, tick.value)),
                         QPointF(plot.right(), geometry.toPixel(1, tick.value)));
    painter.setPen(QPen(Qt::black, 1));
    painter.setBrush(Qt::NoBrush);
    painter.drawRect(plot);
    for (double value : x.minor)
        painter.drawLine(QPointF(geometry.toPixel(0, value), plot.bottom()),
                         QPointF(geometry.toPixel(0, value), plot.bottom() + 2));
    for (double value : y.minor)
        painter.drawLine(QPointF(plot.left() - 2, geometry.toPixel(1, value)),
                         QPointF(plot.left(), geometry.toPixel(1, value)));
    const int flags = Qt::AlignCenter | Qt::TextDontClip;
    for (const AxisTicks::Tick& tick : x.ticks) {
        const double px = geometry.toPixel(0, tick.value);
        painter.drawLine(QPointF(px, plot.bottom()), QPointF(px, plot.bottom() + 4));
        const double w = width(tick.label);
        painter.drawText(QRectF(px - w / 2 - 1, plot.bottom() + 5, w + 2, em), flags, tick.label);
    }
    for (const AxisTicks::Tick& tick : y.ticks) {
        const double py = geometry.toPixel(1, tick.value);
        painter.drawLine(QPointF(plot.left() - 4, py), QPointF(plot.left(), py));
        painter.drawText(QRectF(plot.left() - TickRoom - yLabels, py - em / 2, yLabels, em),
                         Qt::AlignRight | Qt::AlignVCenter | Qt::TextDontClip, tick.label);
    }
    // Offsets and powers of ten once, at the axis ends; the titles take the room left.
    const double titleRow = plot.bottom() + 10 + em;
    const double xNote = x.note.isEmpty() ? 0.0 : width(x.note) + em;
    painter.drawText(QRectF(plot.right() - xNote, titleRow, xNote, em), Qt::AlignRight | Qt::TextDontClip, x.note);
    if (!y.note.isEmpty())
        // Above the reach of a label at the axis's top.
        painter.drawText(QRectF(plot.left() - TickRoom - yLabels, plot.top() - 1.5 * em - 2, width(y.note) + 2, em),
                         Qt::AlignLeft | Qt::AlignBottom | Qt::TextDontClip, y.note);
    // A title wider than its room moves left of the note rather than under it.
    const double xTitle = width(scene.axes[0].title);
    const double xTitleLeft =
        std::min(plot.center().x() - xTitle / 2, plot.right() - xNote - xTitle - (xNote > 0 ? em : 0.0));
    painter.drawText(QRectF(xTitleLeft, titleRow, xTitle, em), Qt::AlignLeft | Qt::TextDontClip, scene.axes[0].title);
    painter.translate(plot.left() - TickRoom - yLabels - 4, plot.center().y());
    painter.rotate(-90);
    painter.drawText(QRectF(-plot.height() / 2, -em, plot.height(), em),
                     Qt::AlignHCenter | Qt::AlignBottom | Qt::TextDontClip, scene.axes[1].title);
    painter.restore();
}

void PlotPainter::paintBox3D(QPainter& painter, const Projection& p, const PlotScene& scene) const
{
    const QFontMetricsF metrics(painter.font());
    const double em = metrics.height();
    auto corner = [&](int i) {
        return p.map(p.lo[0] + (i & 1 ? p.span[0] : 0.0), p.lo[1] + (i & 2 ? p.span[1] : 0.0),
                     p.lo[2] + (i & 4 ? p.span[2] : 0.0));
    };
    painter.save();
    painter.setPen(QPen(QColor(170, 170, 170), 1));
    for (int i = 0; i < 8; ++i)
        for (int bit = 1; bit < 8; bit <<= 1)
            if (!(i & bit))
                painter.drawLine(corner(i), corner(i | bit));
    const QPointF middle(p.centre[0], p.centre[1]);
    for (int a = 0; a < 3; ++a) {
        // Of the four edges along the axis: X and Y on the lowest, Z on the leftmost, outside the points.
        int start = -1;
        for (int i = 0; i < 8; ++i) {
            if (i & (1 << a))
                continue;
            const QPointF mid = (corner(i) + corner(i | (1 << a))) / 2;
            const QPointF best = start < 0 ? mid : (corner(start) + corner(start | (1 << a))) / 2;
            if (start < 0 || (a < 2 ? mid.y() > best.y() : mid.x() < best.x()))
                start = i;
        }
        const QPointF from = corner(start), to = corner(start | (1 << a));
        const QPointF along = to - from;
        const double length = std::hypot(along.x(), along.y());
        painter.setPen(Qt::black);
        painter.drawLine(from, to);
        // Labels sit beside the edge, on the side away from the box's centre, and
        // take along it the room of their width or height, as the edge runs.
        const QPointF unit = length > 0 ? along / length : QPointF(1, 0);
        QPointF out(-unit.y(), unit.x());
        const QPointF fromCentre = (from + to) / 2 - middle;
        if (out.x() * fromCentre.x() + out.y() * fromCentre.y() < 0)
            out = -out;
        const auto extent = [&](const QString& t) {
            return std::abs(unit.x()) * metrics.horizontalAdvance(t) + std::abs(unit.y()) * em;
        };
        const AxisTicks::Scale scale = AxisTicks::fit(p.lo[a], p.lo[a] + p.span[a], length, extent, em);
        // How far a label's centre stands off the edge for it to clear the edge.
        const auto offset = [&](double w) { return 6 + std::abs(out.x()) * w / 2 + std::abs(out.y()) * em / 2; };
        double widest = 0.0;
        for (const AxisTicks::Tick& tick : scale.ticks) {
            const QPointF at = from + along * ((tick.value - p.lo[a]) / p.span[a]);
            painter.drawLine(at, at + out * 4);
            const double w = metrics.horizontalAdvance(tick.label);
            widest = std::max(widest, w);
            const QPointF centre = at + out * offset(w);
            painter.drawText(QRectF(centre.x() - w / 2 - 1, centre.y() - em / 2, w + 2, em),
                             Qt::AlignCenter | Qt::TextDontClip, tick.label);
        }
        // The name beside the middle of the edge, beyond its tick labels.
        const QString name = scale.note.isEmpty() ? scene.axes[a].title : scene.axes[a].title + " " + scale.note;
        const double w = metrics.horizontalAdvance(name);
        const QPointF centre = (from + to) / 2 + out * (2 * offset(widest) - 6 + offset(w) - offset(0) + 4);
        painter.drawText(QRectF(centre.x() - w / 2 - 1, centre.y() - em / 2, w + 2, em),
                         Qt::AlignCenter | Qt::TextDontClip, name);
    }
    painter.restore();
}

double PlotPainter::rasterRatio(const QPainter& painter)
{
    const QTransform& world = painter.worldTransform();
    const double scale = std::sqrt(std::abs(world.determinant()));
    const double device = painter.device() ? painter.device()->devicePixelRatioF() : 1.0;
    // A drawing or a document is printed or zoomed: its rastered layers get print resolution.
    const QPaintEngine* engine = painter.paintEngine();
    const bool vector = engine && (engine->type() == QPaintEngine::SVG || engine->type() == QPaintEngine::Pdf);
    return std::max(device * (scale > 0.0 ? scale : 1.0), vector ? VectorRasterDpi / 96.0 : 0.0);
}

void PlotPainter::paintLayers(QPainter& painter, const QRectF& clip, const Projection& p, const PlotScene& scene) const
{
    painter.save();
    painter.setClipRect(clip);
    const double ratio = rasterRatio(painter);
    const double baseRadius = std::max(2.0, scene.mediumPercent / 100.0 * std::min(clip.height(), clip.width()) / 2.0);
    const double largestRadius = std::max(baseRadius, std::min(clip.width(), clip.height()) / 12.0);
    const PlotSymbol symbol(scene.symbol, painter.font());
    double longestArrow = 0.0;
    struct Arrow
    {
        QPointF from, delta;
    };
    std::vector<Arrow> arrows;

    for (const PlotScene::Zone& zone : scene.zones) {
        const double* const* v = zone.values;
        if (!v[0] || !v[1] || (scene.threeD && !v[2]))
            continue;
        // Missing values (NaN) leave their point out, as do values too large or small to draw; on a log axis so
        // do values that are not positive.
        auto at = [&](long i, QPointF& out) {
            const double x = v[0][i], y = v[1][i], z = scene.threeD ? v[2][i] : 0.0;
            if (!PlotScene::drawable(x) || !PlotScene::drawable(y) || !PlotScene::drawable(z) || (p.log[0] && x <= 0)
                || (p.log[1] && y <= 0))
                return false;
            out = p.map(x, y, z);
            return true;
        };
        const PointColours& mesh = zone.meshColours;
        if (scene.lines) {
            // In the order of the index variable (X); a missing Y leaves a gap.
            const LineOrder order(scene, zone.points, v[0]); // shared by the lines of the zone
            for (size_t line = 0; line < zone.lineValues.size(); ++line)
                if (const double* y = zone.lineValues[line])
                    paintLine(painter, p, order, v[0], y,
                              QColor(faded(scene.lineColour(line, mesh.fixed()), zone.faded)));
            continue;
        }

        const long drawn = scene.countIn(zone.points);
        if (zone.mesh) {
            if (drawn > ManyPoints) {
                PointRaster raster(clip, ratio);
                // On linear 2D axes, the common case of millions of points, without a call a point.
                const bool direct = !scene.threeD && !p.log[0] && !p.log[1];
                const PointRaster::Mapping m =
                    direct ? raster.mapping(p.sx, p.ox, p.sy, p.oy) : raster.mapping(1, 0, 1, 0);
                const auto fill = [&](const auto& mark) {
                    if (direct)
                        scene.forEachIndex(zone.points, [&](long i) {
                            const double x = v[0][i], y = v[1][i];
                            if (PlotScene::drawable(x) && PlotScene::drawable(y))
                                mark(i, m.scale[0] * x + m.offset[0], m.scale[1] * y + m.offset[1]);
                        });
                    else {
                        QPointF q;
                        scene.forEachIndex(zone.points, [&](long i) {
                            if (at(i, q))
                                mark(i, m.scale[0] * q.x() + m.offset[0], m.scale[1] * q.y() + m.offset[1]);
                        });
                    }
                };
                if (mesh.ramped())
                    fill([&](long i, double px, double py) { raster.addPixel(px, py, mesh.valueAt(i)); });
                else if (mesh.varies())
                    fill([&](long i, double px, double py) { raster.addColoured(px, py, mesh.rgbAt(i)); });
                else
                    fill([&](long, double px, double py) { raster.addPixel(px, py, -1.0); });
                const int map = scene.contour.map;
                painter.drawImage(clip.topLeft(),
                                  raster.image(
                                      faded(mesh.fixed(), zone.faded),
                                      [&](double t) { return faded(ColourRamp::at(map, t), zone.faded); },
                                      [&](QRgb c) { return faded(c, zone.faded); }));
            } else {
                // Points grouped by colour (4 bits a channel) so that each group is one call.
                std::vector<std::vector<QPointF>> groups(mesh.varies() ? 4096 : 1);
                QPointF q;
                scene.forEachIndex(zone.points, [&](long i) {
                    if (!at(i, q))
                        return;
                    const QRgb c = mesh.at(i);
                    groups[mesh.varies() ? size_t(((qRed(c) >> 4) << 8) | ((qGreen(c) >> 4) << 4) | (qBlue(c) >> 4))
                                         : 0]
                        .push_back(q);
                });
                QPen pen(QColor(), 5.0, Qt::SolidLine, Qt::RoundCap);
                for (size_t g = 0; g < groups.size(); ++g)
                    if (!groups[g].empty()) {
                        const QRgb c = mesh.varies() ? qRgb(int(g >> 8) * 17, int((g >> 4) & 15) * 17, int(g & 15) * 17)
                                                     : mesh.fixed();
                        pen.setColor(QColor(faded(c, zone.faded)));
                        painter.setPen(pen);
                        painter.drawPoints(groups[g].data(), int(groups[g].size()));
                    }
            }
        }

        if (zone.scatter) {
            const PointColours& colours = zone.scatterColours;
            const double* sizes = zone.sizes;
            double largest = 0.0;
            if (sizes)
                scene.forEachIndex(zone.points, [&](long i) {
                    if (std::isfinite(sizes[i]))
                        largest = std::max(largest, std::abs(sizes[i]));
                });
            // Sized by a variable: the largest value gets the relative size, in symbol sizes or centimetres.
            const double unit = (scene.sizeInCm ? CmInPixels / 2.0 : baseRadius) * scene.relativeSize;
            QPointF q;
            long count = 0;
            scene.forEachIndex(zone.points, [&](long i) {
                if (count >= PlotScene::MostSymbols || !at(i, q))
                    return;
                double radius = baseRadius;
                if (sizes) {
                    if (!std::isfinite(sizes[i]))
                        return;
                    radius = largest > 0 ? unit * std::abs(sizes[i]) / largest : baseRadius;
                }
                ++count;
                symbol.draw(painter, q, std::clamp(radius, 1.0, largestRadius),
                            QColor(faded(colours.at(i), zone.faded)));
            });
            painter.setBrush(Qt::NoBrush);
        }

        if (scene.vectors) {
            const double* const* c = zone.vectors;
            if (!c[0] || !c[1] || (scene.threeD && !c[2]))
                continue;
            QPointF q;
            scene.forEachIndex(zone.points, [&](long i) {
                if (!at(i, q))
                    return;
                const double u = c[0][i], w = c[1][i], t = scene.threeD ? c[2][i] : 0.0;
                if (!std::isfinite(u) || !std::isfinite(w) || !std::isfinite(t))
                    return;
                // Arrows are scaled afterwards so that the longest has a fixed length.
                const QPointF tip = p.map(v[0][i] + u, v[1][i] + w, scene.threeD ? v[2][i] + t : 0.0);
                const QPointF delta = tip - q;
                const double length = std::hypot(delta.x(), delta.y());
                if (!std::isfinite(length))
                    return;
                longestArrow = std::max(longestArrow, length);
                arrows.push_back({q, delta});
            });
        }
    }

    if (!arrows.empty() && longestArrow > 0.0) {
        painter.setPen(QPen(QColor(40, 40, 40), 1.2));
        const double k = LongestArrowPx / longestArrow;
        for (const Arrow& arrow : arrows) {
            const QPointF tip = arrow.from + arrow.delta * k;
            painter.drawLine(arrow.from, tip);
            const double length = std::hypot(arrow.delta.x(), arrow.delta.y()) * k;
            if (length < 3.0)
                continue;
            const QPointF back = -arrow.delta * (k / length) * std::min(6.0, length / 3.0);
            const QPointF side(-back.y() * 0.5, back.x() * 0.5);
            painter.drawLine(tip, tip + back + side);
            painter.drawLine(tip, tip + back - side);
        }
    }
    painter.restore();
}

void PlotPainter::paintLine(QPainter& painter, const Projection& p, const LineOrder& order, const double* x,
                            const double* y, const QColor& colour) const
{
    // Reduced in the device's pixels, so that an export at a higher resolution keeps more of the line.
    const QTransform toDevice = painter.deviceTransform();
    const QTransform fromDevice = toDevice.inverted();
    const auto device = [&toDevice](const QPointF& q) { // QTransform::map without its call and type checks
        return QPointF(toDevice.m11() * q.x() + toDevice.m21() * q.y() + toDevice.dx(),
                       toDevice.m12() * q.x() + toDevice.m22() * q.y() + toDevice.dy());
    };
    // Where a piece has more points than columns it is a band of strokes: drawn without smoothing, which
    // looks the same there and costs a tenth.
    QPainterPath smooth, dense;
    QPolygonF lonePoints;
    LineReduction reduction;
    const auto endPiece = [&] {
        const std::vector<QPointF> piece = reduction.take();
        if (piece.empty())
            return;
        if (piece.size() == 1) // a lone value between gaps is still a value: a dot marks it
            lonePoints << fromDevice.map(piece.front());
        const double columns = std::abs(piece.back().x() - piece.front().x()) + 1.0;
        QPainterPath& path = double(piece.size()) > 2.0 * columns ? dense : smooth;
        path.moveTo(fromDevice.map(piece.front()));
        for (size_t k = 1; k < piece.size(); ++k)
            path.lineTo(fromDevice.map(piece[k]));
    };
    const auto visit = [&](long i) {
        const double u = x[i], v = y[i];
        if (!PlotScene::drawable(v) || (p.log[0] && u <= 0) || (p.log[1] && v <= 0))
            endPiece(); // a missing value leaves a gap
        else
            reduction.add(device(p.map(u, v)));
    };
    if (!order.forEach(visit)) { // X fell somewhere: again, in the order of X
        reduction.take();
        smooth = dense = QPainterPath();
        lonePoints.clear();
        order.forEach(visit);
    }
    endPiece();
    painter.save();
    painter.setBrush(Qt::NoBrush);
    painter.setPen(QPen(colour, 2, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin));
    painter.drawPath(smooth);
    painter.setPen(QPen(colour, 4, Qt::SolidLine, Qt::RoundCap));
    painter.drawPoints(lonePoints);
    painter.setRenderHint(QPainter::Antialiasing, false);
    painter.setPen(QPen(colour, 2, Qt::SolidLine, Qt::SquareCap, Qt::BevelJoin));
    painter.drawPath(dense);
    painter.restore();
}

void PlotPainter::paintTitle(QPainter& painter, const QRectF& area, const QRectF& plot, const PlotScene& scene) const
{
    if (scene.title.isEmpty())
        return;
    painter.save();
    painter.setFont(titleFont(painter.font()));
    const QFontMetricsF metrics(painter.font());
    const double height = metrics.height();
    const int column = scene.anchor % 3, row = scene.anchor / 3;
    const Qt::Alignment horizontal = column == 0 ? Qt::AlignLeft : column == 1 ? Qt::AlignHCenter : Qt::AlignRight;
    const QString text = metrics.elidedText(scene.title, Qt::ElideRight, area.width() - 8);
    const double y = row == 0   ? area.top() + height * 0.25
                     : row == 1 ? plot.center().y() - height / 2
                                : area.bottom() - height * 1.25;
    const QRectF band(row == 1 ? plot.left() + 6 : std::min(plot.left(), area.left() + 4), y,
                      row == 1 ? plot.width() - 12
                               : std::max(plot.right(), area.right() - 4) - std::min(plot.left(), area.left() + 4),
                      height);
    if (row == 1) { // over the data: on a pale box so that it stays readable
        const double w = metrics.horizontalAdvance(text) + 8;
        const double left = column == 0 ? band.left() : column == 1 ? band.center().x() - w / 2 : band.right() - w;
        painter.fillRect(QRectF(left, y, w, height), QColor(255, 255, 255, 210));
    }
    painter.setPen(Qt::black);
    painter.drawText(band.adjusted(4, 0, -4, 0), horizontal | Qt::AlignVCenter | Qt::TextDontClip, text);
    painter.restore();
}
