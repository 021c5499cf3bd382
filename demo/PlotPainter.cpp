#include "demo/PlotPainter.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <QFontMetrics>
#include <QObject>
#include <QPainter>
#include <QPainterPath>
#include "demo/AxisTicks.h"
#include "demo/HostStyle.h"
#include "host/kernel/Kernel.h"
#include "host/kernel/OrrUtilHost.h"

namespace {

const double Pi = 3.14159265358979323846;
const int RGBColoring = -6;         // the colour chooser's "RGB" entry
const double LongestArrowPx = 32.0; // vectors are scaled so the longest is this long
const long ManyPoints = 20000;      // above this, points are drawn one pixel wide

QString takeString(char* text)
{
    const QString result = text ? QString::fromUtf8(text) : QString();
    OrrUtilStringDealloc(&text);
    return result;
}

QColor basicColor(int index)
{
    unsigned char r = 0, g = 0, b = 0;
    OrrUtilColorMapGetBasicColorRGB(index, &r, &g, &b);
    return QColor(r, g, b);
}

// Blue through green to red, for the multi colourings.
QRgb ramp(double t)
{
    t = std::clamp(t, 0.0, 1.0);
    const double r = std::clamp(1.5 - std::abs(4.0 * t - 3.0), 0.0, 1.0);
    const double g = std::clamp(1.5 - std::abs(4.0 * t - 2.0), 0.0, 1.0);
    const double b = std::clamp(1.5 - std::abs(4.0 * t - 1.0), 0.0, 1.0);
    return qRgb(int(r * 255), int(g * 255), int(b * 255));
}

bool isValue(double v)
{
    return std::isfinite(v);
}

const std::vector<std::string>& categories(int var)
{
    static const std::vector<std::string> none;
    const orrery::kernel::DataSet& data = orrery::kernel::Kernel::instance().dataSet();
    return data.hasVar(var) ? data.categories(var) : none;
}

// The colour of each point of one zone's layer.
class Colouring
{
public:
    Colouring(int colorIndex, int zone, int contourVar)
    {
        if (colorIndex == RGBColoring) {
            m_kind = Kind::RGB;
            m_mode = static_cast<int>(HostStyle::integer("GlobalRGB/RGBMode"));
            m_min = HostStyle::number("GlobalRGB/RangeMin", -1, 0.0);
            m_max = HostStyle::number("GlobalRGB/RangeMax", -1, 1.0);
            const char* channels[] = {"GlobalRGB/RedChannelVar", "GlobalRGB/GreenChannelVar",
                                      "GlobalRGB/BlueChannelVar"};
            for (int c = 0; c < 3; ++c)
                m_channel[c] = OrrUtilVarGetValuesInZone(zone, int(HostStyle::integer(channels[c])));
        } else if (colorIndex < 0) {
            m_kind = Kind::Ramp;
            m_channel[0] = OrrUtilVarGetValuesInZone(zone, contourVar);
            if (!m_channel[0] || !OrrUtilVarGetMinMax(contourVar, &m_min, &m_max))
                m_kind = Kind::Fixed;
        }
        m_fixed = basicColor(colorIndex < 0 ? 0 : colorIndex).rgb();
    }

    bool varies() const { return m_kind != Kind::Fixed; }
    bool ramped() const { return m_kind == Kind::Ramp; }
    QRgb fixed() const { return m_fixed; }

    QRgb at(long i) const
    {
        if (m_kind == Kind::Ramp)
            return ramp((m_channel[0][i] - m_min) / (m_max > m_min ? m_max - m_min : 1.0));
        if (m_kind == Kind::Fixed)
            return m_fixed;
        double c[3];
        for (int k = 0; k < 3; ++k)
            c[k] = m_channel[k]
                       ? std::clamp((m_channel[k][i] - m_min) / (m_max > m_min ? m_max - m_min : 1.0), 0.0, 1.0)
                       : 0.0;
        // Modes 1 to 3 leave one channel to be calculated from the other two.
        if (m_mode >= 1 && m_mode <= 3) {
            const int calculated = m_mode == 1 ? 2 : m_mode == 2 ? 1 : 0;
            c[calculated] = std::clamp(1.0 - c[(calculated + 1) % 3] - c[(calculated + 2) % 3], 0.0, 1.0);
        }
        if (!isValue(c[0]) || !isValue(c[1]) || !isValue(c[2]))
            return qRgb(128, 128, 128);
        return qRgb(int(c[0] * 255), int(c[1] * 255), int(c[2] * 255));
    }

private:
    enum class Kind
    {
        Fixed,
        RGB,
        Ramp
    };
    Kind m_kind = Kind::Fixed;
    int m_mode = 0;
    double m_min = 0.0;
    double m_max = 1.0;
    std::array<const double*, 3> m_channel{{nullptr, nullptr, nullptr}};
    QRgb m_fixed = 0;
};

} // namespace

struct PlotPainter::Projection
{
    bool threeD = false;
    // 2D: screen = offset + scale * value
    double ox = 0, sx = 1, oy = 0, sy = 1;
    // 3D: values normalized to -1..1, rotated, scaled about the centre
    double centre[2] = {0, 0};
    double scale = 1;
    double lo[3] = {0, 0, 0}, span[3] = {1, 1, 1};
    double m[2][3] = {{1, 0, 0}, {0, 1, 0}};

    QPointF map(double x, double y, double z = 0.0) const
    {
        if (!threeD)
            return QPointF(ox + sx * x, oy + sy * y);
        const double n[3] = {2.0 * (x - lo[0]) / span[0] - 1.0, 2.0 * (y - lo[1]) / span[1] - 1.0,
                             2.0 * (z - lo[2]) / span[2] - 1.0};
        return QPointF(centre[0] + scale * (m[0][0] * n[0] + m[0][1] * n[1] + m[0][2] * n[2]),
                       centre[1] - scale * (m[1][0] * n[0] + m[1][1] * n[1] + m[1][2] * n[2]));
    }
    // Pixels per grid unit, for symbol sizes.
    double gridToPixels = 1.0;
};

void PlotPainter::paint(QPainter& painter, const QRectF& area) const
{
    painter.fillRect(area, Qt::white);
    painter.setPen(Qt::black);
    if (!OrrUtilDataSetIsAvailable() || OrrUtilFrameGetCount() < 1) {
        paintMessage(painter, area, QObject::tr("No data set: open a file or a sample."));
        return;
    }
    const QString title = takeString(OrrUtilDataSetGetTitle());
    painter.drawText(area.adjusted(0, 4, 0, 0), Qt::AlignHCenter | Qt::AlignTop, title);
    switch (OrrUtilFrameGetPlotType()) {
    case PlotType_TwoD: paintField(painter, area, false, false); break;
    case PlotType_ThreeD: paintField(painter, area, true, false); break;
    case PlotType_XYLine: paintField(painter, area, false, true); break;
    default:
        paintMessage(painter, area,
                     QObject::tr("Plot type %1 shows no data in this demo.").arg(int(OrrUtilFrameGetPlotType())));
    }
}

void PlotPainter::paintMessage(QPainter& painter, const QRectF& area, const QString& text) const
{
    painter.setPen(Qt::darkGray);
    painter.drawText(area, Qt::AlignCenter, text);
}

void PlotPainter::paintField(QPainter& painter, const QRectF& area, bool threeD, bool lines) const
{
    const std::string root = threeD ? "ThreeDAxis/" : "TwoDAxis/";
    const char* names[] = {"XDetail", "YDetail", "ZDetail"};
    Axis axes[3];
    const int dims = threeD ? 3 : 2;
    for (int a = 0; a < dims; ++a) {
        axes[a].var = int(HostStyle::integer(root + names[a] + "/VarNum"));
        axes[a].name = takeString(OrrUtilVarGetName(axes[a].var));
        if (!OrrUtilVarGetMinMax(axes[a].var, &axes[a].min, &axes[a].max) || !(axes[a].max > axes[a].min)) {
            axes[a].min = isValue(axes[a].min) ? axes[a].min - 0.5 : 0.0;
            axes[a].max = axes[a].min + 1.0;
        } else if (!threeD) {
            // A margin, so that points on the edge of the range are not drawn over by the frame.
            const double margin = 0.04 * (axes[a].max - axes[a].min);
            axes[a].min -= margin;
            axes[a].max += margin;
        }
    }
    if (axes[0].name.isEmpty() || axes[1].name.isEmpty() || (threeD && axes[2].name.isEmpty())) {
        paintMessage(painter, area, QObject::tr("Choose the axis variables (Dialogs > Axis Variables)."));
        return;
    }

    Projection p;
    const QRectF plot = area.adjusted(70, 30, -24, -50);
    if (threeD) {
        p.threeD = true;
        p.centre[0] = plot.center().x();
        p.centre[1] = plot.center().y();
        p.scale = std::min(plot.width(), plot.height()) * 0.33;
        for (int a = 0; a < 3; ++a) {
            p.lo[a] = axes[a].min;
            p.span[a] = axes[a].max - axes[a].min;
        }
        const double yaw = m_yaw * Pi / 180.0, pitch = m_pitch * Pi / 180.0;
        // Turn about the vertical (z) axis, then tilt towards the viewer.
        p.m[0][0] = std::cos(yaw);
        p.m[0][1] = -std::sin(yaw);
        p.m[0][2] = 0.0;
        p.m[1][0] = std::sin(yaw) * std::sin(pitch);
        p.m[1][1] = std::cos(yaw) * std::sin(pitch);
        p.m[1][2] = std::cos(pitch);
        p.gridToPixels = p.scale * 2.0 / p.span[1];
        paintBox3D(painter, p, axes);
    } else {
        p.sx = plot.width() / (axes[0].max - axes[0].min);
        p.ox = plot.left() - p.sx * axes[0].min;
        p.sy = -plot.height() / (axes[1].max - axes[1].min);
        p.oy = plot.bottom() - p.sy * axes[1].min;
        p.gridToPixels = plot.height() / (axes[1].max - axes[1].min);
        paintFrame2D(painter, plot, axes[0], axes[1]);
    }

    // The variable the multi colourings follow: the first that is not on an axis.
    int contourVar = 0;
    for (int v = 1; v <= OrrUtilDataSetGetNumVars() && !contourVar; ++v)
        if (OrrUtilVarIsEnabled(v) && v != axes[0].var && v != axes[1].var && (!threeD || v != axes[2].var))
            contourVar = v;
    if (!contourVar)
        contourVar = axes[1].var;

    const bool showVectors = !lines && HostStyle::flag("FieldLayers/ShowVector");
    const std::string vectorRoot = threeD ? "GlobalThreeDVector/" : "GlobalTwoDVector/";
    const int vectorVars[3] = {int(HostStyle::integer(vectorRoot + "UVar")),
                               int(HostStyle::integer(vectorRoot + "VVar")),
                               threeD ? int(HostStyle::integer(vectorRoot + "WVar")) : 0};
    const int sizeVar = int(HostStyle::integer("GlobalScatter/Var"));
    const double relativeSize = HostStyle::number("GlobalScatter/RelativeSize", -1, 1.0);
    const bool sizeInGrid = HostStyle::flag("GlobalScatter/RelativeSizeInGridUnits", -1, true);
    const double cmToGrid = OrrUtilConvertUnits(Units_Centimetre, Units_Grid, 1.0);
    const double mediumSize = HostStyle::number("BasicSize/SymbolSizes/Medium", -1, 2.5) / 100.0 * plot.height();

    std::vector<QPointF> points;
    const int zones = OrrUtilDataSetGetNumZones();
    double longestArrow = 0.0;
    struct Arrow
    {
        QPointF from, delta;
    };
    std::vector<Arrow> arrows;
    bool rampedByContour = false;
    painter.save();
    painter.setClipRect(area);
    for (int zone = 1; zone <= zones; ++zone) {
        if (!OrrUtilZoneIsEnabled(zone))
            continue;
        const long n = OrrUtilZoneGetNumPoints(zone);
        const double* v[3] = {OrrUtilVarGetValuesInZone(zone, axes[0].var),
                              OrrUtilVarGetValuesInZone(zone, axes[1].var),
                              threeD ? OrrUtilVarGetValuesInZone(zone, axes[2].var) : nullptr};
        if (!v[0] || !v[1] || (threeD && !v[2]) || n <= 0)
            continue;
        // Missing values (NaN) leave their point out.
        auto at = [&](long i, QPointF& out) {
            const double x = v[0][i], y = v[1][i], z = threeD ? v[2][i] : 0.0;
            if (!isValue(x) || !isValue(y) || !isValue(z))
                return false;
            out = p.map(x, y, z);
            return true;
        };

        const Colouring meshColour(int(HostStyle::integer("FieldMap/Mesh/Color", zone)), zone, contourVar);
        rampedByContour = rampedByContour || meshColour.ramped();
        if (lines) {
            painter.setPen(QPen(QColor(meshColour.fixed()), 2));
            QPainterPath path;
            bool open = false;
            QPointF q;
            for (long i = 0; i < n; ++i) {
                if (!at(i, q)) {
                    open = false;
                    continue;
                }
                if (open)
                    path.lineTo(q);
                else
                    path.moveTo(q);
                open = true;
            }
            painter.drawPath(path);
            continue;
        }

        if (HostStyle::flag("FieldMap/Mesh/Show", zone, true)) {
            const bool many = n > ManyPoints;
            QPen pen(QColor(meshColour.fixed()), many ? 1 : 5, Qt::SolidLine, Qt::RoundCap);
            if (!meshColour.varies()) {
                points.clear();
                points.reserve(size_t(n));
                QPointF q;
                for (long i = 0; i < n; ++i)
                    if (at(i, q))
                        points.push_back(q);
                painter.setPen(pen);
                painter.drawPoints(points.data(), int(points.size()));
            } else {
                // Points grouped by colour (4 bits a channel) so that each group is one call.
                std::vector<std::vector<QPointF>> groups(4096);
                QPointF q;
                for (long i = 0; i < n; ++i)
                    if (at(i, q)) {
                        const QRgb c = meshColour.at(i);
                        groups[size_t(((qRed(c) >> 4) << 8) | ((qGreen(c) >> 4) << 4) | (qBlue(c) >> 4))].push_back(q);
                    }
                for (size_t g = 0; g < groups.size(); ++g)
                    if (!groups[g].empty()) {
                        pen.setColor(QColor(int(g >> 8) * 17, int((g >> 4) & 15) * 17, int(g & 15) * 17));
                        painter.setPen(pen);
                        painter.drawPoints(groups[g].data(), int(groups[g].size()));
                    }
            }
        }

        if (HostStyle::flag("FieldMap/Scatter/Show", zone)) {
            const Colouring scatterColour(int(HostStyle::integer("FieldMap/Scatter/Color", zone)), zone, contourVar);
            const double* sizes = OrrUtilVarGetValuesInZone(zone, sizeVar);
            painter.setPen(QPen(Qt::black, 1));
            QPointF q;
            for (long i = 0; i < n; ++i) {
                if (!at(i, q))
                    continue;
                double radius = mediumSize / 2.0;
                if (sizes) {
                    if (!isValue(sizes[i]))
                        continue;
                    const double grid = relativeSize * std::abs(sizes[i]) * (sizeInGrid ? 1.0 : cmToGrid);
                    radius = grid * p.gridToPixels / 2.0;
                }
                radius = std::clamp(radius, 1.5, 60.0);
                painter.setBrush(QColor(scatterColour.at(i)));
                painter.drawEllipse(q, radius, radius);
            }
            painter.setBrush(Qt::NoBrush);
        }

        if (showVectors) {
            const double* c[3] = {OrrUtilVarGetValuesInZone(zone, vectorVars[0]),
                                  OrrUtilVarGetValuesInZone(zone, vectorVars[1]),
                                  threeD ? OrrUtilVarGetValuesInZone(zone, vectorVars[2]) : nullptr};
            if (!c[0] || !c[1] || (threeD && !c[2]))
                continue;
            QPointF q;
            for (long i = 0; i < n; ++i) {
                if (!at(i, q))
                    continue;
                const double u = c[0][i], w = c[1][i], t = threeD ? c[2][i] : 0.0;
                if (!isValue(u) || !isValue(w) || !isValue(t))
                    continue;
                // Arrows are scaled afterwards so that the longest has a fixed length.
                const QPointF tip = p.map(v[0][i] + u, v[1][i] + w, threeD ? v[2][i] + t : 0.0);
                const QPointF delta = tip - q;
                longestArrow = std::max(longestArrow, std::hypot(delta.x(), delta.y()));
                arrows.push_back({q, delta});
            }
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
    if (rampedByContour)
        paintCategoryLegend(painter, plot, contourVar);
}

void PlotPainter::paintCategoryLegend(QPainter& painter, const QRectF& plot, int var) const
{
    const std::vector<std::string>& names = categories(var);
    double min = 0, max = 0;
    if (names.empty() || names.size() > AxisTicks::MaxNamed || !OrrUtilVarGetMinMax(var, &min, &max))
        return;
    const QFontMetrics metrics(painter.font());
    const int row = metrics.height() + 2;
    int width = 0;
    for (const std::string& name : names)
        width = std::max(width, metrics.horizontalAdvance(QString::fromStdString(name)));
    const QRectF box(plot.right() - width - 30, plot.top() + 4, width + 26, row * double(names.size()) + 6);
    painter.save();
    painter.setPen(QColor(120, 120, 120));
    painter.setBrush(QColor(255, 255, 255, 220));
    painter.drawRect(box);
    for (size_t k = 0; k < names.size(); ++k) {
        const double y = box.top() + 3 + row * double(k);
        painter.fillRect(QRectF(box.left() + 5, y + 3, 10, row - 6),
                         QColor(ramp((double(k + 1) - min) / (max > min ? max - min : 1.0))));
        painter.setPen(Qt::black);
        painter.drawText(QRectF(box.left() + 20, y, width + 4, row), Qt::AlignLeft | Qt::AlignVCenter,
                         QString::fromStdString(names[k]));
    }
    painter.restore();
}

void PlotPainter::paintFrame2D(QPainter& painter, const QRectF& plot, const Axis& x, const Axis& y) const
{
    painter.setPen(QPen(Qt::black, 1));
    painter.setBrush(Qt::NoBrush);
    painter.drawRect(plot);
    const QFontMetrics metrics(painter.font());
    for (const AxisTicks::Tick& tick : AxisTicks::of(x.min, x.max, categories(x.var))) {
        const double px = plot.left() + (tick.value - x.min) / (x.max - x.min) * plot.width();
        painter.drawLine(QPointF(px, plot.bottom()), QPointF(px, plot.bottom() + 4));
        painter.drawText(QRectF(px - 40, plot.bottom() + 5, 80, 16), Qt::AlignHCenter | Qt::AlignTop,
                         metrics.elidedText(tick.label, Qt::ElideRight, 80));
    }
    for (const AxisTicks::Tick& tick : AxisTicks::of(y.min, y.max, categories(y.var))) {
        const double py = plot.bottom() - (tick.value - y.min) / (y.max - y.min) * plot.height();
        painter.drawLine(QPointF(plot.left() - 4, py), QPointF(plot.left(), py));
        painter.drawText(QRectF(plot.left() - 70, py - 8, 64, 16), Qt::AlignRight | Qt::AlignVCenter,
                         metrics.elidedText(tick.label, Qt::ElideRight, 64));
    }
    painter.drawText(QRectF(plot.left(), plot.bottom() + 22, plot.width(), 18), Qt::AlignHCenter, x.name);
    painter.save();
    painter.translate(plot.left() - 56, plot.center().y());
    painter.rotate(-90);
    painter.drawText(QRectF(-plot.height() / 2, -16, plot.height(), 16), Qt::AlignHCenter | Qt::AlignBottom, y.name);
    painter.restore();
}

void PlotPainter::paintBox3D(QPainter& painter, const Projection& p, const Axis axes[3]) const
{
    painter.setPen(QPen(QColor(170, 170, 170), 1));
    auto corner = [&](int i) {
        return p.map(i & 1 ? axes[0].max : axes[0].min, i & 2 ? axes[1].max : axes[1].min,
                     i & 4 ? axes[2].max : axes[2].min);
    };
    for (int i = 0; i < 8; ++i)
        for (int bit = 1; bit < 8; bit <<= 1)
            if (!(i & bit))
                painter.drawLine(corner(i), corner(i | bit));
    painter.setPen(Qt::black);
    for (int a = 0; a < 3; ++a) {
        const QPointF end = corner(1 << a);
        painter.drawLine(corner(0), end);
        painter.drawText(end + QPointF(4, -4), axes[a].name);
    }
}
