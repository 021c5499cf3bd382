// Cost of opening the prompt dialogs: a fresh dialog built and shown for the
// first time, and a live one fetched again and shown. Each dialog is measured
// beside a plain QDialog holding as many widgets, built in the same run.
#include <algorithm>
#include <cstdio>
#include <memory>
#include <vector>
#include <benchmark/benchmark.h>
#include <QApplication>
#include <QDialog>
#include <QDialogButtonBox>
#include <QElapsedTimer>
#include <QGridLayout>
#include <QLabel>
#include <QProcess>
#include <QTemporaryDir>
#include "platform/common/IdleQueue.h"
#include "bench/support/BenchHost.h"
#include "platform/loaders/DataLoaderRepository.h"
#include "prompts/prompt/AnchorAlignmentDialog.h"
#include "prompts/prompt/ChooseLoaderDialog.h"
#include "prompts/prompt/EnterASCIICharacterDialog.h"
#include "prompts/prompt/EnterTextStringDialog.h"
#include "prompts/prompt/EnterThreeIntValuesDialog.h"

using namespace orrery::dialogs::prompt;

namespace {

void settle()
{
    QCoreApplication::processEvents();
    orrery::sdk::ui::common::IdleQueue::instance().flush();
}

struct TextString
{
    static QDialog* get(QWidget& parent) { return new EnterTextStringDialog(parent, "Name:", "Frame 1", "", false); }
};
struct ThreeInts
{
    static QDialog* get(QWidget& parent)
    {
        return EnterThreeIntValuesDialog::getInstance(parent, 1, 10, 1, "Index Range", "", "&Begin", "&End", "&Skip", 1,
                                                      1, 1);
    }
};
struct AsciiCharacter
{
    static QDialog* get(QWidget& parent)
    {
        return EnterASCIICharacterDialog::getInstance(parent, "A", true, Font_Math);
    }
};
struct Anchor
{
    static QDialog* get(QWidget& parent) { return AnchorAlignmentDialog::getInstance(AnchorAlignment_TopLeft, parent); }
};
struct Loader
{
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

// A plain dialog with labels in a grid and an OK/Cancel box, widgets in all.
void showPlainDialog(QWidget& parent, int widgets)
{
    auto* dialog = new QDialog(&parent);
    auto* grid = new QGridLayout(dialog);
    auto* box = new QDialogButtonBox(QDialogButtonBox::Ok | QDialogButtonBox::Cancel, dialog);
    for (int i = 0, labels = widgets - 1 - int(box->findChildren<QWidget*>().size()); i < labels; ++i)
        grid->addWidget(new QLabel(QString("Label %1").arg(i), dialog), i / 3, i % 3);
    grid->addWidget(box, grid->rowCount(), 0, 1, 3);
    dialog->show();
    settle();
}

template <typename D>
void BM_PlainDialogBaseline(benchmark::State& state)
{
    const int widgets = widgetCount<D>();
    for (auto _ : state) {
        auto parent = std::make_unique<QWidget>();
        showPlainDialog(*parent, widgets);
        state.PauseTiming();
        parent.reset();
        state.ResumeTiming();
    }
    state.counters["widgets"] = widgets;
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
// dialog (or one plain dialog) and exits.
struct ColdStart
{
    const char* name;
    QDialog* (*get)(QWidget&);
    int (*widgets)();
};
const ColdStart ColdStarts[] = {{"TextString", TextString::get, widgetCount<TextString>},
                                {"ThreeInts", ThreeInts::get, widgetCount<ThreeInts>},
                                {"AsciiCharacter", AsciiCharacter::get, widgetCount<AsciiCharacter>},
                                {"Anchor", Anchor::get, widgetCount<Anchor>},
                                {"Loader", Loader::get, widgetCount<Loader>}};

// In a child process: opens the named dialog, or a plain one of that many
// widgets, and prints the milliseconds taken.
int coldStartChild(const QString& what)
{
    QWidget parent;
    QElapsedTimer timer;
    timer.start();
    bool isNumber = false;
    const int widgets = what.toInt(&isNumber);
    if (isNumber)
        showPlainDialog(parent, widgets);
    else
        for (const ColdStart& c : ColdStarts)
            if (what == c.name) {
                c.get(parent)->show();
                settle();
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
    std::printf("%-16s %8s %14s %8s %7s\n", "Cold start", "widgets", "plain dialog", "dialog", "ratio");
    for (const ColdStart& c : ColdStarts) {
        const int widgets = c.widgets();
        const double plain = medianColdStart(QString::number(widgets));
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
