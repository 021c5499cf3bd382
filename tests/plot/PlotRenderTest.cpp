#include <cmath>
#include <limits>
#include <random>
#include <QImage>
#include <QPainter>
#include <gtest/gtest.h>
#include "plot/PlotPainter.h"
#include "plot/PlotScene.h"
#include "plot/PointRaster.h"
#include "plot/Render.h"
#include "tests/plot/Figure.h"
#include "tests/support/RecordingDevice.h"

using testsupport::Drawn;
using testsupport::Figure;
using testsupport::RecordingDevice;

namespace {

QImage picture(const PlotScene& scene)
{
    QImage image(400, 300, QImage::Format_RGB32);
    QPainter painter(&image);
    render(scene, PlotViewpoint(), painter, QRectF(image.rect()));
    return image;
}

Drawn drawn(const PlotScene& scene)
{
    RecordingDevice device(QSize(600, 400));
    QPainter painter(&device);
    render(scene, PlotViewpoint(), painter, QRectF(0, 0, 600, 400));
    painter.end();
    return device.record();
}

} // namespace

TEST(PointRaster, CountsShadeACrowdedPixelDarkerAndColouredPointsKeepTheirLargestValue)
{
    PointRaster raster(QRectF(10, 10, 4, 1), 1.0);
    for (int i = 0; i < 9; ++i)
        raster.add(10.5, 10.5, -1.0); // nine plain points on the first pixel
    raster.add(11.5, 10.5, -1.0);     // one on the second
    raster.add(12.5, 10.5, 0.2);
    raster.add(12.5, 10.5, 0.8); // the third pixel's colouring value is its largest
    raster.add(std::nan(""), 10.5, 0.5);
    raster.add(9.0, 10.5, 0.5); // left of the box
    const QImage image = raster.image(qRgb(0, 0, 0), [](double t) { return qRgb(int(255 * t), 0, 0); });
    ASSERT_EQ(QSize(4, 1), image.size());
    EXPECT_EQ(255, qAlpha(image.pixel(0, 0))) << "the most crowded pixel is opaque";
    EXPECT_LT(qAlpha(image.pixel(1, 0)), 255);
    EXPECT_GE(qAlpha(image.pixel(1, 0)), 127) << "a single point is at least half opaque";
    EXPECT_EQ(int(255 * 0.8), qRed(image.pixel(2, 0)));
    EXPECT_EQ(0, qAlpha(image.pixel(3, 0))) << "a missing value or one outside draws nothing";
}

TEST(PlotRender, ValuesThatCannotBeDrawnAreLeftOutOnEveryPathOfTheRaster)
{
    std::mt19937 random(7);
    std::uniform_real_distribution<double> unit(-1.0, 1.0);
    Figure plain, withBad;
    for (long i = 0; i < 3 * PlotPainter::ManyPoints; ++i) {
        plain.x.push_back(unit(random));
        plain.y.push_back(unit(random));
    }
    withBad.x = plain.x, withBad.y = plain.y;
    const double tiny = std::numeric_limits<double>::denorm_min() * 1000;
    for (double bad : {std::nan(""), tiny, -tiny, 1e307, std::numeric_limits<double>::infinity()})
        for (int i = 0; i < 500; ++i) {
            withBad.x.push_back(bad);
            withBad.y.push_back(unit(random) * 0.5);
            withBad.x.push_back(unit(random) * 0.5);
            withBad.y.push_back(bad);
        }
    EXPECT_EQ(picture(plain.make(-1, 1, -1, 1)), picture(withBad.make(-1, 1, -1, 1))) << "plain points";

    // Coloured points go through the raster one point at a time: the same holds.
    plain.colour.assign(plain.x.size(), 0.5);
    withBad.colour.assign(withBad.x.size(), 0.5);
    EXPECT_EQ(picture(plain.make(-1, 1, -1, 1)), picture(withBad.make(-1, 1, -1, 1))) << "coloured points";
}

TEST(PlotRender, ALogAxisTicksPowersOfTenAndTheColourBarAndKeyNameWhatIsDrawn)
{
    Figure figure;
    for (double v : {1.0, 10.0, 100.0, 1000.0, 10000.0}) {
        figure.x.push_back(v);
        figure.y.push_back(std::log10(v));
        figure.colour.push_back(std::log10(v) / 4);
    }
    PlotScene& scene = figure.scene;
    scene.axes[0].log = true;
    scene.title = "Decades";
    const Drawn log = drawn(figure.make(1, 10000, 0, 4));
    for (const char* tick : {"1", "10", "100", "1000", "10000"})
        EXPECT_TRUE(log.drewText(tick) || log.drewText(QString(tick).replace("0000", "0⁴"))) << tick;
    EXPECT_FALSE(log.drewText("5000")) << "no linear ticks on a log axis";
    EXPECT_TRUE(log.drewText("Decades"));
    EXPECT_TRUE(log.drewText("C")) << "the colour bar names its variable";
    EXPECT_TRUE(log.drewText("X") && log.drewText("Y"));
    EXPECT_GE(log.colours.size(), 5u) << "points along the colour map";

    scene.axes[0].log = false;
    const Drawn linear = drawn(figure.make(1, 10000, 0, 4));
    EXPECT_FALSE(linear.drewText("100")) << "a linear axis of 1 to 10000 ticks in thousands";
}
