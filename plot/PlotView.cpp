#include "plot/PlotView.h"

#include <algorithm>
#include <cmath>
#include <QLocale>
#include <QMouseEvent>
#include <QPainter>
#include <QRubberBand>
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

QPointF eventPosition(const QMouseEvent* event)
{
#if QT_VERSION >= QT_VERSION_CHECK(6, 0, 0)
    return event->position();
#else
    return event->localPos();
#endif
}

// Where what was drawn for picture goes when seen from now: the same values
// at the same places, as far as a scale and a shift can say it. Identity for
// a turned box or a window not known yet.
QTransform followed(const PlotPicture& picture, const PlotViewpoint& now)
{
    const PlotGeometry& g = picture.geometry;
    QTransform transform;
    if (g.threeD && now.yaw == picture.view.yaw && now.pitch == picture.view.pitch) {
        const double k = now.zoom / picture.view.zoom;
        const QPointF c = g.plot.center();
        return QTransform(k, 0, 0, k, c.x() * (1 - k), c.y() * (1 - k));
    }
    if (!g.navigable || !now.window)
        return transform;
    double k[2], shift[2];
    for (int a = 0; a < 2; ++a) {
        const double lo0 = g.toAxis(a, g.shown.min[a]), hi0 = g.toAxis(a, g.shown.max[a]);
        const double lo1 = g.toAxis(a, now.window->min[a]), hi1 = g.toAxis(a, now.window->max[a]);
        k[a] = (hi0 - lo0) / (hi1 - lo1);
        shift[a] = (lo0 - lo1) / (hi1 - lo1) * (a == 0 ? g.plot.width() : -g.plot.height());
    }
    const QPointF origin(g.plot.left(), g.plot.bottom());
    return QTransform(k[0], 0, 0, k[1], origin.x() * (1 - k[0]) + shift[0], origin.y() * (1 - k[1]) + shift[1]);
}

} // namespace

PlotView::PlotView(std::function<PlotScene()> scene, QWidget* parent)
    : QWidget(parent), m_scene(std::move(scene)), m_worker([this] {
          QMetaObject::invokeMethod(
              this, [this] { pictureDone(); }, Qt::QueuedConnection);
      })
{
    setObjectName("plotView");
    setMinimumSize(240, 180);
    setAttribute(Qt::WA_OpaquePaintEvent);
    setMouseTracking(true);
    setFocusPolicy(Qt::StrongFocus);
}

// The worker, the last member, stops first: nothing it calls back is gone yet.
PlotView::~PlotView() = default;

void PlotView::sceneChanged(bool axesMoved)
{
    if (axesMoved)
        m_view.window.reset();
    invalidate();
}

PlotGeometry PlotView::render(QPainter& painter, const QRectF& area) const
{
    return ::render(m_scene(), m_view, painter, area);
}

void PlotView::render(QImage& image) const
{
    QPainter painter(&image);
    render(painter, QRectF(QPointF(0, 0), QSizeF(image.size()) / image.devicePixelRatio()));
}

void PlotView::setRotation(double yaw, double pitch)
{
    m_view.yaw = std::fmod(yaw, 360.0);
    m_view.pitch = std::clamp(pitch, -90.0, 90.0);
    invalidate();
}

void PlotView::setZoom(double zoom)
{
    if (!std::isfinite(zoom))
        return;
    m_view.zoom = std::clamp(zoom, PlotViewpoint::LeastZoom, PlotViewpoint::MostZoom);
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
    m_view.window = window;
    m_geometry.shown = window; // the next zoom or pan works from here, drawn or not
    invalidate();
    return true;
}

void PlotView::resetWindow()
{
    m_view.window.reset();
    m_view.zoom = 1.0;
    invalidate();
}

PlotWindow PlotView::shownOrWhole() const
{
    return m_view.window ? *m_view.window : m_geometry.shown;
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
    if (m_stale || m_pixels != size() * ratio)
        redraw(size(), ratio);
    QPainter painter(this);
    painter.drawImage(QPointF(0, 0), m_picture.image);
    if (!m_pending)
        return;
    // The picture before, its data moved to where the new one will put them; axes and key as they were.
    const QTransform transform = followed(m_picture, m_view);
    if (transform.isIdentity())
        return;
    painter.setClipRect(m_picture.geometry.threeD ? QRectF(rect()) : m_picture.geometry.plot);
    painter.fillRect(rect(), Qt::white);
    painter.setTransform(transform);
    painter.drawImage(QPointF(0, 0), m_picture.image);
}

void PlotView::redraw(const QSize& size, double ratio)
{
    m_stale = false;
    m_pixels = size * ratio;
    ++m_drawCount;
    PlotScene scene;
    try {
        scene = m_scene();
    } catch (const std::exception& e) {
        // Nothing may escape into Qt's event loop; the picture says what went wrong.
        scene = PlotScene();
        scene.problem = tr("The plot cannot be drawn: %1").arg(QString::fromUtf8(e.what()));
    }
    if (scene.countAll() < WorkerPoints) {
        m_pending = 0;
        m_picture = renderPicture(scene, m_view, size, ratio);
        m_geometry = m_picture.geometry;
        return;
    }
    if (m_picture.image.isNull()) { // nothing to show meanwhile but the background
        m_picture.image = QImage(m_pixels, QImage::Format_RGB32);
        m_picture.image.fill(Qt::white);
    }
    m_pending = m_worker.request(std::move(scene), m_view, size, ratio);
}

void PlotView::pictureDone()
{
    std::optional<PictureWorker::Done> done = m_worker.take();
    if (!done || !m_pending)
        return; // older than the picture drawn here since
    m_picture = std::move(done->picture);
    if (done->request == m_pending) {
        m_pending = 0;
        m_geometry = m_picture.geometry;
    }
    update();
}

void PlotView::waitForPicture()
{
    m_worker.wait();
    pictureDone();
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
    const QPointF at = eventPosition(event);
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
        setRotation(m_view.yaw + moved.x() * 0.5, m_view.pitch + moved.y() * 0.5);
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
    // One notch of a wheel (120) zooms by a quarter.
    const double factor = std::pow(1.25, event->angleDelta().y() / 120.0);
    if (m_geometry.threeD)
        setZoom(m_view.zoom * factor);
    else
        zoomAt(event->position(), factor);
    event->accept();
}

void PlotView::keyPressEvent(QKeyEvent* event)
{
    if (event->key() == Qt::Key_Home)
        resetWindow();
    else
        QWidget::keyPressEvent(event);
}
