#pragma once
#include "platform/PlatformExport.h"
#include <QMetaObject>

#include "platform/qwidgetobservable/ListenerList.h"
#include "platform/qwidgetobservable/QButtonListenerInterface.h"

class QAbstractButton;

namespace qwidgetobservable {

// Relays a button's toggles to listeners.
class ORRERY_PLATFORM_EXPORT QButtonObservable
{
public:
    explicit QButtonObservable(QAbstractButton* button);
    QButtonObservable(const QButtonObservable&) = delete;
    QButtonObservable& operator=(const QButtonObservable&) = delete;
    ~QButtonObservable();

    void addListener(QButtonListenerInterface* listener);
    void removeListener(QButtonListenerInterface* listener);
    QAbstractButton* button() const { return m_button; }

private:
    void notify();

    QAbstractButton* m_button;
    ListenerList<QButtonListenerInterface> m_listeners;
    QMetaObject::Connection m_connection;
};

} // namespace qwidgetobservable
