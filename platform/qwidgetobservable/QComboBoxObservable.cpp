#include "platform/qwidgetobservable/QComboBoxObservable.h"

#include <QComboBox>

namespace qwidgetobservable {

QComboBoxObservable::QComboBoxObservable(QComboBox* combo) : m_combo(combo)
{
    m_connection = QObject::connect(combo, QOverload<int>::of(&QComboBox::currentIndexChanged), combo,
                                    [this](int index) { notify(index); });
}

QComboBoxObservable::~QComboBoxObservable()
{
    QObject::disconnect(m_connection);
}

void QComboBoxObservable::addListener(QComboBoxListenerInterface* listener)
{
    m_listeners.add(listener);
}

void QComboBoxObservable::removeListener(QComboBoxListenerInterface* listener)
{
    m_listeners.remove(listener);
}

void QComboBoxObservable::notify(int index)
{
    m_listeners.tell([&](QComboBoxListenerInterface& listener) { listener.currentIndexChanged(index, *this); });
}

} // namespace qwidgetobservable
