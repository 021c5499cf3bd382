#include <QBuffer>
#include <QImage>
#include <QPainter>
#include <QPdfWriter>
#include <gtest/gtest.h>
#include "plot/PlotPainter.h"

TEST(RasterResolution, FollowsTheDevicesPixelsAndTheScaleAndIsPrintFineInADocument)
{
    QImage image(100, 100, QImage::Format_RGB32);
    {
        QPainter painter(&image);
        EXPECT_DOUBLE_EQ(1.0, PlotPainter::rasterRatio(painter));
        painter.scale(2.0, 2.0);
        EXPECT_DOUBLE_EQ(2.0, PlotPainter::rasterRatio(painter)) << "a picture drawn twice as large";
        painter.resetTransform();
        painter.scale(0.5, 0.5);
        EXPECT_DOUBLE_EQ(0.5, PlotPainter::rasterRatio(painter));
    }
    image.setDevicePixelRatio(2.0);
    {
        QPainter painter(&image);
        EXPECT_DOUBLE_EQ(2.0, PlotPainter::rasterRatio(painter)) << "a screen of twice the density";
    }
    QBuffer file;
    file.open(QIODevice::WriteOnly);
    QPdfWriter pdf(&file);
    pdf.setResolution(96);
    QPainter painter(&pdf);
    EXPECT_GE(PlotPainter::rasterRatio(painter), PlotPainter::VectorRasterDpi / 96.0);
}
