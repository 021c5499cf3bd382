#pragma once
#include "platform/PlatformExport.h"
#include <QMetaObject>

#include "platform/qwidgetobservable/ListenerList.h"
#include "platform/qwidgetobservable/QComboBoxListenerInterface.h"

class QComboBox;

namespace qwidgetobservable {

// Relays a combo box's current-index changes to listeners.
class ORRERY_PLATFORM_EXPORT QComboBoxObservable
{
public:
    explicit QComboBoxObservable(QComboBox* combo);
    QComboBoxObservable(const QComboBoxObservable&) = delete;
    QComboBoxObservable& operator=(const QComboBoxObservable&) = delete;
    ~QComboBoxObservable();

    void addListener(QComboBoxListenerInterface* listener);
    void removeListener(QComboBoxListenerInterface* listener);
    QComboBox* comboBox() const { return m_combo; }

private:
    void notify(int index);

    QComboBox* m_combo;
    ListenerList<QComboBoxListenerInterface> m_listeners;
    QMetaObject::Connection m_connection;
};

} // namespace qwidgetobservable
