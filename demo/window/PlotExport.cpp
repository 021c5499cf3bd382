#include "demo/window/PlotExport.h"

#include <memory>
#include <QCoreApplication>
#include <QFileInfo>
#include <QPageSize>
#include <QPainter>
#include <QPdfWriter>
#include <QSaveFile>
#include <QSvgGenerator>
#include "plot/PlotScene.h"
#include "plot/Render.h"
#include "demo/session/RegularFile.h"

namespace {

QString tr(const char* text)
{
    return QCoreApplication::translate("PlotExport", text);
}

// Screen pixels are 1/96 inch; vector formats keep that scale.
const int ScreenDpi = 96;

} // namespace

QImage PlotExport::image(const PlotScene& scene, const PlotViewpoint& view, const QSize& size, double ratio)
{
    // Laid out at the screen's resolution, in logical pixels, then scaled as a
    // whole: another ratio gives the same figure, ticks, texts and all, finer or
    // coarser. The file then says how many of its pixels make an inch.
    QImage picture(QSize(qRound(size.width() * ratio), qRound(size.height() * ratio)), QImage::Format_RGB32);
    picture.setDotsPerMeterX(int(ScreenDpi / 0.0254));
    picture.setDotsPerMeterY(int(ScreenDpi / 0.0254));
    {
        QPainter painter(&picture);
        painter.scale(ratio, ratio);
        render(scene, view, painter, QRectF(QPointF(0, 0), QSizeF(size)));
    }
    picture.setDotsPerMeterX(int(ScreenDpi * ratio / 0.0254));
    picture.setDotsPerMeterY(int(ScreenDpi * ratio / 0.0254));
    return picture;
}

bool PlotExport::write(const PlotScene& scene, const PlotViewpoint& view, const QString& path, const QSize& size,
                       double ratio, QString* error)
{
    const QString suffix = QFileInfo(path).suffix().toLower();
    auto fail = [&](const QString& why) {
        if (error)
            *error = tr("Cannot export the plot to %1: %2").arg(path, why);
        return false;
    };
    if (size.isEmpty() || !(ratio > 0.0))
        return fail(tr("the picture has no size"));
    // An export makes or replaces a regular file only: a device node or a FIFO,
    // also behind a link, would be replaced by the picture.
    const QString notRegular = RegularFile::problem(path, true);
    if (!notRegular.isEmpty())
        return fail(notRegular);
    if (suffix == "png") {
        // Written aside and renamed, so that a failed export leaves no half file.
        QSaveFile file(path);
        if (!file.open(QIODevice::WriteOnly))
            return fail(file.errorString());
        if (!image(scene, view, size, ratio).save(&file, "PNG"))
            return fail(tr("the PNG could not be written"));
        return file.commit() || fail(file.errorString());
    }
    if (suffix == "svg" || suffix == "pdf") {
        QSaveFile file(path);
        if (!file.open(QIODevice::WriteOnly))
            return fail(file.errorString());
        std::unique_ptr<QPaintDevice> device;
        if (suffix == "svg") {
            auto svg = std::make_unique<QSvgGenerator>();
            svg->setOutputDevice(&file);
            svg->setSize(size);
            svg->setViewBox(QRect(QPoint(0, 0), size));
            svg->setResolution(ScreenDpi);
            svg->setTitle(QFileInfo(path).completeBaseName());
            svg->setDescription(tr("A plot drawn by %1").arg(QCoreApplication::applicationName()));
            device = std::move(svg);
        } else {
            auto pdf = std::make_unique<QPdfWriter>(&file);
            pdf->setResolution(ScreenDpi);
            pdf->setPageSize(QPageSize(QSizeF(size) * 72.0 / ScreenDpi, QPageSize::Point));
            pdf->setPageMargins(QMarginsF(0, 0, 0, 0));
            pdf->setTitle(QFileInfo(path).completeBaseName());
            device = std::move(pdf);
        }
        QPainter painter(device.get());
        if (!painter.isActive())
            return fail(tr("the %1 could not be started").arg(suffix.toUpper()));
        render(scene, view, painter, QRectF(QPointF(0, 0), QSizeF(size)));
        painter.end();
        return file.commit() || fail(file.errorString());
    }
    return fail(tr("the extension must be .png, .svg or .pdf"));
}

QString PlotExport::filter()
{
    return tr("PNG image (*.png);;SVG drawing (*.svg);;PDF document (*.pdf)");
}
