// Cost of the colour chooser: its first show (built fresh) and a later fetch
// and show of the live dialog, beside its form on a plain dialog with the
// swatches as plain tool buttons (64 swatches, 8 multi buttons and RGB, the
// same texts and tool tips) built in the same run. A third figure colours
// each plain swatch with a style sheet, the usual way to colour a button.
#include <memory>
#include <benchmark/benchmark.h>
#include <QApplication>
#include <QDialog>
#include <QGridLayout>
#include <QToolButton>
#include "bench/support/BenchHost.h"
#include "bench/support/PlainForm.h"
#include "platform/kernel/OrrUtil.h"
#include "prompts/prompt/ColorChooserDialog.h"
#include "ui_ColorChooser.h"

using benchform::PlainForm;
using benchform::settle;
using orrery::dialogs::prompt::ColorChooserDialog;

namespace {

// The chooser's form with an 8 x 8 grid of plain tool buttons in its frame,
// named as the chooser names its swatches.
void setupPlainChooser(QDialog& dialog, bool styleSheetPerSwatch)
{
    benchform::formSetup<Ui_ColorChooser>()(dialog);
    auto* frame = dialog.findChild<QWidget*>("buttonGridFrame");
    auto* frameLayout = new QGridLayout(frame);
    auto* grid = new QWidget(frame);
    frameLayout->addWidget(grid, 0, 0);
    auto* swatches = new QGridLayout(grid);
    swatches->setSpacing(2);
    swatches->setContentsMargins(0, 0, 0, 0);
    for (int i = 0; i < 64; ++i) {
        auto* swatch = new QToolButton(grid);
        swatch->setObjectName(QString("colorButton_%1").arg(i));
        if (styleSheetPerSwatch) {
            unsigned char r, g, b;
            OrrUtilColorMapGetBasicColorRGB(i, &r, &g, &b);
            swatch->setStyleSheet(QString("QToolButton {background-color: rgb(%1,%2,%3);}").arg(r).arg(g).arg(b));
        }
        swatches->addWidget(swatch, i / 8, i % 8);
    }
}

// The plain chooser showing the chooser's texts, captured once from a shown chooser.
PlainForm plainChooser(bool styleSheetPerSwatch)
{
    QWidget parent;
    ColorChooserDialog* dialog = ColorChooserDialog::getInstance(parent, true);
    dialog->show();
    settle();
    PlainForm captured([styleSheetPerSwatch](QDialog& plain) { setupPlainChooser(plain, styleSheetPerSwatch); },
                       *dialog);
    benchhost::announceChange(); // the dialogs measured next ask the host afresh
    return captured;
}

void showPlainChoosers(benchmark::State& state, bool styleSheetPerSwatch)
{
    const PlainForm plain = plainChooser(styleSheetPerSwatch);
    for (auto _ : state) {
        auto parent = std::make_unique<QWidget>();
        plain.show(*parent);
        state.PauseTiming();
        parent.reset();
        state.ResumeTiming();
    }
}

void BM_PlainToolButtonsBaseline(benchmark::State& state)
{
    showPlainChoosers(state, false);
}

void BM_StyleSheetPerSwatch(benchmark::State& state)
{
    showPlainChoosers(state, true);
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
