#include <cmath>
#include <memory>
#include <QApplication>
#include <QTest>
#include <QWheelEvent>
#include <gtest/gtest.h>
#include "plot/PlotView.h"
#include "tests/plot/Figure.h"

using testsupport::Figure;

TEST(PlotView, ZoomKeepsTheValueUnderTheCursorAndRefusesWidthsItCannotDraw)
{
    Figure figure;
    for (int i = 0; i <= 100; ++i) {
        figure.x.push_back(i / 10.0);
        figure.y.push_back(1500 + 400 * std::sin(i / 10.0));
    }
    // Tick labels of Y as wide zoomed as not: the axes stay where they were.
    const PlotScene scene = figure.make(0, 10, 1000, 2000);
    PlotView view([&] { return scene; });
    view.resize(800, 600);
    view.grab();
    ASSERT_TRUE(view.geometry().navigable);
    const QPointF cursor(300, 200);
    const double x = view.geometry().toValue(0, cursor.x()), y = view.geometry().toValue(1, cursor.y());
    const PlotWindow before0 = view.geometry().shown;
    view.zoomAt(cursor, 4.0);
    view.grab();
    EXPECT_TRUE(view.zoomed());
    // Within the few pixels by which the new tick labels may move the axes.
    EXPECT_NEAR(cursor.x(), view.geometry().toPixel(0, x), 8.0);
    EXPECT_NEAR(cursor.y(), view.geometry().toPixel(1, y), 8.0);
    EXPECT_LT(view.geometry().shown.max[0] - view.geometry().shown.min[0], 0.3 * (before0.max[0] - before0.min[0]));

    const PlotWindow before = view.geometry().shown;
    for (double width : {1e-300, 1e300, 0.0, std::nan("1")}) {
        PlotWindow window = before;
        window.max[0] = window.min[0] + width;
        EXPECT_FALSE(view.setWindow(window)) << width;
    }
    EXPECT_EQ(before.max[0], view.geometry().shown.max[0]);
    view.resetWindow();
    EXPECT_FALSE(view.zoomed());
}

namespace {

QImage shown(PlotView& view)
{
    return view.grab().toImage().convertToFormat(QImage::Format_RGB32);
}

} // namespace

TEST(PlotView, ManyPointsAreDrawnAsideAndTheViewEndsOnTheNewestPictureHoldingTheColumnsTillThen)
{
    auto figure = std::make_shared<Figure>();
    for (long i = 0; i < PlotView::WorkerPoints + 1000; ++i) {
        figure->x.push_back(std::sin(i * 0.001));
        figure->y.push_back(std::cos(i * 0.0013));
    }
    PlotScene scene = figure->make(-1, 1, -1, 1);
    scene.keepAlive = figure;
    const std::weak_ptr<Figure> columns = figure;
    figure.reset();
    PlotView view([&] { return scene; });
    view.resize(400, 300);
    shown(view);
    view.waitForPicture();
    ASSERT_TRUE(view.geometry().navigable);
    for (int step = 0; step < 3; ++step) { // each step asks anew, perhaps before the last is done
        view.zoomAt(QPointF(200, 150), 1.25);
        shown(view);
    }
    const QImage newest = renderPicture(scene, view.viewpoint(), view.size(), view.devicePixelRatioF()).image;
    scene = PlotScene(); // the maker moves on; the worker alone holds the columns
    view.waitForPicture();
    EXPECT_TRUE(columns.expired()) << "released once drawn";
    EXPECT_EQ(newest.convertToFormat(QImage::Format_RGB32), shown(view));
}

TEST(PlotView, TheWheelZoomsA3DBoxWithinLimitsAndHomeShowsItWholeStillTurned)
{
    Figure figure;
    std::vector<double> z;
    for (int i = 0; i < 50; ++i)
        figure.x.push_back(i % 5), figure.y.push_back(i / 5 % 5), z.push_back(i / 25);
    PlotScene scene = figure.make(0, 4, 0, 4);
    scene.threeD = true, scene.dims = 3;
    scene.axes[2].name = scene.axes[2].title = "Z", scene.axes[2].max = 1;
    scene.zones[0].values[2] = z.data();
    PlotView view([&] { return scene; });
    view.resize(500, 400);
    const auto wheel = [&](int notches) {
        QWheelEvent event(QPointF(100, 100), QPointF(100, 100), QPoint(), QPoint(0, 120 * notches), Qt::NoButton,
                          Qt::NoModifier, Qt::NoScrollPhase, false);
        QApplication::sendEvent(&view, &event);
    };
    // How wide the box is drawn: the columns of the plot area with anything on them.
    const auto width = [&] {
        const QImage image = shown(view);
        const QRect plot = view.geometry().plot.toRect();
        int left = plot.right(), right = plot.left();
        for (int y = plot.top(); y <= plot.bottom(); ++y)
            for (int x = plot.left(); x <= plot.right(); ++x)
                if (image.pixel(x, y) != qRgb(255, 255, 255))
                    left = std::min(left, x), right = std::max(right, x);
        return right - left;
    };
    const int whole = width();
    ASSERT_TRUE(view.geometry().threeD);
    wheel(-3);
    EXPECT_NEAR(std::pow(1.25, -3), view.zoom(), 1e-9);
    EXPECT_LT(width(), 0.6 * whole);
    wheel(6);
    EXPECT_GT(width(), whole);
    wheel(40);
    EXPECT_EQ(PlotViewpoint::MostZoom, view.zoom());
    for (const auto& [type, x] : {std::pair(QEvent::MouseButtonPress, 100), std::pair(QEvent::MouseMove, 160)}) {
        QMouseEvent drag(type, QPointF(x, 100), QPointF(view.mapToGlobal(QPoint(x, 100))), Qt::LeftButton,
                         Qt::LeftButton, Qt::NoModifier);
        QApplication::sendEvent(&view, &drag);
    }
    EXPECT_EQ(PlotViewpoint::MostZoom, view.zoom()) << "dragging turns, the zoom stays";
    const double yaw = view.yaw();
    EXPECT_NE(35.0, yaw);
    QTest::keyClick(&view, Qt::Key_Home);
    EXPECT_EQ(1.0, view.zoom());
    EXPECT_EQ(yaw, view.yaw());
    wheel(-40);
    EXPECT_EQ(PlotViewpoint::LeastZoom, view.zoom());
}
