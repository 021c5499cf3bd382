#include "platform/qwidgetobservable/QButtonObservable.h"

#include <QAbstractButton>

namespace qwidgetobservable {

QButtonObservable::QButtonObservable(QAbstractButton* button) : m_button(button)
{
    m_connection = QObject::connect(button, &QAbstractButton::toggled, button, [this](bool) { notify(); });
}

QButtonObservable::~QButtonObservable()
{
    QObject::disconnect(m_connection);
}

void QButtonObservable::addListener(QButtonListenerInterface* listener)
{
    m_listeners.add(listener);
}

void QButtonObservable::removeListener(QButtonListenerInterface* listener)
{
    m_listeners.remove(listener);
}

void QButtonObservable::notify()
{
    m_listeners.tell([&](QButtonListenerInterface& listener) { listener.buttonToggled(*this); });
}

} // namespace qwidgetobservable
