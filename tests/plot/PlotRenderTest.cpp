#include <cmath>
#include <functional>
#include <limits>
#include <random>
#include <set>
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

TEST(PointRaster, CountsShadeACrowdedPixelDarkerAndColouredPointsKeepTheirLargestValueOrLastColour)
{
    PointRaster raster(QRectF(10, 10, 6, 1), 1.0);
    for (int i = 0; i < 9; ++i)
        raster.addPixel(0.5, 0.5, -1.0); // nine plain points on the first pixel
    raster.addPixel(1.5, 0.5, -1.0);     // one on the second
    raster.addPixel(2.5, 0.5, 0.2);
    raster.addPixel(2.5, 0.5, 0.8); // the third pixel's colouring value is its largest
    raster.addPixel(std::nan(""), 0.5, 0.5);
    raster.addPixel(-1.0, 0.5, 0.5); // left of the box
    raster.addColoured(4.5, 0.5, qRgb(0, 200, 0));
    raster.addColoured(4.5, 0.5, qRgb(0, 0, 200)); // the fifth pixel takes its last point's colour
    raster.addColoured(6.5, 0.5, qRgb(0, 200, 0));
    const QImage image = raster.image(
        qRgb(0, 0, 0), [](double t) { return qRgb(int(255 * t), 0, 0); }, [](QRgb c) { return c | 0x100000; });
    ASSERT_EQ(QSize(6, 1), image.size());
    EXPECT_EQ(255, qAlpha(image.pixel(0, 0))) << "the most crowded pixel is opaque";
    EXPECT_LT(qAlpha(image.pixel(1, 0)), 255);
    EXPECT_GE(qAlpha(image.pixel(1, 0)), 127) << "a single point is at least half opaque";
    EXPECT_EQ(int(255 * 0.8), qRed(image.pixel(2, 0)));
    EXPECT_EQ(0, qAlpha(image.pixel(3, 0))) << "a missing value or one outside draws nothing";
    EXPECT_EQ(qRgb(16, 0, 200), image.pixel(4, 0)) << "recoloured, as a faded zone is";
    EXPECT_EQ(0, qAlpha(image.pixel(5, 0)));
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

TEST(PlotRender, TheKeyShowsAnRGBZoneInAllThreeColoursAndGoesBelowTheAxesOfATallNarrowView)
{
    Figure figure;
    figure.x = {0.0, 1.0};
    figure.y = {0.0, 1.0};
    PlotScene& scene = figure.scene;
    figure.make(0, 1, 0, 1);
    PointColours::Channels channels;
    channels.values[0] = figure.x.data();
    scene.zones[0].meshColours = PointColours::rgb(qRgb(0, 0, 0), channels);
    for (const char* name : {"Inlet channel", "Outlet channel"}) {
        PlotScene::Zone zone = scene.zones[0];
        zone.name = name;
        zone.meshColours = PointColours(qRgb(0, 0, 0));
        zone.faded = true; // the first zone is picked out: the key lists them all
        scene.zones.push_back(zone);
    }

    // Red, green and blue from variables: the key's swatch shows all three, not one colour of a map.
    QImage image(600, 300, QImage::Format_RGB32);
    QPainter painter(&image);
    const PlotGeometry geometry = render(scene, PlotViewpoint(), painter, QRectF(image.rect()));
    painter.end();
    bool seen[3] = {false, false, false};
    for (int y = 0; y < image.height(); ++y)
        for (int x = int(geometry.plot.right()) + 2; x < image.width(); ++x) {
            const QColor c = image.pixelColor(x, y);
            seen[0] |= c.red() > 200 && c.green() < 80 && c.blue() < 80;
            seen[1] |= c.green() > 200 && c.red() < 80 && c.blue() < 80;
            seen[2] |= c.blue() > 200 && c.red() < 80 && c.green() < 80;
        }
    EXPECT_TRUE(seen[0] && seen[1] && seen[2]) << seen[0] << seen[1] << seen[2];

    const auto layout = [&](QSizeF size) {
        RecordingDevice device(size.toSize());
        QPainter painter(&device);
        const PlotGeometry geometry = render(scene, PlotViewpoint(), painter, QRectF(QPointF(), size));
        painter.end();
        const Drawn drawn = device.record();
        const Drawn::Text* name = drawn.textStarting("Outlet channel");
        EXPECT_TRUE(name) << size.width() << "x" << size.height();
        return std::make_pair(geometry.plot, name ? name->at : QPointF());
    };
    const auto [wide, besideAt] = layout(QSizeF(800, 600));
    EXPECT_GT(besideAt.x(), wide.right()) << "beside the axes";
    const auto [tall, belowAt] = layout(QSizeF(300, 600));
    EXPECT_GT(belowAt.y(), tall.bottom()) << "below the axes";
    EXPECT_GT(tall.width(), 0.7 * 300) << "the axes keep the width";
    const auto [flat, flatAt] = layout(QSizeF(300, 150));
    EXPECT_GT(flatAt.x(), flat.right()) << "a short view keeps its height for the axes";
}

// Points at 1.5 to 3 on a log X axis and at their logarithms on a linear one:
// the general path and the direct one put each on the same pixel, however
// coloured, and red, green and blue keep every shade a point has.
TEST(PlotRender, TheRasterPutsEachPointOnTheSamePixelOnEveryPathWhateverColoursIt)
{
    std::mt19937 random(5);
    std::uniform_real_distribution<double> unit(0.0, 1.0);
    Figure log, linear;
    std::vector<double> green;
    for (long i = 0; i < 2 * PlotPainter::ManyPoints; ++i) {
        const double x = 1.5 + 1.5 * unit(random), y = unit(random);
        log.x.push_back(x), linear.x.push_back(std::log10(x));
        log.y.push_back(y), linear.y.push_back(y);
        green.push_back(unit(random));
    }
    log.scene.axes[0].log = true;
    const auto compare = [&](const char* what, const std::function<void(PlotScene&)>& colour) {
        QImage images[2] = {QImage(600, 400, QImage::Format_RGB32), QImage(600, 400, QImage::Format_RGB32)};
        PlotGeometry geometry[2];
        for (int k = 0; k < 2; ++k) {
            PlotScene scene = k ? linear.make(0, 4, 0, 1) : log.make(1, 1e4, 0, 1);
            colour(scene);
            QPainter painter(&images[k]);
            geometry[k] = render(scene, PlotViewpoint(), painter, QRectF(images[k].rect()));
        }
        EXPECT_EQ(geometry[0].plot, geometry[1].plot) << what;
        // Within the box and clear of the log axis's marks just below it.
        const QRect points = QRectF(QPointF(geometry[0].toPixel(0, 1.4), geometry[0].plot.top() + 1),
                                    QPointF(geometry[0].toPixel(0, 3.1), geometry[0].plot.bottom() - 2))
                                 .toAlignedRect();
        EXPECT_EQ(images[0].copy(points), images[1].copy(points)) << what;
        std::set<QRgb> colours;
        for (int y = points.top(); y <= points.bottom(); ++y)
            for (int x = points.left(); x <= points.right(); ++x)
                colours.insert(images[1].pixel(x, y));
        return colours;
    };
    EXPECT_GT(compare("plain", [](PlotScene&) {}).size(), 3u);
    log.colour = linear.colour = green;
    EXPECT_GT(compare("on a map", [](PlotScene&) {}).size(), 100u);
    log.colour.clear(), linear.colour.clear();
    const std::set<QRgb> rgb = compare("red, green and blue", [&](PlotScene& scene) {
        PointColours::Channels channels;
        channels.values[1] = green.data();
        scene.zones[0].meshColours = PointColours::rgb(qRgb(0, 0, 0), channels);
    });
    EXPECT_GT(rgb.size(), 200u) << "every shade of green, not a few steps of it";
    for (QRgb c : rgb)
        EXPECT_TRUE((qRed(c) == 0 && qBlue(c) == 0) || (qRed(c) == qGreen(c) && qGreen(c) == qBlue(c)))
            << "green or the grey of the grid: " << std::hex << c;
}

namespace {

// Share of the pixels of two pictures of one size that differ by more than a shade.
double differing(const QImage& a, const QImage& b)
{
    long count = 0;
    for (int y = 0; y < a.height(); ++y)
        for (int x = 0; x < a.width(); ++x)
            count += std::abs(qGray(a.pixel(x, y)) - qGray(b.pixel(x, y))) > 64;
    return double(count) / (a.width() * a.height());
}

} // namespace

TEST(PlotRender, AnyResolutionGivesTheSameFigureFinerOrCoarser)
{
    Figure figure;
    for (int i = 0; i < 200; ++i)
        figure.x.push_back(i / 10.0), figure.y.push_back(std::sin(i / 10.0));
    figure.scene.title = "Waves";
    const PlotScene& scene = figure.make(0, 20, -1, 1);
    const auto at = [&](double ratio) {
        QImage image(QSize(qRound(400 * ratio), qRound(300 * ratio)), QImage::Format_RGB32);
        QPainter painter(&image);
        painter.scale(ratio, ratio);
        render(scene, PlotViewpoint(), painter, QRectF(0, 0, 400, 300));
        return image;
    };
    const QImage screen = at(1.0);
    for (double ratio : {2.0, 3.125, 0.5}) {
        const QImage back = at(ratio).scaled(screen.size(), Qt::IgnoreAspectRatio, Qt::SmoothTransformation);
        const QImage reference = ratio >= 1.0
                                     ? screen
                                     : screen.scaled(QSize(200, 150), Qt::IgnoreAspectRatio, Qt::SmoothTransformation)
                                           .scaled(screen.size(), Qt::IgnoreAspectRatio, Qt::SmoothTransformation);
        // Ticks, texts and layout in the same places: only edges may differ.
        EXPECT_LT(differing(back, reference), 0.01) << ratio;
    }
}

TEST(PlotRender, AnXYLineFollowsXWhateverTheOrderOfTheRowsAndKeepsItsGaps)
{
    const auto line = [](const std::vector<double>& x, const std::vector<double>& y) {
        Figure figure;
        figure.x = x, figure.y = y;
        PlotScene scene = figure.make(0, 6, 0, 5);
        scene.lines = true;
        scene.zones[0].lineValues = {figure.y.data()};
        return std::make_pair(picture(scene), drawn(scene).points);
    };
    const double nan = std::nan("");
    const auto inOrder = line({0, 1, 2, 3, 4, 5, 6}, {0, 3, 1, nan, 2, 5, 4});
    EXPECT_EQ(line({3, 0, 6, 1, 5, 2, 4}, {nan, 0, 4, 3, 5, 1, 2}), inOrder) << "rows in another order";
    EXPECT_NE(line({0, 1, 2, 3, 4, 5, 6}, {0, 3, 1, 9, 2, 5, 4}).first, inOrder.first) << "the gap is drawn as a gap";
    EXPECT_EQ(1, line({0, 1, 2}, {nan, 2, nan}).second) << "a lone value between gaps still shows";
}

TEST(PlotRender, TextsAreDrawnWholeTheKeyNamesColouringAndZonesAndASmallPictureSaysSo)
{
    Figure figure;
    figure.x = {0, 1, 2}, figure.y = {0, 1, 4}, figure.colour = {0.0, 0.5, 1.0};
    const auto scene = [&](const QString& colourName) {
        PlotScene made = figure.make(0, 2, 0, 4);
        made.contourName = colourName;
        made.zones[0].name = "Heated box";
        made.zones[0].scatter = true;
        made.zones[0].scatterColours = made.zones[0].meshColours;
        return made;
    };
    // An underscore below the line is drawn, not cut off by the text's box.
    EXPECT_NE(picture(scene("temperature K")), picture(scene("temperature_K")));
    const Drawn key = drawn(scene("temperature_K"));
    EXPECT_TRUE(key.drewText("temperature_K"));
    EXPECT_TRUE(key.drewText("Heated box"));

    RecordingDevice tiny(QSize(200, 60));
    QPainter painter(&tiny);
    render(scene("C"), PlotViewpoint(), painter, QRectF(0, 0, 200, 60));
    painter.end();
    EXPECT_NE(nullptr, tiny.record().textStarting("Too small")) << "not a plot squeezed to nothing";
}
