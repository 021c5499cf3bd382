#pragma once
// What the demo's plot shows, for the checks of its pictures: the record of a
// render, the host's basic colours, and the colours only a colouring by value gives.
#include <QImage>
#include <QPainter>
#include "demo/scene/HostPlotView.h"
#include "platform/kernel/OrrUtil.h"
#include "tests/support/RecordingDevice.h"

namespace hostpictures {

using testsupport::Drawn;

inline Drawn drawn(const HostPlotView& view, QSize size = QSize(800, 600))
{
    testsupport::RecordingDevice device(size);
    QPainter painter(&device);
    view.render(painter, QRectF(QPointF(0, 0), QSizeF(size)));
    painter.end();
    return device.record();
}

inline QRgb basicColour(int index)
{
    unsigned char r, g, b;
    OrrUtilColorMapGetBasicColorRGB(index, &r, &g, &b);
    return qRgb(r, g, b);
}

inline int pixelsOf(const QImage& image, QRgb colour)
{
    int count = 0;
    for (int y = 0; y < image.height(); ++y)
        for (int x = 0; x < image.width(); ++x)
            count += (image.pixel(x, y) & 0xffffff) == (colour & 0xffffff);
    return count;
}

// Colours drawn that are neither grey nor a basic colour: a colour map, RGB or
// multi colouring drew them.
inline int mappedColours(const Drawn& picture)
{
    int count = 0;
    for (const QRgb c : picture.colours) {
        bool plain = qRed(c) == qGreen(c) && qGreen(c) == qBlue(c);
        for (int i = 0; i < 8; ++i)
            plain = plain || (c & 0xffffff) == (basicColour(i) & 0xffffff);
        count += !plain;
    }
    return count;
}

} // namespace hostpictures
