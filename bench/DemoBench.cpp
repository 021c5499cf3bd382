// The demo host's two heavy paths beside their baselines, in one run:
//  - the plot's redraw of 1,000,000 and 10,000,000 points, as a scatter, coloured
//    by red, green and blue and as an XY line, and a zoom step drawn at once,
//    beside QPainter::drawPoints of the same points into an image of the same size
//    and, for the line, QPainter::drawPolyline of the same series;
//  - the longest the view's thread spends on one wheel step (the event and the
//    paint) at 10,000,000 points, the picture drawn on the view's worker, beside
//    the zoom step drawn at once;
//  - loading a legacy VTK file beside a plain read of the same file, with the
//    peak heap of each as a multiple of the data held as doubles;
//  - replaying a journal of 100,000 style changes in the demo's window (its
//    views kept up to date) beside the kernel's own replay of it.
// The default file is 10 MB; ORRERY_BENCH_VTK_MB=100 makes it 100 MB.
#include <algorithm>
#include <atomic>
#include <cstdio>
#include <cstdlib>
#include <fstream>
#include <memory>
#include <new>
#include <random>
#include <string>
#include <vector>
#include <benchmark/benchmark.h>
#include <QApplication>
#include <QElapsedTimer>
#include <QImage>
#include <QPainter>
#include <QWheelEvent>
#include <QtEndian>
#include "demo/window/MainWindow.h"
#include "demo/session/Session.h"
#include "demo/scene/HostPlotView.h"
#include "demo/scene/HostScene.h"
#include "host/kernel/JournalReplayer.h"
#include "host/kernel/DataSet.h"
#include "host/kernel/KernelDriver.h"
#include "platform/loaders/DataLoaderRepository.h"

using orrery::kernel::KernelDriver;

// Heap bytes in use and the most since the last reset, counted for every
// allocation of the program.
namespace {
std::atomic<long long> g_inUse{0};
std::atomic<long long> g_peak{0};

void counted(long long bytes)
{
    const long long now = g_inUse += bytes;
    long long peak = g_peak.load();
    while (now > peak && !g_peak.compare_exchange_weak(peak, now)) {
    }
}
} // namespace

void* operator new(std::size_t size)
{
    void* p = std::malloc(size + 16);
    if (!p)
        throw std::bad_alloc();
    *static_cast<std::size_t*>(p) = size;
    counted(static_cast<long long>(size));
    return static_cast<char*>(p) + 16;
}
void operator delete(void* p) noexcept
{
    if (!p)
        return;
    char* block = static_cast<char*>(p) - 16;
    counted(-static_cast<long long>(*reinterpret_cast<std::size_t*>(block)));
    std::free(block);
}
void operator delete(void* p, std::size_t) noexcept
{
    operator delete(p);
}
void* operator new[](std::size_t size)
{
    return operator new(size);
}
void operator delete[](void* p) noexcept
{
    operator delete(p);
}
void operator delete[](void* p, std::size_t) noexcept
{
    operator delete(p);
}

namespace {

const QSize ImageSize(1000, 800);

// Uniformly scattered points in one zone, and a third variable from 0 to 1 beside them.
void putPoints(long count)
{
    std::mt19937 random(7);
    std::uniform_real_distribution<double> unit(0.0, 1.0);
    std::vector<std::vector<double>> values(3, std::vector<double>(size_t(count)));
    for (long i = 0; i < count; ++i)
        for (std::vector<double>& column : values)
            column[size_t(i)] = unit(random);
    orrery::kernel::DataSet data("Cloud", {"X", "Y", "Z"});
    data.addZone("Cloud", values);
    KernelDriver::resetKernel();
    KernelDriver::setDataSet(data);
}

// The plot of what the kernel holds, drawn again and again as the view draws it.
void redrawRepeatedly(benchmark::State& state)
{
    HostPlotView view;
    QImage image(ImageSize, QImage::Format_RGB32);
    for (auto _ : state) {
        view.render(image);
        benchmark::DoNotOptimize(image.constBits());
    }
    state.counters["points/s"] =
        benchmark::Counter(double(state.range(0)), benchmark::Counter::kIsIterationInvariantRate);
}

void PlotRedraw(benchmark::State& state)
{
    putPoints(state.range(0));
    redrawRepeatedly(state);
}
BENCHMARK(PlotRedraw)->Arg(1000000)->Arg(10000000)->Unit(benchmark::kMillisecond);

// The same points coloured by red, green and blue from X, Y and Z.
void RGBRedraw(benchmark::State& state)
{
    putPoints(state.range(0));
    const char* channels[] = {"RedChannelVar", "GreenChannelVar", "BlueChannelVar"};
    for (long c = 0; c < 3; ++c)
        KernelDriver::setStyle({"GlobalRGB", channels[c]}, c + 1);
    KernelDriver::setStyle({"FieldMap", "Mesh", "Color"}, long(HostScene::RGBColoring));
    redrawRepeatedly(state);
}
BENCHMARK(RGBRedraw)->Arg(1000000)->Arg(10000000)->Unit(benchmark::kMillisecond);

// A noisy time series of count points: X in order, Y a random walk.
std::vector<std::vector<double>> randomWalk(long count)
{
    std::mt19937 random(7);
    std::normal_distribution<double> step(0.0, 1.0);
    std::vector<std::vector<double>> values(2, std::vector<double>(size_t(count)));
    double y = 0.0;
    for (long i = 0; i < count; ++i) {
        values[0][size_t(i)] = double(i);
        values[1][size_t(i)] = y += step(random);
    }
    return values;
}

// The same number of points as an XY line.
void LineRedraw(benchmark::State& state)
{
    orrery::kernel::DataSet data("Series", {"Time", "Signal"});
    data.addZone("Series", randomWalk(state.range(0)));
    KernelDriver::resetKernel();
    KernelDriver::setDataSet(data);
    KernelDriver::setPlotType(PlotType_XYLine);
    redrawRepeatedly(state);
}
BENCHMARK(LineRedraw)->Arg(1000000)->Arg(10000000)->Unit(benchmark::kMillisecond);

// One wheel notch in and one out about the centre, each drawn as the view draws after it.
void PlotZoomStep(benchmark::State& state)
{
    putPoints(state.range(0));
    HostPlotView view;
    view.resize(ImageSize);
    QImage image(ImageSize, QImage::Format_RGB32);
    view.render(image);
    view.grab(); // the geometry a zoom works from
    bool in = true;
    for (auto _ : state) {
        view.zoomAt(QPointF(500, 400), in ? 1.25 : 0.8);
        in = !in;
        view.render(image);
        benchmark::DoNotOptimize(image.constBits());
    }
}
BENCHMARK(PlotZoomStep)->Arg(1000000)->Arg(10000000)->Unit(benchmark::kMillisecond);

// Wheel notches in and out over the view on screen, each timed from the event to
// the end of the paint it asks for; the worker's pictures arrive between steps.
void PlotWheelStep(benchmark::State& state)
{
    putPoints(state.range(0));
    HostPlotView view;
    view.resize(ImageSize);
    view.show();
    QApplication::processEvents(); // shown: a paint then draws
    view.repaint();
    view.waitForPicture();
    if (!view.geometry().navigable)
        state.SkipWithError("the first picture was not drawn");
    const QPointF centre(500, 400);
    const int draws = view.drawCount();
    bool in = true;
    double longest = 0.0;
    for (auto _ : state) {
        QWheelEvent wheel(centre, QPointF(view.mapToGlobal(centre.toPoint())), QPoint(), QPoint(0, in ? 120 : -120),
                          Qt::NoButton, Qt::NoModifier, Qt::NoScrollPhase, false);
        in = !in;
        QElapsedTimer clock;
        clock.start();
        QApplication::sendEvent(&view, &wheel);
        view.repaint();
        const double seconds = double(clock.nsecsElapsed()) * 1e-9;
        longest = std::max(longest, seconds);
        state.SetIterationTime(seconds);
        state.PauseTiming();
        QApplication::processEvents(); // a picture the worker finished meanwhile is shown
        state.ResumeTiming();
    }
    state.counters["longest_ms"] = longest * 1e3;
    state.counters["pictures_asked"] = view.drawCount() - draws;
    view.waitForPicture();
}
BENCHMARK(PlotWheelStep)->Arg(10000000)->UseManualTime()->Iterations(40)->Unit(benchmark::kMillisecond);

// The same points, already in pixels, drawn with a one-pixel pen after the same white fill.
void BaselineDrawPoints(benchmark::State& state)
{
    std::mt19937 random(7);
    std::uniform_real_distribution<double> unit(0.0, 1.0);
    std::vector<QPointF> points(size_t(state.range(0)));
    for (QPointF& p : points)
        p = QPointF(70 + unit(random) * (ImageSize.width() - 94), 30 + unit(random) * (ImageSize.height() - 80));
    QImage image(ImageSize, QImage::Format_RGB32);
    for (auto _ : state) {
        QPainter painter(&image);
        painter.fillRect(image.rect(), Qt::white);
        painter.setPen(QPen(Qt::black, 1, Qt::SolidLine, Qt::RoundCap));
        painter.drawPoints(points.data(), int(points.size()));
        painter.end();
        benchmark::DoNotOptimize(image.constBits());
    }
    state.counters["points/s"] =
        benchmark::Counter(double(state.range(0)), benchmark::Counter::kIsIterationInvariantRate);
}
BENCHMARK(BaselineDrawPoints)->Arg(1000000)->Arg(10000000)->Unit(benchmark::kMillisecond);

// The same time series as the line, already in pixels, drawn whole by QPainter::drawPolyline, smoothed as a
// line on screen is; 10,000,000 points take too long to repeat.
void BaselineDrawPolyline(benchmark::State& state)
{
    const std::vector<std::vector<double>> walk = randomWalk(state.range(0));
    const auto [low, high] = std::minmax_element(walk[1].begin(), walk[1].end());
    const double width = ImageSize.width() - 94, height = ImageSize.height() - 80;
    std::vector<QPointF> points(walk[0].size());
    for (size_t i = 0; i < points.size(); ++i)
        points[i] = QPointF(70 + width * walk[0][i] / double(points.size()),
                            30 + height * (*high - walk[1][i]) / (*high - *low));
    QImage image(ImageSize, QImage::Format_RGB32);
    for (auto _ : state) {
        QPainter painter(&image);
        painter.setRenderHint(QPainter::Antialiasing);
        painter.fillRect(image.rect(), Qt::white);
        painter.setPen(QPen(Qt::black, 1));
        painter.drawPolyline(points.data(), int(points.size()));
        painter.end();
        benchmark::DoNotOptimize(image.constBits());
    }
    state.counters["points/s"] =
        benchmark::Counter(double(state.range(0)), benchmark::Counter::kIsIterationInvariantRate);
}
BENCHMARK(BaselineDrawPolyline)->Arg(1000000)->Unit(benchmark::kMillisecond);

// A binary structured grid of double coordinates and one double scalar: 32
// bytes a point in the file and four doubles a point in the data set.
struct VtkFile
{
    std::string path;
    long long points = 0;
    long long bytes = 0;
};

const VtkFile& vtkFile()
{
    static VtkFile file = [] {
        const char* mb = std::getenv("ORRERY_BENCH_VTK_MB");
        const long long wanted = (mb ? std::atoll(mb) : 10) * 1000000LL;
        VtkFile f;
        f.path = "/tmp/orrery-demobench.vtk";
        const long long side = 1000;
        const long long layers = std::max(1LL, wanted / 32 / side);
        f.points = side * layers;
        std::ofstream out(f.path, std::ios::binary);
        out << "# vtk DataFile Version 3.0\nbench\nBINARY\nDATASET STRUCTURED_GRID\nDIMENSIONS " << side << " "
            << layers << " 1\nPOINTS " << f.points << " double\n";
        std::vector<char> row(size_t(side) * 24);
        for (long long j = 0; j < layers; ++j) {
            for (long long i = 0; i < side; ++i) {
                const double xyz[3] = {double(i), double(j), 0.5};
                for (int a = 0; a < 3; ++a)
                    qToBigEndian(xyz[a], row.data() + (i * 3 + a) * 8);
            }
            out.write(row.data(), std::streamsize(row.size()));
        }
        out << "\nPOINT_DATA " << f.points << "\nSCALARS s double\nLOOKUP_TABLE default\n";
        for (long long j = 0; j < layers; ++j) {
            for (long long i = 0; i < side; ++i)
                qToBigEndian(double(i * j), row.data() + i * 8);
            out.write(row.data(), std::streamsize(side * 8));
        }
        out.close();
        f.bytes = static_cast<long long>(std::ifstream(f.path, std::ios::binary | std::ios::ate).tellg());
        return f;
    }();
    return file;
}

void reportMemory(benchmark::State& state, long long peak)
{
    const VtkFile& f = vtkFile();
    const double data = double(f.points) * 4 * sizeof(double);
    state.counters["file_MB"] = double(f.bytes) / 1e6;
    state.counters["bytes/s"] = benchmark::Counter(double(f.bytes), benchmark::Counter::kIsIterationInvariantRate);
    state.counters["peak_x_data"] = double(peak) / data;
}

void VtkLoad(benchmark::State& state)
{
    const VtkFile& f = vtkFile();
    auto loader = orrery::sdk::DataLoaderRepository::getInstance().loaderNamed("VTK legacy");
    long long peak = 0;
    for (auto _ : state) {
        KernelDriver::clearDataSet();
        g_peak = g_inUse.load();
        const long long before = g_inUse.load();
        std::string error;
        if (!loader->load(f.path, error))
            state.SkipWithError(error.c_str());
        peak = std::max(peak, g_peak.load() - before);
    }
    reportMemory(state, peak);
}
BENCHMARK(VtkLoad)->Unit(benchmark::kMillisecond);

// The file read into memory in blocks of the loader's size, nothing parsed.
void BaselinePlainRead(benchmark::State& state)
{
    const VtkFile& f = vtkFile();
    long long peak = 0;
    for (auto _ : state) {
        g_peak = g_inUse.load();
        const long long before = g_inUse.load();
        std::unique_ptr<std::FILE, int (*)(std::FILE*)> in(std::fopen(f.path.c_str(), "rb"), &std::fclose);
        std::vector<char> all;
        all.reserve(size_t(f.bytes));
        std::vector<char> block(1 << 20);
        for (size_t n; (n = std::fread(block.data(), 1, block.size(), in.get())) > 0;)
            all.insert(all.end(), block.data(), block.data() + n);
        benchmark::DoNotOptimize(all.data());
        peak = std::max(peak, g_peak.load() - before);
    }
    reportMemory(state, peak);
}
BENCHMARK(BaselinePlainRead)->Unit(benchmark::kMillisecond);

// 100,000 style lines, each of which changes a value.
const std::string& journalPath()
{
    static const std::string path = [] {
        const std::string file = "/tmp/orrery-demobench.journal";
        std::ofstream out(file);
        for (int i = 0; i < 100000; ++i)
            out << (i % 2 ? "style GlobalRGB/RedChannelVar " + std::to_string(i % 4 + 1)
                          : "style GlobalScatter/RelativeSize " + std::to_string(1 + i % 7))
                << "\n";
        return file;
    }();
    return path;
}

void freshKernel()
{
    KernelDriver::resetKernel();
    KernelDriver::loadSampleDataSet();
}

void BaselineKernelReplay(benchmark::State& state)
{
    for (auto _ : state) {
        state.PauseTiming();
        freshKernel();
        state.ResumeTiming();
        const auto result = orrery::kernel::JournalReplayer::replayFile(journalPath());
        if (!result.ok)
            state.SkipWithError(result.message.c_str());
    }
}
BENCHMARK(BaselineKernelReplay)->Unit(benchmark::kMillisecond);

void DemoReplay(benchmark::State& state)
{
    MainWindow window;
    window.show();
    for (auto _ : state) {
        state.PauseTiming();
        freshKernel();
        QApplication::processEvents();
        state.ResumeTiming();
        if (!window.session().replayJournal(QString::fromStdString(journalPath())))
            state.SkipWithError("the replay failed");
        QApplication::processEvents(); // the views catch up
    }
}
BENCHMARK(DemoReplay)->Unit(benchmark::kMillisecond);

} // namespace

int main(int argc, char** argv)
{
    qputenv("QT_QPA_PLATFORM", "offscreen");
    QApplication app(argc, argv);
    benchmark::Initialize(&argc, argv);
    benchmark::RunSpecifiedBenchmarks();
    benchmark::Shutdown();
    std::remove("/tmp/orrery-demobench.vtk");
    std::remove("/tmp/orrery-demobench.journal");
    return 0;
}
