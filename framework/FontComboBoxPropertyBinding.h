#pragma once
#include "framework/FrameworkExport.h"
#include <memory>
#include <string>

#include "platform/qwidgetobservable/QComboBoxObservable.h"
#include "core/propertybindings/UIPropertyBindingAbstract.h"

class QFontComboBox;

namespace orrery::sdk::ui::dialogs::propertybindings {

/// A font combo box editing a property that holds a font family name. A family
/// the system lacks is shown as text and left in the property untouched.
class ORRERY_FRAMEWORK_EXPORT FontComboBoxPropertyBinding : public UIPropertyBindingAbstract<std::string>,
                                                            private qwidgetobservable::QComboBoxListenerInterface
{
public:
    /// Binds \a combo, which must outlive the binding; a family picked there is stored
    /// in \a property.
    FontComboBoxPropertyBinding(QFontComboBox& combo, const boost::shared_ptr<PropertyAbstract<std::string>>& property);
    ~FontComboBoxPropertyBinding() override;

    void updateWidget() override;
    void updateVisibility() override;
    void updateSensitivity() override;

private:
    void currentIndexChanged(int index, qwidgetobservable::QComboBoxObservable& source) override;

    QFontComboBox& m_combo;
    std::unique_ptr<qwidgetobservable::QComboBoxObservable> m_observable;
};

} // namespace orrery::sdk::ui::dialogs::propertybindings
