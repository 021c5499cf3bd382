// Cost of the zone and variable prompts on large data sets, each beside the
// prompt's own form on a plain dialog showing the same names over a
// QStringListModel (bench/support/PlainForm.h), measured in the same run.
//
//   zone prompt:      first getInstance + show, and changing the selection, on
//                     10,000 and 100,000 zones (1,000,000 with ORRERY_BENCH_LARGE=1);
//   variable prompts: first show and opening a list's popup on 10,000 variables.
#include <memory>
#include <string>
#include <vector>
#include <benchmark/benchmark.h>
#include <QApplication>
#include <QComboBox>
#include <QDialog>
#include <QListView>
#include "bench/support/BenchHost.h"
#include "bench/support/PlainForm.h"
#include "prompts/prompt/RGBVariableSelectDialog.h"
#include "prompts/prompt/ZoneSelectDialog.h"
#include "ui_VariableSelectDialog.h"
#include "ui_ZoneSelect.h"

using namespace orrery::dialogs::prompt;
using benchform::PlainForm;
using benchform::settle;

namespace {

const int VariableCount = 10000;

// A data set of zones zones and vars variables, one point each, loaded once per size.
void loadDataSet(int zones, int vars)
{
    static int loadedZones = -1, loadedVars = -1;
    if (zones != loadedZones || vars != loadedVars) {
        std::vector<std::string> zoneList, varList;
        for (int v = 1; v <= vars; ++v)
            varList.push_back("Variable " + std::to_string(v));
        for (int z = 1; z <= zones; ++z)
            zoneList.push_back("Zone " + std::to_string(z));
        benchhost::loadDataSet(zoneList, varList);
        loadedZones = zones;
        loadedVars = vars;
    }
}

// The prompt's form showing what the prompt shows on the loaded data set.
template <typename Form, typename Dialog>
PlainForm plainFormOf(Dialog* (*get)(QWidget&))
{
    QWidget parent;
    Dialog* dialog = get(parent);
    dialog->show();
    settle();
    PlainForm captured(benchform::formSetup<Form>(), *dialog);
    benchhost::announceChange(); // the prompts measured next ask the host afresh
    return captured;
}

ZoneSelectDialog* zonePrompt(QWidget& parent)
{
    return ZoneSelectDialog::getInstance(parent, 1);
}

PlainForm plainZoneList()
{
    return plainFormOf<Ui_ZoneSelect>(zonePrompt);
}

void BM_ZonePromptFirstShow(benchmark::State& state)
{
    loadDataSet(int(state.range(0)), 2);
    for (auto _ : state) {
        auto parent = std::make_unique<QWidget>();
        zonePrompt(*parent)->show();
        settle();
        state.PauseTiming();
        parent.reset();
        benchhost::announceChange(); // the next dialog asks the host afresh
        state.ResumeTiming();
    }
    state.SetComplexityN(state.range(0));
}

void BM_PlainZoneListFirstShow(benchmark::State& state)
{
    loadDataSet(int(state.range(0)), 2);
    const PlainForm plain = plainZoneList();
    for (auto _ : state) {
        auto parent = std::make_unique<QWidget>();
        plain.show(*parent);
        state.PauseTiming();
        parent.reset();
        state.ResumeTiming();
    }
    state.SetComplexityN(state.range(0));
}

// A click moves the selection between two rows far apart.
void BM_ZonePromptChangeSelection(benchmark::State& state)
{
    const int zones = int(state.range(0));
    loadDataSet(zones, 2);
    QWidget parent;
    ZoneSelectDialog* dialog = zonePrompt(parent);
    dialog->show();
    settle();
    auto* view = dialog->findChild<QListView*>("Zone_Source_MList");
    int row = 0;
    for (auto _ : state) {
        row = row == 0 ? zones / 2 : 0;
        view->setCurrentIndex(view->model()->index(row, 0));
        settle();
    }
    if (dialog->selectedZone() != row + 1)
        state.SkipWithError("the selection did not reach the prompt's answer");
    state.SetComplexityN(zones);
}

void BM_PlainZoneListChangeSelection(benchmark::State& state)
{
    const int zones = int(state.range(0));
    loadDataSet(zones, 2);
    const PlainForm plain = plainZoneList();
    QWidget parent;
    auto* view = plain.show(parent)->findChild<QListView*>("Zone_Source_MList");
    int row = 0;
    for (auto _ : state) {
        row = row == 0 ? zones / 2 : 0;
        view->setCurrentIndex(view->model()->index(row, 0));
        settle();
    }
    state.SetComplexityN(zones);
}

void zoneSizes(benchmark::internal::Benchmark* b)
{
    b->Arg(10000)->Arg(100000);
    if (!qEnvironmentVariableIsEmpty("ORRERY_BENCH_LARGE"))
        b->Arg(1000000);
    b->Unit(benchmark::kMillisecond)->Complexity(benchmark::oN);
}

BENCHMARK(BM_PlainZoneListFirstShow)->Apply(zoneSizes);
BENCHMARK(BM_ZonePromptFirstShow)->Apply(zoneSizes);
BENCHMARK(BM_PlainZoneListChangeSelection)->Apply(zoneSizes);
BENCHMARK(BM_ZonePromptChangeSelection)->Apply(zoneSizes);

void prepareVariables()
{
    loadDataSet(1, VariableCount);
}

VariableSelectDialog* variablePrompt(QWidget& parent)
{
    return RGBVariableSelectDialog::getInstance(parent);
}

PlainForm plainCombos()
{
    return plainFormOf<Ui_VariableSelectDialog>(variablePrompt);
}

void BM_PlainCombosFirstShow(benchmark::State& state)
{
    prepareVariables();
    const PlainForm plain = plainCombos();
    for (auto _ : state) {
        auto parent = std::make_unique<QWidget>();
        plain.show(*parent);
        state.PauseTiming();
        parent.reset();
        state.ResumeTiming();
    }
}

void BM_VariablePromptFirstShow(benchmark::State& state)
{
    prepareVariables();
    for (auto _ : state) {
        auto parent = std::make_unique<QWidget>();
        variablePrompt(*parent)->show();
        settle();
        state.PauseTiming();
        parent.reset();
        benchhost::announceChange(); // the next dialog asks the host afresh
        state.ResumeTiming();
    }
}

void BM_PlainCombosOpenPopup(benchmark::State& state)
{
    prepareVariables();
    const PlainForm plain = plainCombos();
    QWidget parent;
    auto* combo = plain.show(parent)->findChild<QComboBox*>("var3_comboBox");
    for (auto _ : state) {
        combo->showPopup();
        settle();
        state.PauseTiming();
        combo->hidePopup();
        settle();
        state.ResumeTiming();
    }
}

void BM_VariablePromptOpenPopup(benchmark::State& state)
{
    prepareVariables();
    QWidget parent;
    VariableSelectDialog* dialog = variablePrompt(parent);
    dialog->show();
    settle();
    auto* combo = dialog->findChild<QComboBox*>("var3_comboBox");
    for (auto _ : state) {
        combo->showPopup();
        settle();
        state.PauseTiming();
        combo->hidePopup();
        settle();
        state.ResumeTiming();
    }
}

BENCHMARK(BM_PlainCombosFirstShow)->Unit(benchmark::kMillisecond);
BENCHMARK(BM_VariablePromptFirstShow)->Unit(benchmark::kMillisecond);
BENCHMARK(BM_PlainCombosOpenPopup)->Unit(benchmark::kMillisecond);
BENCHMARK(BM_VariablePromptOpenPopup)->Unit(benchmark::kMillisecond);

} // namespace

int main(int argc, char** argv)
{
    if (qEnvironmentVariableIsEmpty("QT_QPA_PLATFORM"))
        qputenv("QT_QPA_PLATFORM", "offscreen");
    if (qEnvironmentVariableIsEmpty("QT_LOGGING_RULES"))
        qputenv("QT_LOGGING_RULES", "qt.qpa.*=false"); // the offscreen platform's notes on every popup
    QApplication app(argc, argv);
    benchhost::start();
    benchmark::AddCustomContext("host", benchhost::name());
    benchmark::Initialize(&argc, argv);
    benchmark::RunSpecifiedBenchmarks();
    benchmark::Shutdown();
    return 0;
}
