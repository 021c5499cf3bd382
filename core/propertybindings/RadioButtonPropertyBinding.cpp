#include "core/propertybindings/RadioButtonPropertyBinding.h"

#include <QAbstractButton>
#include <QButtonGroup>
#include "platform/kernel/OrrTypes.h"

namespace orrery::sdk::ui::dialogs::propertybindings {

template <typename T>
RadioButtonPropertyBinding<T>::RadioButtonPropertyBinding(QAbstractButton* button,
                                                          const boost::shared_ptr<PropertyAbstract<T>>& property,
                                                          const T& buttonValue)
    : UIPropertyBindingAbstract<T>(property, BindingInterface::WidgetUpdateMode_OnIdle), m_button(button),
      m_buttonValue(buttonValue), m_observable(new qwidgetobservable::QButtonObservable(button)), m_listener(*this)
{
    m_observable->addListener(&m_listener);
    updateWidget();
}

template <typename T>
RadioButtonPropertyBinding<T>::~RadioButtonPropertyBinding()
{
    m_observable->removeListener(&m_listener);
}

template <typename T>
void RadioButtonPropertyBinding<T>::updateWidget()
{
    const bool checked = this->property().retrieveValue() == m_buttonValue;
    QButtonGroup* group = m_button->group();
    const bool inExclusiveGroup = group && group->exclusive();
    if (checked || !m_button->isChecked() || (!m_button->autoExclusive() && !inExclusiveGroup)) {
        m_button->setChecked(checked);
        return;
    }
    // An exclusive button (auto-exclusive, or in an exclusive QButtonGroup)
    // refuses to be switched off on its own; a value that no button of the
    // group stands for must leave all of them unchecked.
    const bool autoExclusive = m_button->autoExclusive();
    m_button->setAutoExclusive(false);
    if (inExclusiveGroup)
        group->setExclusive(false);
    m_button->setChecked(false);
    if (inExclusiveGroup)
        group->setExclusive(true);
    m_button->setAutoExclusive(autoExclusive);
}

template <typename T>
void RadioButtonPropertyBinding<T>::updateVisibility()
{
    m_button->setVisible(this->isPropertyVisible());
}

template <typename T>
void RadioButtonPropertyBinding<T>::updateSensitivity()
{
    m_button->setEnabled(this->isPropertySensitive());
}

template <typename T>
void RadioButtonPropertyBinding<T>::QButtonListener::buttonToggled(qwidgetobservable::QButtonObservable& source)
{
    // Every button the user's click toggled shows the property again on idle, so
    // that a refused value puts the whole group back.
    m_binding.updateValueOnIdle();
    // Only the button switched on writes; the one switched off in its group does not.
    if (!source.button()->isChecked())
        return;
    m_binding.writePropertyReportingRejection(m_binding.m_buttonValue);
}

template class RadioButtonPropertyBinding<bool>;
template class RadioButtonPropertyBinding<Font_e>;

} // namespace orrery::sdk::ui::dialogs::propertybindings
