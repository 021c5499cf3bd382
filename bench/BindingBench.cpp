// Costs of the binding framework, each beside a baseline measured in the same
// run: a widget edit through a binding, property changes before idle, and the
// list view synchronizer on a large list.
#include <chrono>
#include <set>
#include <vector>
#include <QApplication>
#include <QComboBox>
#include <QItemSelectionModel>
#include <QLineEdit>
#include <QListView>
#include <benchmark/benchmark.h>

#include "platform/common/IdleQueue.h"
#include "core/property/Property.h"
#include "core/propertybindings/ComboBoxPropertyBinding.h"
#include "core/propertybindings/ListViewPropertySynchronizer.h"
#include "core/propertybindings/TextFieldPropertyBinding.h"
#include "core/propertybindings/UIPropertyBindingAbstract.h"
#include "core/propertybindings/models/ListModelAbstract.h"
#include "core/propertybindings/models/QListModel.h"

using namespace orrery;
using namespace orrery::sdk::ui::dialogs::propertybindings;
typedef std::chrono::steady_clock Clock;

namespace {

void runIdle()
{
    sdk::ui::common::IdleQueue::instance().flush();
}

double secondsSince(Clock::time_point start)
{
    return std::chrono::duration<double>(Clock::now() - start).count();
}

// Rows 0..n-1 whose values are their row numbers.
class CountingRows : public models::ListModelAbstract<int>
{
public:
    explicit CountingRows(int count) : m_count(count) {}
    int size() const override { return m_count; }
    int get(int row) const override { return row; }
    std::string getStr(int row) const override { return std::to_string(row); }

private:
    int m_count;
};

class CountingBinding : public UIPropertyBindingAbstract<int>
{
public:
    using UIPropertyBindingAbstract<int>::UIPropertyBindingAbstract;
    void updateWidget() override { ++refreshes; }
    void updateVisibility() override {}
    void updateSensitivity() override {}
    int refreshes = 0;
};

// A user's choice in a combo box, through the binding and without one.
void BM_ComboBoxChoice(benchmark::State& state)
{
    auto rows = boost::make_shared<CountingRows>(20);
    auto property = boost::make_shared<Property<int>>(0);
    QComboBox bound, plain;
    ComboBoxPropertyBinding<int> binding(bound, property, rows);
    models::QListModel<int> plainModel(*rows);
    plain.setModel(&plainModel);
    double boundSeconds = 0, plainSeconds = 0;
    int row = 0;
    for (auto _ : state) {
        row = (row + 1) % 20;
        Clock::time_point start = Clock::now();
        bound.setCurrentIndex(row);
        boundSeconds += secondsSince(start);
        start = Clock::now();
        plain.setCurrentIndex(row);
        plainSeconds += secondsSince(start);
        runIdle();
    }
    if (property->getValue() != row)
        state.SkipWithError("the choice did not reach the property");
    const double n = static_cast<double>(state.iterations());
    state.counters["bound_ns"] = boundSeconds / n * 1e9;
    state.counters["baseline_plain_combo_ns"] = plainSeconds / n * 1e9;
}
BENCHMARK(BM_ComboBoxChoice);

// A committed text field, through the binding and as a plain parse and store.
void BM_TextFieldCommit(benchmark::State& state)
{
    auto property = boost::make_shared<Property<double>>(0.0);
    auto plainProperty = boost::make_shared<Property<double>>(0.0);
    QLineEdit bound, plain;
    TextFieldPropertyBinding<double> binding(&bound, property, BindingInterface::WidgetUpdateMode_Immediate);
    double boundSeconds = 0, plainSeconds = 0;
    bool odd = false;
    for (auto _ : state) {
        odd = !odd;
        const QString text = odd ? QStringLiteral("1.5") : QStringLiteral("2.25");
        bound.setText(text);
        Clock::time_point start = Clock::now();
        binding.editingFinished();
        boundSeconds += secondsSince(start);
        plain.setText(text);
        start = Clock::now();
        plainProperty->setValue(plain.text().toDouble());
        plain.setText(QString::number(plainProperty->getValue()));
        plainSeconds += secondsSince(start);
    }
    if (property->getValue() != plainProperty->getValue())
        state.SkipWithError("the commit did not reach the property");
    const double n = static_cast<double>(state.iterations());
    state.counters["bound_ns"] = boundSeconds / n * 1e9;
    state.counters["baseline_parse_store_ns"] = plainSeconds / n * 1e9;
}
BENCHMARK(BM_TextFieldCommit);

// 10,000 changes before idle: one refresh; the cost per change beside a property
// nobody listens to and a property with one trivial listener.
void BM_ChangesBeforeIdle(benchmark::State& state)
{
    const int changes = 10000;
    auto bare = boost::make_shared<Property<int>>(0);
    auto listened = boost::make_shared<Property<int>>(0);
    auto bound = boost::make_shared<Property<int>>(0);
    int heard = 0;
    boost::signals2::scoped_connection listener =
        listened->connectToValueChangedSignal([&heard](const int&) { ++heard; });
    CountingBinding binding(bound, BindingInterface::WidgetUpdateMode_OnIdle);
    double bareSeconds = 0, listenedSeconds = 0, boundSeconds = 0;
    int next = 0;
    for (auto _ : state) {
        const int first = next;
        Clock::time_point start = Clock::now();
        for (int i = 0; i < changes; ++i)
            bare->setValue(first + i + 1);
        bareSeconds += secondsSince(start);
        start = Clock::now();
        for (int i = 0; i < changes; ++i)
            listened->setValue(first + i + 1);
        listenedSeconds += secondsSince(start);
        binding.refreshes = 0;
        start = Clock::now();
        for (int i = 0; i < changes; ++i)
            bound->setValue(first + i + 1);
        boundSeconds += secondsSince(start);
        next = first + changes;
        runIdle();
        if (binding.refreshes != 1) {
            state.SkipWithError("changes before idle did not give exactly one refresh");
            return;
        }
    }
    benchmark::DoNotOptimize(heard);
    const double perChange = 1e9 / (static_cast<double>(state.iterations()) * changes);
    state.counters["bound_ns_per_change"] = boundSeconds * perChange;
    state.counters["baseline_one_listener_ns_per_change"] = listenedSeconds * perChange;
    state.counters["baseline_no_listener_ns_per_change"] = bareSeconds * perChange;
    state.counters["beyond_one_listener_ns"] = (boundSeconds - listenedSeconds) * perChange;
    state.counters["refreshes_per_10000"] = binding.refreshes;
}
BENCHMARK(BM_ChangesBeforeIdle);

struct LargeList
{
    explicit LargeList(int count)
        : rows(boost::make_shared<CountingRows>(count)), property(boost::make_shared<Property<std::set<int>>>()),
          synchronizer(view, property, rows, BindingInterface::WidgetUpdateMode_OnIdle)
    {
        view.setSelectionMode(QAbstractItemView::MultiSelection);
    }
    static std::set<int> every(int step, int offset, int count)
    {
        std::set<int> values;
        for (int v = offset; v < count; v += step)
            values.insert(v);
        return values;
    }
    QListView view;
    boost::shared_ptr<CountingRows> rows;
    boost::shared_ptr<Property<std::set<int>>> property;
    ListViewPropertySynchronizer<std::set<int>> synchronizer;
};

QItemSelection singleRowRanges(const QAbstractItemModel& model, const std::set<int>& rows)
{
    QItemSelection selection;
    for (int row : rows)
        selection.append(QItemSelectionRange(model.index(row, 0)));
    return selection;
}

// 1,000 scattered rows of 100,000 selected from nothing, beside Qt's own
// ClearAndSelect of the same rows.
void BM_Select1000Of100000(benchmark::State& state)
{
    LargeList list(100000);
    const std::set<int> values = LargeList::every(100, 7, 100000);
    double oursSeconds = 0, qtSeconds = 0;
    for (auto _ : state) {
        list.synchronizer.setSelectionForPropertyValues({});
        Clock::time_point start = Clock::now();
        list.synchronizer.setSelectionForPropertyValues(values);
        oursSeconds += secondsSince(start);
        list.view.selectionModel()->clearSelection();
        start = Clock::now();
        list.view.selectionModel()->select(singleRowRanges(*list.view.model(), values),
                                           QItemSelectionModel::ClearAndSelect);
        qtSeconds += secondsSince(start);
    }
    if (list.view.selectionModel()->selection().size() != 1000)
        state.SkipWithError("wrong selection");
    const double n = static_cast<double>(state.iterations());
    state.counters["ours_ms"] = oursSeconds / n * 1e3;
    state.counters["baseline_qt_clear_and_select_ms"] = qtSeconds / n * 1e3;
}
BENCHMARK(BM_Select1000Of100000)->Unit(benchmark::kMillisecond);

// One scattered selection replaced by another of the same size (every other
// row, then the rows between), in a list of 100,000 rows; Qt's ClearAndSelect
// beside it, at a size it can finish.
void BM_SwitchScatteredSelection(benchmark::State& state)
{
    const int selected = static_cast<int>(state.range(0));
    LargeList list(100000);
    const std::set<int> even = LargeList::every(2, 0, 2 * selected);
    const std::set<int> odd = LargeList::every(2, 1, 2 * selected);
    const bool withQt = selected <= 4000;
    double oursSeconds = 0, qtSeconds = 0;
    for (auto _ : state) {
        list.synchronizer.setSelectionForPropertyValues(even);
        Clock::time_point start = Clock::now();
        list.synchronizer.setSelectionForPropertyValues(odd);
        oursSeconds += secondsSince(start);
        if (withQt) {
            QItemSelectionModel* model = list.view.selectionModel();
            model->clearSelection();
            model->select(singleRowRanges(*list.view.model(), even), QItemSelectionModel::Select);
            start = Clock::now();
            model->select(singleRowRanges(*list.view.model(), odd), QItemSelectionModel::ClearAndSelect);
            qtSeconds += secondsSince(start);
        }
    }
    const double n = static_cast<double>(state.iterations());
    state.counters["ours_ms"] = oursSeconds / n * 1e3;
    if (withQt)
        state.counters["baseline_qt_clear_and_select_ms"] = qtSeconds / n * 1e3;
}
BENCHMARK(BM_SwitchScatteredSelection)->Arg(1000)->Arg(4000)->Arg(50000)->Unit(benchmark::kMillisecond);

// Reading the selection back into the property: time per selected row at
// growing sizes (flat when linear), beside reading Qt's selectedIndexes().
void BM_ReadSelectionBack(benchmark::State& state)
{
    const int selected = static_cast<int>(state.range(0));
    LargeList list(100000);
    const std::set<int> scattered = LargeList::every(2, 0, 2 * selected);
    double oursSeconds = 0, qtSeconds = 0;
    for (auto _ : state) {
        list.property->setValue({});
        runIdle();
        list.synchronizer.setSelectionForPropertyValues(scattered);
        Clock::time_point start = Clock::now();
        list.synchronizer.updatePropertyFromWidget();
        oursSeconds += secondsSince(start);
        start = Clock::now();
        benchmark::DoNotOptimize(list.view.selectionModel()->selectedIndexes().size());
        qtSeconds += secondsSince(start);
    }
    if (static_cast<int>(list.property->getValue().size()) != selected)
        state.SkipWithError("wrong property value");
    const double perRow = 1e9 / (static_cast<double>(state.iterations()) * selected);
    state.counters["ours_ns_per_row"] = oursSeconds * perRow;
    state.counters["baseline_qt_selected_indexes_ns_per_row"] = qtSeconds * perRow;
}
BENCHMARK(BM_ReadSelectionBack)->Arg(1000)->Arg(10000)->Arg(50000)->Unit(benchmark::kMillisecond);

// Showing a list of 100,000 rows: the synchronizer's view does not measure
// every row; a plain view of the same rows does.
void BM_ShowLargeList(benchmark::State& state)
{
    double oursSeconds = 0, plainSeconds = 0;
    for (auto _ : state) {
        LargeList list(100000);
        list.view.resize(300, 400);
        Clock::time_point start = Clock::now();
        list.view.show();
        QApplication::processEvents();
        oursSeconds += secondsSince(start);

        QListView plain;
        models::QListModel<int> plainModel(*list.rows);
        plain.setModel(&plainModel);
        plain.resize(300, 400);
        start = Clock::now();
        plain.show();
        QApplication::processEvents();
        plainSeconds += secondsSince(start);
    }
    const double n = static_cast<double>(state.iterations());
    state.counters["ours_ms"] = oursSeconds / n * 1e3;
    state.counters["baseline_measuring_rows_ms"] = plainSeconds / n * 1e3;
}
BENCHMARK(BM_ShowLargeList)->Unit(benchmark::kMillisecond);

} // namespace

int main(int argc, char** argv)
{
    if (qEnvironmentVariableIsEmpty("QT_QPA_PLATFORM"))
        qputenv("QT_QPA_PLATFORM", "offscreen");
    QApplication app(argc, argv);
    benchmark::Initialize(&argc, argv);
    benchmark::RunSpecifiedBenchmarks();
    benchmark::Shutdown();
    return 0;
}
