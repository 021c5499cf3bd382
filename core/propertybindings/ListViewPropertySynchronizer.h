#pragma once
#include "core/CoreExport.h"
#include <memory>
#include <vector>
#include <boost/shared_ptr.hpp>
#include <QMetaObject>

#include "platform/common/OnIdleActionPerformerSingleShot.h"
#include "platform/common/SignalConnectionCollection.h"
#include "core/property/PropertyAbstract.h"
#include "core/propertybindings/BindingInterface.h"
#include "core/propertybindings/OnIdleAfterPropertyChangeActionPerformer.h"
#include "core/propertybindings/WidgetPropertySynchronizerInterface.h"
#include "core/propertybindings/models/ListModelInterface.h"
#include "core/propertybindings/models/QListModel.h"

class QItemSelection;
class QListView;

namespace orrery::sdk::ui::dialogs::propertybindings {

/// Keeps the selected rows of a list view and a property holding the values of
/// those rows in step. Instantiated for std::vector<int> and std::set<int>.
///
/// Loop guards: while the selection is set from the property, selection changes
/// are not written back; while the property is written from the selection, the
/// write does not schedule a selection refresh.
template <typename C>
class ORRERY_CORE_EXPORT ListViewPropertySynchronizer : public WidgetPropertySynchronizerInterface
{
public:
    /// The rows offered, shared with whoever changes them.
    typedef boost::shared_ptr<const models::ListModelInterface<int>> ListModelPtr;

    /// mode WidgetUpdateMode_OnIdle: after the rows change, selection and
    /// property are brought together once, on idle; otherwise at once.
    ListViewPropertySynchronizer(QListView& view, const boost::shared_ptr<PropertyAbstract<C>>& property,
                                 const ListModelPtr& rows, BindingInterface::WidgetUpdateMode_e mode);
    ~ListViewPropertySynchronizer() override;

    void updateWidgetFromProperty() override;
    void updatePropertyFromWidget() override;
    /// Shows the rows in the view through a fresh Qt model and listens to its selection;
    /// called by the constructor.
    void setupModel();
    /// Selects exactly the (non-header) rows whose values are in the collection.
    void setSelectionForPropertyValues(const C& values);
    /// Called when the rows change: selection and property are brought together again
    /// (on idle in WidgetUpdateMode_OnIdle), so a value whose row remains stays selected.
    void preserveSelectionOnModelChange();
    /// Selects the rows of the property's values, then drops from the property the values
    /// whose rows have gone.
    void synchronizePropertyAndSelection();

private:
    std::vector<int> rowsHolding(const C& values) const;
    std::vector<int> selectedRows() const;
    void selectRows(const std::vector<int>& wanted);
    void showSelection(const std::vector<int>& sortedRows);
    QItemSelection rangesOf(const std::vector<int>& sortedRows) const;

    QListView& m_view;
    boost::shared_ptr<PropertyAbstract<C>> m_property;
    ListModelPtr m_rows;
    const BindingInterface::WidgetUpdateMode_e m_mode;
    std::unique_ptr<models::QListModel<int>> m_qtModel;
    OnIdleAfterPropertyChangeActionPerformer m_propertyWatcher;
    common::OnIdleActionPerformerSingleShot m_modelChangeSynchronizer;
    bool m_updatingWidget = false;
    QMetaObject::Connection m_selectionConnection;
    SignalConnectionCollection m_connections;
};

} // namespace orrery::sdk::ui::dialogs::propertybindings
