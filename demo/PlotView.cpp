#include "demo/PlotView.h"

#include <algorithm>
#include <cmath>
#include <QMouseEvent>
#include <QPainter>
#include "demo/PlotPainter.h"
#include "platform/sdk/StateChangeEventObservable.h"

using orrery::sdk::integration::StateChangeEventInterface;
using orrery::sdk::integration::StateChangeEventObservable;

PlotView::PlotView(QWidget* parent) : QWidget(parent)
{
    setObjectName("plotView");
    setMinimumSize(240, 180);
    setAttribute(Qt::WA_OpaquePaintEvent);
    m_stateChanges = StateChangeEventObservable::getInstance().signal().connect(
        [this](const StateChangeEventInterface&) { invalidate(); });
}

void PlotView::render(QImage& image) const
{
    QPainter painter(&image);
    painter.setRenderHint(QPainter::Antialiasing, false);
    PlotPainter(m_yaw, m_pitch).paint(painter, QRectF(image.rect()));
}

void PlotView::setRotation(double yaw, double pitch)
{
    m_yaw = std::fmod(yaw, 360.0);
    m_pitch = std::clamp(pitch, -90.0, 90.0);
    invalidate();
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
        m_picture.setDevicePixelRatio(1.0);
        try {
            render(m_picture);
        } catch (const std::exception& e) {
            // Nothing may escape into Qt's event loop; the picture says what went wrong.
            m_picture.fill(Qt::white);
            QPainter(&m_picture)
                .drawText(m_picture.rect(), Qt::AlignCenter,
                          tr("The plot cannot be drawn: %1").arg(QString::fromUtf8(e.what())));
        }
        m_picture.setDevicePixelRatio(ratio);
        m_stale = false;
        ++m_drawCount;
    }
    QPainter(this).drawImage(QPointF(0, 0), m_picture);
}

void PlotView::mousePressEvent(QMouseEvent* event)
{
    m_dragFrom = event->pos();
}

// Dragging turns the 3D view: across about the vertical axis, up and down to tilt.
void PlotView::mouseMoveEvent(QMouseEvent* event)
{
    if (!(event->buttons() & Qt::LeftButton))
        return;
    const QPoint moved = event->pos() - m_dragFrom;
    m_dragFrom = event->pos();
    setRotation(m_yaw + moved.x() * 0.5, m_pitch + moved.y() * 0.5);
}
