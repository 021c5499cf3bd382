#include <cmath>
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
