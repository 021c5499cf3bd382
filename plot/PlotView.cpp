#include "plot/PlotView.h"

#include <algorithm>
#include <cmath>
#include <QLocale>
#include <QMouseEvent>
#include <QPainter>
#include <QRubberBand>
#include "plot/PlotPainter.h"
#include "plot/PlotScene.h"

namespace {

// Both ends finite and far enough apart to be told apart and divided by.
bool drawable(double min, double max)
{
    const double span = max - min;
    return std::isfinite(min) && std::isfinite(max) && std::isfinite(span) && span > 1e-290
           && span > 1e-12 * std::max(std::abs(min), std::abs(max)) && span < 1e300;
}

// A value under the mouse: six digits, written as the tick labels are.
QString readout(double value)
{
    QLocale locale;
    locale.setNumberOptions(locale.numberOptions() | QLocale::OmitGroupSeparator);
    return locale.toString(value, 'g', 6).replace(QString(locale.negativeSign()), QString(QChar(0x2212)));
}

QPointF position(const QMouseEvent* event)
{
#if QT_VERSION >= QT_VERSION_CHECK(6, 0, 0)
    return event->position();
#else
    return event->localPos();
#endif
}

} // namespace

PlotView::PlotView(std::function<PlotScene()> scene, QWidget* parent) : QWidget(parent), m_scene(std::move(scene))
{
    setObjectName("plotView");
    setMinimumSize(240, 180);
    setAttribute(Qt::WA_OpaquePaintEvent);
    setMouseTracking(true);
    setFocusPolicy(Qt::StrongFocus);
}

void PlotView::sceneChanged(bool axesMoved)
{
    if (axesMoved)
        m_window.reset();
    invalidate();
}

PlotGeometry PlotView::render(QPainter& painter, const QRectF& area) const
{
    painter.setRenderHint(QPainter::Antialiasing, true);
    painter.setRenderHint(QPainter::TextAntialiasing, true);
    return PlotPainter(m_yaw, m_pitch, m_window ? &*m_window : nullptr).paint(painter, area, m_scene());
}

void PlotView::render(QImage& image) const
{
    QPainter painter(&image);
    render(painter, QRectF(QPointF(0, 0), QSizeF(image.size()) / image.devicePixelRatio()));
}

void PlotView::setRotation(double yaw, double pitch)
{
    m_yaw = std::fmod(yaw, 360.0);
    m_pitch = std::clamp(pitch, -90.0, 90.0);
    invalidate();
}

bool PlotView::setWindow(const PlotWindow& window)
{
    for (int a = 0; a < 2; ++a) {
        const bool log = m_geometry.log[a];
        if (log && !(window.min[a] > 0.0))
            return false;
        if (!drawable(log ? std::log10(window.min[a]) : window.min[a], log ? std::log10(window.max[a]) : window.max[a]))
            return false;
    }
    m_window = window;
    m_geometry.shown = window; // the next zoom or pan works from here, drawn or not
    invalidate();
    return true;
}

void PlotView::resetWindow()
{
    m_window.reset();
    invalidate();
}

PlotWindow PlotView::shownOrWhole() const
{
    return m_window ? *m_window : m_geometry.shown;
}

void PlotView::zoomAt(const QPointF& at, double factor)
{
    if (!m_geometry.navigable || !(factor > 0.0))
        return;
    PlotWindow window = shownOrWhole();
    for (int a = 0; a < 2; ++a) {
        const double centre = m_geometry.toAxis(a, m_geometry.toValue(a, a == 0 ? at.x() : at.y()));
        const double lo = m_geometry.toAxis(a, window.min[a]), hi = m_geometry.toAxis(a, window.max[a]);
        window.min[a] = m_geometry.fromAxis(a, centre + (lo - centre) / factor);
        window.max[a] = m_geometry.fromAxis(a, centre + (hi - centre) / factor);
    }
    setWindow(window);
}

void PlotView::invalidate()
{
    m_stale = true;
    update();
}

void PlotView::paintEvent(QPaintEvent*)
{
    const qreal ratio = devicePixelRatioF();
    const QSize pixels = size() * ratio;
    if (m_stale || m_picture.size() != pixels) {
        m_picture = QImage(pixels, QImage::Format_RGB32);
        m_picture.setDevicePixelRatio(ratio);
        try {
            QPainter painter(&m_picture);
            m_geometry = render(painter, QRectF(rect()));
        } catch (const std::exception& e) {
            // Nothing may escape into Qt's event loop; the picture says what went wrong.
            m_picture.fill(Qt::white);
            m_geometry = PlotGeometry();
            QPainter(&m_picture)
                .drawText(rect(), Qt::AlignCenter, tr("The plot cannot be drawn: %1").arg(QString::fromUtf8(e.what())));
        }
        m_stale = false;
        ++m_drawCount;
    }
    QPainter(this).drawImage(QPointF(0, 0), m_picture);
}

void PlotView::mousePressEvent(QMouseEvent* event)
{
    m_dragFrom = event->pos();
    if (m_geometry.navigable && (event->modifiers() & Qt::ShiftModifier)) {
        if (!m_band)
            m_band = new QRubberBand(QRubberBand::Rectangle, this);
        m_band->setGeometry(QRect(m_dragFrom, QSize()));
        m_band->show();
    }
}

void PlotView::mouseMoveEvent(QMouseEvent* event)
{
    const QPointF at = position(event);
    if (m_geometry.navigable && m_geometry.plot.contains(at))
        Q_EMIT pointerMoved(QString("%1 = %2, %3 = %4")
                                .arg(m_geometry.names[0], readout(m_geometry.toValue(0, at.x())), m_geometry.names[1],
                                     readout(m_geometry.toValue(1, at.y()))));
    else
        Q_EMIT pointerMoved(QString());
    if (!(event->buttons() & Qt::LeftButton))
        return;
    const QPoint moved = event->pos() - m_dragFrom;
    if (m_band && m_band->isVisible()) {
        m_band->setGeometry(QRect(m_dragFrom, event->pos()).normalized());
        return;
    }
    m_dragFrom = event->pos();
    if (!m_geometry.navigable) {
        // Dragging turns the 3D view: across about the vertical axis, up and down to tilt.
        setRotation(m_yaw + moved.x() * 0.5, m_pitch + moved.y() * 0.5);
        return;
    }
    // The data follow the mouse: the window moves the other way.
    PlotWindow window = shownOrWhole();
    const double part[2] = {-moved.x() / m_geometry.plot.width(), moved.y() / m_geometry.plot.height()};
    for (int a = 0; a < 2; ++a) {
        const double lo = m_geometry.toAxis(a, window.min[a]), hi = m_geometry.toAxis(a, window.max[a]);
        window.min[a] = m_geometry.fromAxis(a, lo + part[a] * (hi - lo));
        window.max[a] = m_geometry.fromAxis(a, hi + part[a] * (hi - lo));
    }
    setWindow(window);
}

void PlotView::mouseReleaseEvent(QMouseEvent*)
{
    if (!m_band || !m_band->isVisible())
        return;
    m_band->hide();
    const QRect box = m_band->geometry();
    if (box.width() < 4 || box.height() < 4)
        return;
    PlotWindow window;
    window.min[0] = m_geometry.toValue(0, box.left());
    window.max[0] = m_geometry.toValue(0, box.right());
    window.min[1] = m_geometry.toValue(1, box.bottom());
    window.max[1] = m_geometry.toValue(1, box.top());
    setWindow(window);
}

void PlotView::wheelEvent(QWheelEvent* event)
{
    const QPointF at = event->position();
    // One notch of a wheel (120) zooms by a quarter.
    zoomAt(at, std::pow(1.25, event->angleDelta().y() / 120.0));
    event->accept();
}

void PlotView::keyPressEvent(QKeyEvent* event)
{
    if (event->key() == Qt::Key_Home)
        resetWindow();
    else
        QWidget::keyPressEvent(event);
}
