// Cost of opening the prompt dialogs: a fresh dialog built and shown for the
// first time, and a live one fetched again and shown. Each dialog is measured
// beside its own form on a plain QDialog showing the same texts and buttons
// (bench/support/PlainForm.h), built in the same run.
#include <algorithm>
#include <cstdio>
#include <memory>
#include <vector>
#include <benchmark/benchmark.h>
#include <QApplication>
#include <QDialog>
#include <QElapsedTimer>
#include <QProcess>
#include <QTemporaryDir>
#include "bench/support/BenchHost.h"
#include "bench/support/PlainForm.h"
#include "platform/loaders/DataLoaderRepository.h"
#include "prompts/prompt/AnchorAlignmentDialog.h"
#include "prompts/prompt/ChooseLoaderDialog.h"
#include "prompts/prompt/EnterASCIICharacterDialog.h"
#include "prompts/prompt/EnterTextStringDialog.h"
#include "prompts/prompt/EnterThreeIntValuesDialog.h"
#include "ui_AnchorAlignment.h"
#include "ui_ChooseLoader.h"
#include "ui_EnterASCIICharacter.h"
#include "ui_EnterTextString.h"
#include "ui_EnterThreeIntValues.h"

using namespace orrery::dialogs::prompt;
using benchform::PlainForm;
using benchform::settle;

namespace {

struct TextString
{
    using Form = Ui_EnterTextString;
    static QDialog* get(QWidget& parent) { return new EnterTextStringDialog(parent, "Name:", "Frame 1", "", false); }
};
struct ThreeInts
{
    using Form = Ui_EnterThreeIntValues;
    static QDialog* get(QWidget& parent)
    {
        return EnterThreeIntValuesDialog::getInstance(parent, 1, 10, 1, "Index Range", "", "&Begin", "&End", "&Skip", 1,
                                                      1, 1);
    }
};
struct AsciiCharacter
{
    using Form = Ui_EnterASCIICharacter;
    static QDialog* get(QWidget& parent)
    {
        return EnterASCIICharacterDialog::getInstance(parent, "A", true, Font_Math);
    }
};
struct Anchor
{
    using Form = Ui_AnchorAlignment;
    static QDialog* get(QWidget& parent) { return AnchorAlignmentDialog::getInstance(AnchorAlignment_TopLeft, parent); }
};
struct Loader
{
    using Form = Ui_ChooseLoader;
    static QDialog* get(QWidget& parent)
    {
        return ChooseLoaderDialog::getInstance(
            parent, orrery::sdk::DataLoaderRepository::getInstance().loadersForExtension(benchhost::loaderExtension()),
            {"." + benchhost::loaderExtension()});
    }
};

// Widgets of a dialog once shown (the frame adds a Help button).
template <typename D>
int widgetCount()
{
    QWidget parent;
    QDialog* dialog = D::get(parent);
    dialog->show();
    settle();
    return dialog->findChildren<QWidget*>().size();
}

// A fresh dialog each time: construction, first show and the events that follow.
template <typename D>
void BM_FirstShow(benchmark::State& state)
{
    for (auto _ : state) {
        auto parent = std::make_unique<QWidget>();
        QDialog* dialog = D::get(*parent);
        dialog->show();
        settle();
        state.PauseTiming();
        parent.reset();
        benchhost::announceChange(); // the next dialog asks the host afresh
        state.ResumeTiming();
    }
    state.counters["widgets"] = widgetCount<D>();
}

// The same dialog fetched again through its entry point and shown.
template <typename D>
void BM_ReuseShow(benchmark::State& state)
{
    QWidget parent;
    D::get(parent)->show();
    settle();
    for (auto _ : state) {
        QDialog* dialog = D::get(parent);
        dialog->show();
        settle();
        state.PauseTiming();
        dialog->hide();
        settle();
        state.ResumeTiming();
    }
}

// The dialog's form showing what the dialog shows, captured once from a shown dialog.
template <typename D>
const PlainForm& plainForm()
{
    static const PlainForm plain = [] {
        QWidget parent;
        QDialog* dialog = D::get(parent);
        dialog->show();
        settle();
        PlainForm captured(benchform::formSetup<typename D::Form>(), *dialog);
        benchhost::announceChange(); // the dialogs measured next ask the host afresh
        return captured;
    }();
    return plain;
}

template <typename D>
void BM_PlainDialogBaseline(benchmark::State& state)
{
    const PlainForm& plain = plainForm<D>();
    for (auto _ : state) {
        auto parent = std::make_unique<QWidget>();
        plain.show(*parent);
        state.PauseTiming();
        parent.reset();
        state.ResumeTiming();
    }
    state.counters["widgets"] = plain.widgetCount();
}

#define DIALOG_BENCHMARKS(D)                                                                                           \
    BENCHMARK_TEMPLATE(BM_PlainDialogBaseline, D)->Unit(benchmark::kMillisecond);                                      \
    BENCHMARK_TEMPLATE(BM_FirstShow, D)->Unit(benchmark::kMillisecond)

DIALOG_BENCHMARKS(TextString); // constructed by its caller each time: nothing to reuse
DIALOG_BENCHMARKS(ThreeInts);
BENCHMARK_TEMPLATE(BM_ReuseShow, ThreeInts)->Unit(benchmark::kMillisecond);
DIALOG_BENCHMARKS(AsciiCharacter);
BENCHMARK_TEMPLATE(BM_ReuseShow, AsciiCharacter)->Unit(benchmark::kMillisecond);
DIALOG_BENCHMARKS(Anchor);
BENCHMARK_TEMPLATE(BM_ReuseShow, Anchor)->Unit(benchmark::kMillisecond);
DIALOG_BENCHMARKS(Loader);
BENCHMARK_TEMPLATE(BM_ReuseShow, Loader)->Unit(benchmark::kMillisecond);

// The first dialog of a process also pays for styles, fonts and the platform's
// first window. Each figure comes from a process of its own that opens one
// dialog (or its form on a plain dialog) and exits. The plain form shows the
// layout's own texts: what the dialog sets in code is only known once a
// dialog has been shown, which would warm the process.
struct ColdStart
{
    const char* name;
    QDialog* (*get)(QWidget&);
    int (*widgets)();
    PlainForm::Setup (*form)();
};
template <typename D>
ColdStart coldStart(const char* name)
{
    return {name, D::get, widgetCount<D>, benchform::formSetup<typename D::Form>};
}
const ColdStart ColdStarts[] = {coldStart<TextString>("TextString"), coldStart<ThreeInts>("ThreeInts"),
                                coldStart<AsciiCharacter>("AsciiCharacter"), coldStart<Anchor>("Anchor"),
                                coldStart<Loader>("Loader")};

// In a child process: opens the named dialog, or its plain form ("plain:" and
// the name), and prints the milliseconds taken.
int coldStartChild(QString what)
{
    QWidget parent;
    QElapsedTimer timer;
    timer.start();
    const bool plain = what.startsWith("plain:");
    what.remove("plain:");
    for (const ColdStart& c : ColdStarts)
        if (what == c.name) {
            if (plain)
                PlainForm(c.form()).show(parent);
            else {
                c.get(parent)->show();
                settle();
            }
        }
    std::printf("%.3f\n", timer.nsecsElapsed() / 1e6);
    return 0;
}

double medianColdStart(const QString& what)
{
    std::vector<double> ms;
    for (int run = 0; run < 5; ++run) {
        QProcess child;
        child.start(QCoreApplication::applicationFilePath(), {"--cold-start", what});
        child.waitForFinished(30000);
        ms.push_back(child.readAllStandardOutput().trimmed().toDouble());
    }
    std::sort(ms.begin(), ms.end());
    return ms[ms.size() / 2];
}

void reportColdStarts()
{
    std::printf("%-16s %8s %14s %8s %7s\n", "Cold start", "widgets", "plain form", "dialog", "ratio");
    for (const ColdStart& c : ColdStarts) {
        const int widgets = c.widgets();
        const double plain = medianColdStart(QString("plain:") + c.name);
        const double dialog = medianColdStart(c.name);
        std::printf("%-16s %8d %11.2f ms %5.2f ms %7.2f\n", c.name, widgets, plain, dialog, dialog / plain);
    }
    std::fflush(stdout);
}

} // namespace

int main(int argc, char** argv)
{
    if (qEnvironmentVariableIsEmpty("QT_QPA_PLATFORM"))
        qputenv("QT_QPA_PLATFORM", "offscreen");
    QTemporaryDir settings; // the loader chooser reads its history from here
    qputenv("ORRERY_SETTINGS_DIR", settings.path().toUtf8());
    QApplication app(argc, argv);
    benchhost::start();
    benchmark::AddCustomContext("host", benchhost::name());
    const QStringList arguments = QCoreApplication::arguments();
    if (arguments.size() == 3 && arguments[1] == "--cold-start")
        return coldStartChild(arguments[2]);
    reportColdStarts();
    benchmark::Initialize(&argc, argv);
    benchmark::RunSpecifiedBenchmarks();
    benchmark::Shutdown();
    return 0;
}
