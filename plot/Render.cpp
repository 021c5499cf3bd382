#include "plot/Render.h"

#include <QCoreApplication>
#include <QPainter>
#include "plot/PlotPainter.h"
#include "plot/PlotScene.h"

PlotGeometry render(const PlotScene& scene, const PlotViewpoint& view, QPainter& painter, const QRectF& rect)
{
    painter.setRenderHint(QPainter::Antialiasing, true);
    painter.setRenderHint(QPainter::TextAntialiasing, true);
    return PlotPainter(view).paint(painter, rect, scene);
}

PlotPicture renderPicture(const PlotScene& scene, const PlotViewpoint& view, const QSize& size, double ratio)
{
    PlotPicture picture{QImage(size * ratio, QImage::Format_RGB32), PlotGeometry(), view};
    picture.image.setDevicePixelRatio(ratio);
    const QRectF area(QPointF(0, 0), QSizeF(size));
    QString problem;
    try {
        QPainter painter(&picture.image);
        picture.geometry = render(scene, view, painter, area);
        return picture;
    } catch (const std::exception& e) {
        problem = QString::fromUtf8(e.what());
    } catch (...) {
        problem = QCoreApplication::translate("PlotView", "an unexpected error");
    }
    // The picture says what went wrong; nothing may escape to the caller's event loop or thread.
    picture.image.fill(Qt::white);
    picture.geometry = PlotGeometry();
    QPainter(&picture.image)
        .drawText(area, Qt::AlignCenter,
                  QCoreApplication::translate("PlotView", "The plot cannot be drawn: %1").arg(problem));
    return picture;
}
