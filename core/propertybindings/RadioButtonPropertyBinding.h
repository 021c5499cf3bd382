#pragma once
#include "core/CoreExport.h"
#include <memory>
#include <boost/shared_ptr.hpp>

#include "platform/qwidgetobservable/QButtonObservable.h"
#include "core/propertybindings/UIPropertyBindingAbstract.h"

class QAbstractButton;

namespace orrery::sdk::ui::dialogs::propertybindings {

/// One radio button standing for one value of a property; a group of buttons,
/// one binding each, edits one property. Instantiated for bool and Font_e.
template <typename T>
class ORRERY_CORE_EXPORT RadioButtonPropertyBinding : public UIPropertyBindingAbstract<T>
{
public:
    /// \a button (which must outlive the binding) is checked while the property holds
    /// \a buttonValue; checking it stores \a buttonValue.
    RadioButtonPropertyBinding(QAbstractButton* button, const boost::shared_ptr<PropertyAbstract<T>>& property,
                               const T& buttonValue);
    ~RadioButtonPropertyBinding() override;

    void updateWidget() override;
    void updateVisibility() override;
    void updateSensitivity() override;

private:
    class QButtonListener : public qwidgetobservable::QButtonListenerInterface
    {
    public:
        explicit QButtonListener(RadioButtonPropertyBinding& binding) : m_binding(binding) {}
        void buttonToggled(qwidgetobservable::QButtonObservable& source) override;

    private:
        RadioButtonPropertyBinding& m_binding;
    };

    QAbstractButton* m_button;
    const T m_buttonValue;
    std::unique_ptr<qwidgetobservable::QButtonObservable> m_observable;
    QButtonListener m_listener;
};

} // namespace orrery::sdk::ui::dialogs::propertybindings
