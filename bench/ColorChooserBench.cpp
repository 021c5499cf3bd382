// Cost of the colour chooser: its first show (built fresh) and a later fetch
// and show of the live dialog, beside a plain dialog of as many tool buttons
// (64 swatches, 8 multi buttons and RGB) built in the same run. A third
// figure shows the same plain dialog with one style sheet per swatch, the
// usual way to colour a button.
#include <memory>
#include <benchmark/benchmark.h>
#include <QApplication>
#include <QDialog>
#include <QDialogButtonBox>
#include <QFrame>
#include <QGridLayout>
#include <QHBoxLayout>
#include <QToolButton>
#include "platform/common/IdleQueue.h"
#include "bench/support/BenchHost.h"
#include "platform/kernel/OrrUtil.h"
#include "prompts/prompt/ColorChooserDialog.h"

using orrery::dialogs::prompt::ColorChooserDialog;

namespace {

void settle()
{
    QCoreApplication::processEvents();
    orrery::sdk::ui::common::IdleQueue::instance().flush();
}

// The chooser's widgets without its classes: a framed 8 x 8 grid of tool
// buttons, a row of nine tool buttons and a Close box.
void showPlainChooser(QWidget& parent, bool styleSheetPerSwatch)
{
    auto* dialog = new QDialog(&parent);
    auto* layout = new QGridLayout(dialog);
    auto* frame = new QFrame(dialog);
    frame->setFrameShape(QFrame::StyledPanel);
    auto* frameLayout = new QGridLayout(frame);
    auto* grid = new QWidget(frame);
    frameLayout->addWidget(grid);
    auto* swatches = new QGridLayout(grid);
    swatches->setSpacing(2);
    swatches->setContentsMargins(0, 0, 0, 0);
    for (int i = 0; i < 64; ++i) {
        auto* swatch = new QToolButton(grid);
        if (styleSheetPerSwatch) {
            unsigned char r, g, b;
            OrrUtilColorMapGetBasicColorRGB(i, &r, &g, &b);
            swatch->setStyleSheet(QString("QToolButton {background-color: rgb(%1,%2,%3);}").arg(r).arg(g).arg(b));
        }
        swatches->addWidget(swatch, i / 8, i % 8);
    }
    layout->addWidget(frame, 0, 0);
    auto* row = new QHBoxLayout;
    for (int i = 0; i < 9; ++i)
        row->addWidget(new QToolButton(dialog));
    layout->addLayout(row, 1, 0);
    layout->addWidget(new QDialogButtonBox(QDialogButtonBox::Close, dialog), 3, 0);
    dialog->show();
    settle();
}

void BM_PlainToolButtonsBaseline(benchmark::State& state)
{
    for (auto _ : state) {
        auto parent = std::make_unique<QWidget>();
        showPlainChooser(*parent, false);
        state.PauseTiming();
        parent.reset();
        state.ResumeTiming();
    }
}

void BM_StyleSheetPerSwatch(benchmark::State& state)
{
    for (auto _ : state) {
        auto parent = std::make_unique<QWidget>();
        showPlainChooser(*parent, true);
        state.PauseTiming();
        parent.reset();
        state.ResumeTiming();
    }
}

void BM_ColorChooserFirstShow(benchmark::State& state)
{
    for (auto _ : state) {
        auto parent = std::make_unique<QWidget>();
        ColorChooserDialog::getInstance(*parent, true)->show();
        settle();
        state.PauseTiming();
        parent.reset();
        benchhost::announceChange(); // the next dialog asks the host afresh
        state.ResumeTiming();
    }
}

void BM_ColorChooserReuseShow(benchmark::State& state)
{
    QWidget parent;
    ColorChooserDialog::getInstance(parent, true)->show();
    settle();
    bool enable = false;
    for (auto _ : state) {
        ColorChooserDialog* dialog = ColorChooserDialog::getInstance(parent, enable);
        dialog->show();
        settle();
        state.PauseTiming();
        dialog->hide();
        settle();
        enable = !enable;
        state.ResumeTiming();
    }
}

BENCHMARK(BM_PlainToolButtonsBaseline)->Unit(benchmark::kMillisecond);
BENCHMARK(BM_StyleSheetPerSwatch)->Unit(benchmark::kMillisecond);
BENCHMARK(BM_ColorChooserFirstShow)->Unit(benchmark::kMillisecond);
BENCHMARK(BM_ColorChooserReuseShow)->Unit(benchmark::kMillisecond);

} // namespace

int main(int argc, char** argv)
{
    if (qEnvironmentVariableIsEmpty("QT_QPA_PLATFORM"))
        qputenv("QT_QPA_PLATFORM", "offscreen");
    QApplication app(argc, argv);
    benchhost::start();
    benchmark::AddCustomContext("host", benchhost::name());
    benchmark::Initialize(&argc, argv);
    benchmark::RunSpecifiedBenchmarks();
    benchmark::Shutdown();
    return 0;
}
