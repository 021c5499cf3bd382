#include "core/propertybindings/ComboBoxPropertyBinding.h"

#include <sstream>
#include <QComboBox>
#include <QListView>

#include "platform/kernel/OrrTypes.h"
#include "core/propertybindings/ScopedExitAction.h"

namespace orrery::sdk::ui::dialogs::propertybindings {

template <typename T>
ComboBoxPropertyBinding<T>::ComboBoxPropertyBinding(QComboBox& combo,
                                                    const boost::shared_ptr<PropertyAbstract<T>>& property,
                                                    const ListModelPtr& rows, BindingInterface::ModelUpdateMode mode)
    : UIPropertyBindingAbstract<T>(property, BindingInterface::WidgetUpdateMode_OnIdle), m_combo(&combo), m_rows(rows),
      m_listener(*this)
{
    init(mode);
}

template <typename T>
ComboBoxPropertyBinding<T>::~ComboBoxPropertyBinding()
{
    m_observable->removeListener(&m_listener);
}

template <typename T>
void ComboBoxPropertyBinding<T>::init(BindingInterface::ModelUpdateMode mode)
{
    if (mode == BindingInterface::ModelUpdate_DeferredWhileBusy)
        m_busyDeferrer.reset(new orrery::ui::WidgetUpdateDeferrerOnBusy(m_combo));
    m_combo->setInsertPolicy(QComboBox::NoInsert);
    // After the rows are rebuilt the current value is shown again, once.
    m_rows->connectToEveryChange([this] { this->updateValueOnIdle(); }, this->connections());
    m_qtModel.reset(new models::QListModel<T>(*m_rows));
    m_combo->setModel(m_qtModel.get());
    ignoreIndexChangesWhileRowsChange();
    // A long list must not measure every row to show itself.
    if (QListView* view = qobject_cast<QListView*>(m_combo->view()))
        view->setUniformItemSizes(true);
    m_observable.reset(new qwidgetobservable::QComboBoxObservable(m_combo));
    m_observable->addListener(&m_listener);
    updateWidget();
}

// Qt makes some row current while rows are reset, inserted or removed; that is
// no choice of the user and must not overwrite the property. (Connected after
// setModel, so the combo box has reacted before the flag is lowered again.)
template <typename T>
void ComboBoxPropertyBinding<T>::ignoreIndexChangesWhileRowsChange()
{
    QAbstractItemModel* model = m_qtModel.get();
    auto raise = [this] { m_ignoringIndexChanges = true; };
    auto lower = [this] { m_ignoringIndexChanges = false; };
    QObject::connect(model, &QAbstractItemModel::modelAboutToBeReset, model, raise);
    QObject::connect(model, &QAbstractItemModel::rowsAboutToBeInserted, model, raise);
    QObject::connect(model, &QAbstractItemModel::rowsAboutToBeRemoved, model, raise);
    QObject::connect(model, &QAbstractItemModel::modelReset, model, lower);
    QObject::connect(model, &QAbstractItemModel::rowsInserted, model, lower);
    QObject::connect(model, &QAbstractItemModel::rowsRemoved, model, lower);
}

// Showing the property is no choice of the user either: a value outside the
// list shows the first row but stays in the property.
template <typename T>
void ComboBoxPropertyBinding<T>::updateWidget()
{
    ScopedExitAction stopIgnoring(ScopedExitAction::raiseUntilExit(m_ignoringIndexChanges));
    const T value = this->property().retrieveValue();
    const int row = m_rows->indexOf(value);
    if (row >= 0) {
        m_combo->setCurrentIndex(row);
    } else if (m_combo->isEditable()) {
        std::ostringstream text;
        text << value;
        m_combo->setEditText(QString::fromStdString(text.str()));
    } else if (m_rows->size() > 0) {
        m_combo->setCurrentIndex(0);
    }
}

template <typename T>
void ComboBoxPropertyBinding<T>::updateVisibility()
{
    m_combo->setVisible(this->isPropertyVisible());
}

template <typename T>
void ComboBoxPropertyBinding<T>::updateSensitivity()
{
    m_combo->setEnabled(this->isPropertySensitive());
}

template <typename T>
void ComboBoxPropertyBinding<T>::QComboBoxListener::currentIndexChanged(int index,
                                                                        qwidgetobservable::QComboBoxObservable&)
{
    if (m_binding.m_ignoringIndexChanges || index < 0 || index >= m_binding.m_rows->size())
        return;
    m_binding.writePropertyReportingRejection(m_binding.m_rows->get(index));
}

template class ComboBoxPropertyBinding<int>;
template class ComboBoxPropertyBinding<RGBMode_e>;

} // namespace orrery::sdk::ui::dialogs::propertybindings
