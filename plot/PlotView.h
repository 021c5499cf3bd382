#pragma once
#include <optional>
#include <functional>
#include <QImage>
#include <QPoint>
#include <QWidget>
#include "plot/PictureWorker.h"
#include "plot/PlotGeometry.h"
#include "plot/PlotScene.h"
#include "plot/Render.h"

class QPainter;
class QRubberBand;

// A scene drawn by render(), kept between repaints and drawn anew when its
// maker says the scene changed.
// In 2D the wheel zooms about the cursor, dragging pans, Shift-dragging zooms
// to a box; in 3D dragging turns the box and the wheel zooms it about its
// centre. Home shows all of the data again: the whole 2D window, the 3D box at
// its own size, turned as it was.
// A scene of many points is drawn on a worker thread: until its picture is
// done the view shows the one before, moved and scaled to the new window or
// zoom, so that a wheel step or a drag never waits for ten million points.
class PlotView : public QWidget
{
    Q_OBJECT
public:
    // scene: called for what to draw, each time the picture is drawn anew.
    explicit PlotView(std::function<PlotScene()> scene, QWidget* parent = nullptr);
    ~PlotView() override;

    // Draws anew; axesMoved (other variables or data) also shows all of the data.
    void sceneChanged(bool axesMoved);

    // What the view draws, read from its maker now.
    PlotScene scene() const { return m_scene(); }
    // How the user looks at it: turn, window, zoom.
    const PlotViewpoint& viewpoint() const { return m_view; }
    // Draws the frame over area (logical units of the painter's device), as the view shows it.
    PlotGeometry render(QPainter& painter, const QRectF& area) const;
    // Draws the frame over the whole of image, at the image's pixel ratio.
    void render(QImage& image) const;
    // Turns of the 3D projection, in degrees.
    void setRotation(double yaw, double pitch);
    double yaw() const { return m_view.yaw; }
    double pitch() const { return m_view.pitch; }
    // Shows the given part of a 2D frame; false, leaving the view as it was,
    // for a window too narrow or too wide to draw.
    bool setWindow(const PlotWindow& window);
    // The 3D box's size, 1 fitting the plot area, kept within the viewpoint's limits.
    void setZoom(double zoom);
    double zoom() const { return m_view.zoom; }
    // Shows all of the data again; a 3D box keeps its turn.
    void resetWindow();
    bool zoomed() const { return m_view.window || m_view.zoom != 1.0; }
    // Zooms a 2D frame by factor (above 1: closer) about a point of the view.
    void zoomAt(const QPointF& at, double factor);
    // Where the last picture put its axes.
    const PlotGeometry& geometry() const { return m_geometry; }
    // How many times the picture was drawn anew (not merely repainted).
    int drawCount() const { return m_drawCount; }
    // Until the picture being drawn on the worker is done, and shown at the next paint.
    void waitForPicture();
    // Scenes of fewer points are drawn at once, on the view's own thread.
    static constexpr long WorkerPoints = 200000;

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
    void redraw(const QSize& size, double ratio);
    void pictureDone();
    PlotWindow shownOrWhole() const;

    PlotPicture m_picture; // the newest done
    bool m_stale = true;
    QSize m_pixels;              // of the picture wanted
    unsigned long m_pending = 0; // the worker's request for the picture wanted; 0 when shown
    int m_drawCount = 0;
    PlotViewpoint m_view;
    PlotGeometry m_geometry;
    QPoint m_dragFrom;
    QRubberBand* m_band = nullptr;
    std::function<PlotScene()> m_scene;
    PictureWorker m_worker;
};
