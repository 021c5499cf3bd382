#pragma once
#include <optional>
#include <functional>
#include <QImage>
#include <QPoint>
#include <QWidget>
#include "plot/PlotGeometry.h"
#include "plot/PlotScene.h"

class QPainter;
class QRubberBand;

// A scene drawn by PlotPainter, kept between repaints and drawn anew when its
// maker says the scene changed.
// In 2D the wheel zooms about the cursor, dragging pans, Shift-dragging zooms
// to a box and Home shows everything again; in 3D dragging turns the view.
class PlotView : public QWidget
{
    Q_OBJECT
public:
    // scene: called for what to draw, each time the picture is drawn anew.
    explicit PlotView(std::function<PlotScene()> scene, QWidget* parent = nullptr);

    // Draws anew; axesMoved (other variables or data) also shows all of the data.
    void sceneChanged(bool axesMoved);

    // Draws the frame over area (logical units of the painter's device), as the view shows it.
    PlotGeometry render(QPainter& painter, const QRectF& area) const;
    // Draws the frame over the whole of image, at the image's pixel ratio.
    void render(QImage& image) const;
    // Turns of the 3D projection, in degrees.
    void setRotation(double yaw, double pitch);
    double yaw() const { return m_yaw; }
    double pitch() const { return m_pitch; }
    // Shows the given part of a 2D frame; false, leaving the view as it was,
    // for a window too narrow or too wide to draw.
    bool setWindow(const PlotWindow& window);
    // Shows all of the data again.
    void resetWindow();
    bool zoomed() const { return bool(m_window); }
    // Zooms a 2D frame by factor (above 1: closer) about a point of the view.
    void zoomAt(const QPointF& at, double factor);
    // Where the last picture put its axes.
    const PlotGeometry& geometry() const { return m_geometry; }
    // How many times the picture was drawn anew (not merely repainted).
    int drawCount() const { return m_drawCount; }

    QSize sizeHint() const override { return QSize(800, 600); }

Q_SIGNALS:
    // The data values under the mouse, as a line for the status bar; empty off the axes.
    void pointerMoved(const QString& values);

protected:
    void paintEvent(QPaintEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;
    void mouseMoveEvent(QMouseEvent* event) override;
    void mouseReleaseEvent(QMouseEvent* event) override;
    void wheelEvent(QWheelEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;

private:
    void invalidate();
    PlotWindow shownOrWhole() const;

    QImage m_picture;
    bool m_stale = true;
    int m_drawCount = 0;
    double m_yaw = 35.0;
    double m_pitch = 25.0;
    std::optional<PlotWindow> m_window;
    PlotGeometry m_geometry;
    QPoint m_dragFrom;
    QRubberBand* m_band = nullptr;
    std::function<PlotScene()> m_scene;
};
