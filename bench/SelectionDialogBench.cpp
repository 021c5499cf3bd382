// Cost of the zone and variable prompts on large data sets, each beside a
// plain Qt widget showing the same names, measured in the same run.
//
//   zone prompt:      first getInstance + show, and changing the selection, on
//                     10,000 and 100,000 zones (1,000,000 with ORRERY_BENCH_LARGE=1),
//                     against a plain QListView over a QStringListModel;
//   variable prompts: first show and opening a list's popup on 10,000
//                     variables, against a plain dialog of three QComboBoxes
//                     (as Qt makes them, and set not to measure every row).
#include <memory>
#include <string>
#include <vector>
#include <benchmark/benchmark.h>
#include <QApplication>
#include <QComboBox>
#include <QDialog>
#include <QDialogButtonBox>
#include <QGridLayout>
#include <QListView>
#include <QStringListModel>
#include <QVBoxLayout>
#include "platform/common/IdleQueue.h"
#include "bench/support/BenchHost.h"
#include "prompts/prompt/RGBVariableSelectDialog.h"
#include "prompts/prompt/ZoneSelectDialog.h"

using namespace orrery::dialogs::prompt;

namespace {

const int VariableCount = 10000;

void settle()
{
    QCoreApplication::processEvents();
    orrery::sdk::ui::common::IdleQueue::instance().flush();
}

// A data set of zones zones and vars variables, one point each, loaded once per size.
const QStringList& loadDataSet(int zones, int vars)
{
    static int loadedZones = -1, loadedVars = -1;
    static QStringList zoneNames;
    if (zones != loadedZones || vars != loadedVars) {
        std::vector<std::string> zoneList, varList;
        for (int v = 1; v <= vars; ++v)
            varList.push_back("Variable " + std::to_string(v));
        zoneNames.clear();
        for (int z = 1; z <= zones; ++z) {
            zoneList.push_back("Zone " + std::to_string(z));
            zoneNames << QString("Zone %1").arg(z);
        }
        benchhost::loadDataSet(zoneList, varList);
        loadedZones = zones;
        loadedVars = vars;
    }
    return zoneNames;
}

QStringList variableNames()
{
    QStringList names;
    for (int v = 1; v <= VariableCount; ++v)
        names << QString("Variable %1").arg(v);
    return names;
}

// The plain counterpart of the zone prompt: a list and an OK/Cancel box.
struct PlainZoneList
{
    explicit PlainZoneList(QWidget& parent, const QStringList& names)
        : dialog(new QDialog(&parent)), model(new QStringListModel(names, dialog)), view(new QListView(dialog))
    {
        auto* layout = new QVBoxLayout(dialog);
        view->setUniformItemSizes(true); // as the prompt's list does; without it Qt measures every row
        view->setModel(model);
        layout->addWidget(view);
        layout->addWidget(new QDialogButtonBox(QDialogButtonBox::Ok | QDialogButtonBox::Cancel, dialog));
        dialog->resize(274, 270);
        view->setCurrentIndex(model->index(0, 0));
        dialog->show();
        settle();
    }
    QDialog* dialog;
    QStringListModel* model;
    QListView* view;
};

void BM_ZonePromptFirstShow(benchmark::State& state)
{
    loadDataSet(int(state.range(0)), 2);
    for (auto _ : state) {
        auto parent = std::make_unique<QWidget>();
        ZoneSelectDialog::getInstance(*parent, 1)->show();
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
    const QStringList& names = loadDataSet(int(state.range(0)), 2);
    for (auto _ : state) {
        auto parent = std::make_unique<QWidget>();
        PlainZoneList plain(*parent, names);
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
    ZoneSelectDialog* dialog = ZoneSelectDialog::getInstance(parent, 1);
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
    const QStringList& names = loadDataSet(zones, 2);
    QWidget parent;
    PlainZoneList plain(parent, names);
    int row = 0;
    for (auto _ : state) {
        row = row == 0 ? zones / 2 : 0;
        plain.view->setCurrentIndex(plain.model->index(row, 0));
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

// The plain counterpart of the variable prompt: three combo boxes over one model.
struct PlainCombos
{
    PlainCombos(QWidget& parent, const QStringList& names, bool measureRows)
        : dialog(new QDialog(&parent)), model(new QStringListModel(names, dialog))
    {
        auto* grid = new QGridLayout(dialog);
        for (int i = 0; i < 3; ++i) {
            combos[i] = new QComboBox(dialog);
            if (!measureRows) {
                combos[i]->setSizeAdjustPolicy(QComboBox::AdjustToMinimumContentsLengthWithIcon);
                combos[i]->setMinimumContentsLength(12);
                if (auto* view = qobject_cast<QListView*>(combos[i]->view()))
                    view->setUniformItemSizes(true);
            }
            combos[i]->setModel(model);
            grid->addWidget(combos[i], i, 1);
        }
        grid->addWidget(new QDialogButtonBox(QDialogButtonBox::Ok | QDialogButtonBox::Cancel, dialog), 3, 0, 1, 2);
        dialog->show();
        settle();
    }
    QDialog* dialog;
    QStringListModel* model;
    QComboBox* combos[3];
};

void prepareVariables()
{
    loadDataSet(1, VariableCount);
}

void BM_PlainCombosFirstShow(benchmark::State& state)
{
    prepareVariables();
    const QStringList names = variableNames();
    for (auto _ : state) {
        auto parent = std::make_unique<QWidget>();
        PlainCombos plain(*parent, names, state.range(0) != 0);
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
        RGBVariableSelectDialog::getInstance(*parent)->show();
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
    QWidget parent;
    PlainCombos plain(parent, variableNames(), state.range(0) != 0);
    for (auto _ : state) {
        plain.combos[2]->showPopup();
        settle();
        state.PauseTiming();
        plain.combos[2]->hidePopup();
        settle();
        state.ResumeTiming();
    }
}

void BM_VariablePromptOpenPopup(benchmark::State& state)
{
    prepareVariables();
    QWidget parent;
    VariableSelectDialog* dialog = RGBVariableSelectDialog::getInstance(parent);
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

// Argument 1: combo boxes as Qt makes them (they measure every row); 0: set not to.
BENCHMARK(BM_PlainCombosFirstShow)->ArgName("measureRows")->Arg(1)->Arg(0)->Unit(benchmark::kMillisecond);
BENCHMARK(BM_VariablePromptFirstShow)->Unit(benchmark::kMillisecond);
BENCHMARK(BM_PlainCombosOpenPopup)->ArgName("measureRows")->Arg(1)->Arg(0)->Unit(benchmark::kMillisecond);
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
