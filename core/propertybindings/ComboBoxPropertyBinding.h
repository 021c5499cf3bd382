#pragma once
#include "core/CoreExport.h"
#include <memory>
#include <boost/shared_ptr.hpp>

#include "platform/qwidgetobservable/QComboBoxObservable.h"
#include "platform/ui/WidgetUpdateDeferrerOnBusy.h"
#include "core/propertybindings/UIPropertyBindingAbstract.h"
#include "core/propertybindings/models/ListModelInterface.h"
#include "core/propertybindings/models/QListModel.h"

class QComboBox;

namespace orrery::sdk::ui::dialogs::propertybindings {

/// A combo box showing a list model, its current row kept in step with a property.
/// Instantiated for int and RGBMode_e.
template <typename T>
class ORRERY_CORE_EXPORT ComboBoxPropertyBinding : public UIPropertyBindingAbstract<T>
{
public:
    /// The rows offered, shared with whoever changes them.
    typedef boost::shared_ptr<const models::ListModelInterface<T>> ListModelPtr;

    /// Fills \a combo (which must outlive the binding) from \a rows, selects the row of
    /// the property's value and writes the value of each row the user picks. The current
    /// row is shown again on idle after the rows change.
    ComboBoxPropertyBinding(QComboBox& combo, const boost::shared_ptr<PropertyAbstract<T>>& property,
                            const ListModelPtr& rows,
                            BindingInterface::ModelUpdateMode mode = BindingInterface::ModelUpdate_Immediate);
    ~ComboBoxPropertyBinding() override;

    void updateWidget() override;
    void updateVisibility() override;
    void updateSensitivity() override;

private:
    class QComboBoxListener : public qwidgetobservable::QComboBoxListenerInterface
    {
    public:
        explicit QComboBoxListener(ComboBoxPropertyBinding& binding) : m_binding(binding) {}
        void currentIndexChanged(int index, qwidgetobservable::QComboBoxObservable& source) override;

    private:
        ComboBoxPropertyBinding& m_binding;
    };

    void init(BindingInterface::ModelUpdateMode mode);
    void ignoreIndexChangesWhileRowsChange();

    QComboBox* m_combo;
    std::unique_ptr<qwidgetobservable::QComboBoxObservable> m_observable;
    ListModelPtr m_rows;
    std::unique_ptr<models::QListModel<T>> m_qtModel;
    QComboBoxListener m_listener;
    std::unique_ptr<orrery::ui::WidgetUpdateDeferrerOnBusy> m_busyDeferrer;
    bool m_ignoringIndexChanges = false;
};

} // namespace orrery::sdk::ui::dialogs::propertybindings
