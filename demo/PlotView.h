#pragma once
#include <boost/signals2/connection.hpp>
#include <QImage>
#include <QPoint>
#include <QWidget>

// The current frame drawn from the host's data set and style: points of the
// enabled zones on the axis variables, scatter symbols, vectors, RGB or basic
// colours; a 2D field (plot type 2), a rotatable 3D projection (1) or lines (3).
// The picture is redrawn after every state change and kept between repaints.
class PlotView : public QWidget
{
    Q_OBJECT
public:
    explicit PlotView(QWidget* parent = nullptr);

    // Draws the frame over the whole of image, as the view shows it.
    void render(QImage& image) const;
    // Turns of the 3D projection, in degrees.
    void setRotation(double yaw, double pitch);
    double yaw() const { return m_yaw; }
    double pitch() const { return m_pitch; }
    // How many times the picture was drawn anew (not merely repainted).
    int drawCount() const { return m_drawCount; }

    QSize sizeHint() const override { return QSize(640, 480); }

protected:
    void paintEvent(QPaintEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;
    void mouseMoveEvent(QMouseEvent* event) override;

private:
    void invalidate();

    QImage m_picture;
    bool m_stale = true;
    int m_drawCount = 0;
    double m_yaw = 35.0;
    double m_pitch = 25.0;
    QPoint m_dragFrom;
    boost::signals2::scoped_connection m_stateChanges;
};
