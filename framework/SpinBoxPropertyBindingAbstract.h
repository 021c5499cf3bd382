#pragma once
#include <QMetaObject>
#include <QObject>

#include "core/propertybindings/ScopedExitAction.h"
#include "core/propertybindings/UIPropertyBindingAbstract.h"

namespace orrery::sdk::ui::dialogs::propertybindings {

/// A spin box showing a property. The spin box reports its value when the user
/// commits it (Return, focus loss, a step); that value is written to the
/// property. A refresh from the property writes nothing back, even when the spin
/// box bends the value to its range: the property keeps what it was given.
template <typename T, typename SpinBox, typename Shown>
class SpinBoxPropertyBindingAbstract : public UIPropertyBindingAbstract<T>
{
public:
    /// Binds \a spinBox, which must outlive the binding.
    SpinBoxPropertyBindingAbstract(SpinBox& spinBox, const boost::shared_ptr<PropertyAbstract<T>>& property,
                                   BindingInterface::WidgetUpdateMode_e mode)
        : UIPropertyBindingAbstract<T>(property, mode), m_spinBox(spinBox)
    {
        void (SpinBox::*changed)(Shown) = &SpinBox::valueChanged;
        m_connection = QObject::connect(&spinBox, changed, &spinBox, [this](Shown value) { spinBoxChanged(value); });
    }
    ~SpinBoxPropertyBindingAbstract() override { QObject::disconnect(m_connection); }

    /// Shows the property's value; the spin box's own change report is not written back.
    void updateWidget() override
    {
        ScopedExitAction lowerGuard(ScopedExitAction::raiseUntilExit(m_updatingWidget));
        m_spinBox.setValue(toShown(this->property().retrieveValue()));
    }
    /// Shows or hides the spin box as the property's relevance says.
    void updateVisibility() override { m_spinBox.setVisible(this->isPropertyVisible()); }
    /// Enables or disables the spin box as the property's relevance says.
    void updateSensitivity() override { m_spinBox.setEnabled(this->isPropertySensitive()); }

protected:
    /// The bound spin box.
    SpinBox& spinBox() const { return m_spinBox; }

private:
    virtual Shown toShown(const T& value) const { return static_cast<Shown>(value); }

    void spinBoxChanged(Shown value)
    {
        if (!m_updatingWidget)
            this->writePropertyReportingRejection(static_cast<T>(value));
    }

    SpinBox& m_spinBox;
    bool m_updatingWidget = false;
    QMetaObject::Connection m_connection;
};

} // namespace orrery::sdk::ui::dialogs::propertybindings
