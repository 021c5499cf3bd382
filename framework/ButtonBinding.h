#pragma once
#include "framework/FrameworkExport.h"
#include <boost/function.hpp>
#include <QMetaObject>

#include "core/propertybindings/BindingInterface.h"

class QAbstractButton;

namespace orrery::sdk::ui::dialogs::propertybindings {

/// Runs an action when a button is clicked. It shows no value, so its updates
/// have nothing to do; it is a binding so that the dialog owns it with the others.
class ORRERY_FRAMEWORK_EXPORT ButtonBinding : public BindingInterface
{
public:
    /// Runs \a action on every click of \a button until the binding is destroyed.
    ButtonBinding(QAbstractButton& button, const boost::function<void()>& action);
    ~ButtonBinding() override;

    /// Nothing to show.
    void updateWidget() override {}
    /// Nothing: the dialog shows and hides the button.
    void updateVisibility() override {}
    /// Nothing: the dialog enables and disables the button.
    void updateSensitivity() override {}

private:
    boost::function<void()> m_action;
    QMetaObject::Connection m_connection;
};

} // namespace orrery::sdk::ui::dialogs::propertybindings
