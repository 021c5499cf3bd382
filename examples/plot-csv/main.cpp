// plot-csv DATA.csv OUT.png: the second column against the first, coloured by
// the third when there is one.
#include <algorithm>
#include <cmath>
#include <QFile>
#include <QGuiApplication>
#include <QImage>
#include <QPainter>
#include <QTextStream>
#include <plot/PlotScene.h>
#include <plot/Render.h>

int main(int argc, char** argv)
{
    QGuiApplication app(argc, argv);
    QFile file(argc == 3 ? argv[1] : "");
    if (argc != 3 || !file.open(QIODevice::ReadOnly | QIODevice::Text)) {
        std::fputs("usage: plot-csv DATA.csv OUT.png\n", stderr);
        return 2;
    }
    QTextStream in(&file);
    const QStringList names = in.readLine().split(',');
    std::vector<std::vector<double>> columns(std::min<qsizetype>(names.size(), 3));
    while (!in.atEnd()) {
        const QStringList cells = in.readLine().split(',');
        for (size_t c = 0; c < columns.size(); ++c) {
            bool ok = false;
            const double v = cells.value(qsizetype(c)).toDouble(&ok);
            columns[c].push_back(ok ? v : std::nan(""));
        }
    }
    if (columns.size() < 2 || columns[0].empty()) {
        std::fputs("plot-csv: two columns of numbers are needed\n", stderr);
        return 1;
    }
    auto range = [](const std::vector<double>& values, double& min, double& max) {
        min = INFINITY, max = -INFINITY;
        for (double v : values)
            if (std::isfinite(v))
                min = std::min(min, v), max = std::max(max, v);
    };
    PlotScene scene;
    scene.title = file.fileName();
    PlotScene::Zone zone;
    zone.name = names[0];
    zone.points = long(columns[0].size());
    zone.mesh = true;
    zone.meshColours = PointColours(qRgb(0, 0, 160));
    for (int a = 0; a < 2; ++a) {
        scene.axes[a].name = scene.axes[a].title = names[a];
        range(columns[size_t(a)], scene.axes[a].min, scene.axes[a].max);
        zone.values[a] = columns[size_t(a)].data();
    }
    if (columns.size() == 3) {
        scene.contourName = names[2];
        range(columns[2], scene.contour.min, scene.contour.max);
        zone.meshColours = PointColours::mapped(qRgb(0, 0, 0), columns[2].data(), scene.contour);
    }
    scene.zones.push_back(zone);

    QImage picture(800, 600, QImage::Format_RGB32);
    QPainter painter(&picture);
    render(scene, PlotViewpoint(), painter, QRectF(picture.rect()));
    painter.end();
    return picture.save(argv[2]) ? 0 : 1;
}
