#include "framework/ButtonBinding.h"

#include <QAbstractButton>

namespace orrery::sdk::ui::dialogs::propertybindings {

ButtonBinding::ButtonBinding(QAbstractButton& button, const boost::function<void()>& action) : m_action(action)
{
    m_connection = QObject::connect(&button, &QAbstractButton::clicked, &button, [this] { m_action(); });
}

ButtonBinding::~ButtonBinding()
{
    QObject::disconnect(m_connection);
}

} // namespace orrery::sdk::ui::dialogs::propertybindings
