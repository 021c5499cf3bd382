#include "core/propertybindings/ListViewPropertySynchronizer.h"

#include <algorithm>
#include <iterator>
#include <set>
#include <unordered_set>
#include <QItemSelectionModel>
#include <QListView>
#include <QSignalBlocker>

#include "core/propertybindings/ScopedExitAction.h"
#include "core/propertybindings/intern/PropertyWrite.h"
#include "core/propertybindings/intern/RejectedValueMessage.h"

namespace orrery::sdk::ui::dialogs::propertybindings {

namespace {

template <typename C>
bool sameValues(const C& a, const C& b)
{
    if (a.size() != b.size())
        return false;
    std::vector<int> sortedA(a.begin(), a.end()), sortedB(b.begin(), b.end());
    std::sort(sortedA.begin(), sortedA.end());
    std::sort(sortedB.begin(), sortedB.end());
    return sortedA == sortedB;
}

} // namespace

template <typename C>
ListViewPropertySynchronizer<C>::ListViewPropertySynchronizer(QListView& view,
                                                              const boost::shared_ptr<PropertyAbstract<C>>& property,
                                                              const ListModelPtr& rows,
                                                              BindingInterface::WidgetUpdateMode_e mode)
    : m_view(view), m_property(property), m_rows(rows), m_mode(mode),
      m_propertyWatcher(*property, [this] { updateWidgetFromProperty(); }),
      m_modelChangeSynchronizer([this] { synchronizePropertyAndSelection(); })
{
    // While the view adjusts its selection to changed rows, the selection is not
    // the user's and the rows' values may already be the new ones: the guard is
    // raised before the view hears of the change, and the two are brought
    // together again after it has (preserveSelectionOnModelChange).
    rows->connectToEveryChange([this] { m_updatingWidget = true; }, m_connections);
    setupModel();
    rows->connectToEveryChange([this] { preserveSelectionOnModelChange(); }, m_connections);
    updateWidgetFromProperty();
}

template <typename C>
ListViewPropertySynchronizer<C>::~ListViewPropertySynchronizer()
{
    QObject::disconnect(m_selectionConnection);
}

template <typename C>
void ListViewPropertySynchronizer<C>::setupModel()
{
    QObject::disconnect(m_selectionConnection);
    m_qtModel.reset(new models::QListModel<int>(*m_rows));
    m_view.setModel(m_qtModel.get());
    // A long list must not measure every row to show itself.
    m_view.setUniformItemSizes(true);
    m_selectionConnection = QObject::connect(m_view.selectionModel(), &QItemSelectionModel::selectionChanged, &m_view,
                                             [this] { updatePropertyFromWidget(); });
}

template <typename C>
void ListViewPropertySynchronizer<C>::updateWidgetFromProperty()
{
    ScopedExitAction lowerGuard(ScopedExitAction::raiseUntilExit(m_updatingWidget));
    setSelectionForPropertyValues(m_property->retrieveValue());
}

template <typename C>
void ListViewPropertySynchronizer<C>::updatePropertyFromWidget()
{
    if (m_updatingWidget)
        return;
    C values;
    for (int row : selectedRows())
        values.insert(values.end(), m_rows->get(row));
    // The selection holds no order: the same values selected are the value
    // held, in whatever order the property keeps them.
    if (sameValues(values, m_property->retrieveValue()))
        return;
    bool refused = false;
    {
        m_propertyWatcher.enable(false);
        ScopedExitAction enableWatcher([this] { m_propertyWatcher.enable(true); });
        try {
            intern::writeProperty(*m_property, values);
        } catch (const InvalidPropertyValueException& rejection) {
            intern::showRejectedValueMessage(rejection);
            refused = true;
        }
    }
    // The selection goes back to what the property holds.
    if (refused)
        m_propertyWatcher.valueChanged();
}

template <typename C>
void ListViewPropertySynchronizer<C>::setSelectionForPropertyValues(const C& values)
{
    selectRows(rowsHolding(values));
}

template <typename C>
void ListViewPropertySynchronizer<C>::preserveSelectionOnModelChange()
{
    m_updatingWidget = true;
    if (m_mode == BindingInterface::WidgetUpdateMode_OnIdle)
        m_modelChangeSynchronizer.enableNotification();
    else
        synchronizePropertyAndSelection();
}

template <typename C>
void ListViewPropertySynchronizer<C>::synchronizePropertyAndSelection()
{
    m_updatingWidget = false;
    updateWidgetFromProperty();
    // Values whose rows have gone drop out of the property.
    updatePropertyFromWidget();
}

// One pass over the rows; a value shown by several rows selects all of them.
template <typename C>
std::vector<int> ListViewPropertySynchronizer<C>::rowsHolding(const C& values) const
{
    std::vector<int> rows;
    if (values.empty())
        return rows;
    const std::unordered_set<int> wanted(values.begin(), values.end());
    const int count = std::min(m_rows->size(), m_qtModel->rowCount());
    for (int row = 0; row < count; ++row) {
        if (wanted.count(m_rows->get(row)) != 0 && !m_rows->isHeader(row))
            rows.push_back(row);
    }
    return rows;
}

// Ascending, without header rows (Qt keeps a disabled row in a selection range
// but does not count it as selected).
template <typename C>
std::vector<int> ListViewPropertySynchronizer<C>::selectedRows() const
{
    std::vector<int> rows;
    const int count = std::min(m_rows->size(), m_qtModel->rowCount());
    for (const QItemSelectionRange& range : m_view.selectionModel()->selection()) {
        const int last = std::min(range.bottom(), count - 1);
        for (int row = std::max(range.top(), 0); row <= last; ++row) {
            if (!m_rows->isHeader(row))
                rows.push_back(row);
        }
    }
    if (!std::is_sorted(rows.begin(), rows.end()))
        std::sort(rows.begin(), rows.end());
    rows.erase(std::unique(rows.begin(), rows.end()), rows.end());
    return rows;
}

// Qt's ClearAndSelect compares the old and new selections range by range, which
// is quadratic when both are large and scattered. The same outcome is reached
// in linear time: clear, select merged ranges, and announce the difference once.
template <typename C>
void ListViewPropertySynchronizer<C>::selectRows(const std::vector<int>& wanted)
{
    const std::vector<int> current = selectedRows();
    if (current == wanted)
        return;
    std::vector<int> added, removed;
    std::set_difference(wanted.begin(), wanted.end(), current.begin(), current.end(), std::back_inserter(added));
    std::set_difference(current.begin(), current.end(), wanted.begin(), wanted.end(), std::back_inserter(removed));
    QItemSelectionModel* selection = m_view.selectionModel();
    {
        const QSignalBlocker quiet(selection);
        selection->clearSelection();
        selection->select(rangesOf(wanted), QItemSelectionModel::Select);
    }
    Q_EMIT selection->selectionChanged(rangesOf(added), rangesOf(removed));
    showSelection(wanted);
}

// The keyboard goes on from the selection (Down selects the row after it, not
// the first row), and a selection set from the property is scrolled into view.
template <typename C>
void ListViewPropertySynchronizer<C>::showSelection(const std::vector<int>& sortedRows)
{
    if (sortedRows.empty())
        return;
    QItemSelectionModel* selection = m_view.selectionModel();
    const QModelIndex current = selection->currentIndex();
    if (!current.isValid() || !std::binary_search(sortedRows.begin(), sortedRows.end(), current.row()))
        selection->setCurrentIndex(m_qtModel->index(sortedRows.front(), 0), QItemSelectionModel::NoUpdate);
    m_view.scrollTo(selection->currentIndex());
}

template <typename C>
QItemSelection ListViewPropertySynchronizer<C>::rangesOf(const std::vector<int>& sortedRows) const
{
    QItemSelection ranges;
    for (size_t first = 0; first < sortedRows.size();) {
        size_t last = first;
        while (last + 1 < sortedRows.size() && sortedRows[last + 1] == sortedRows[last] + 1)
            ++last;
        ranges.append(
            QItemSelectionRange(m_qtModel->index(sortedRows[first], 0), m_qtModel->index(sortedRows[last], 0)));
        first = last + 1;
    }
    return ranges;
}

template class ListViewPropertySynchronizer<std::vector<int>>;
template class ListViewPropertySynchronizer<std::set<int>>;

} // namespace orrery::sdk::ui::dialogs::propertybindings
