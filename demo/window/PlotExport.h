#pragma once
#include <QImage>
#include <QSize>
#include <QString>

struct PlotScene;
struct PlotViewpoint;

// A scene written to a file or the clipboard as seen from a viewpoint, no widget needed: PNG at a
// pixel ratio, SVG with its texts kept as text, or PDF.
class PlotExport
{
public:
    // The format follows the extension (.png, .svg, .pdf). size is in logical
    // pixels; ratio multiplies a PNG's pixels (2 for a 200 % screen). False,
    // with a message naming the file, when it cannot be written.
    static bool write(const PlotScene& scene, const PlotViewpoint& view, const QString& path, const QSize& size,
                      double ratio, QString* error);
    static QImage image(const PlotScene& scene, const PlotViewpoint& view, const QSize& size, double ratio);
    // For a file dialog's filter.
    static QString filter();
};
