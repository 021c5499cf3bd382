#pragma once
#include "platform/PlatformExport.h"
#include <boost/signals2/connection.hpp>
#include <QObject>
#include <QPointer>
#include <QWidget>

namespace orrery::ui {

// Holds back a widget's repaints while the host is busy (an AppLock is held)
// and repaints it once when the host becomes idle, so that a list rebuilt in
// many steps is drawn once. It lives in the platform because the library's own
// choice bindings make one.
class ORRERY_PLATFORM_EXPORT WidgetUpdateDeferrerOnBusy : public QObject
{
    Q_OBJECT
public:
    explicit WidgetUpdateDeferrerOnBusy(QWidget* widget);
    ~WidgetUpdateDeferrerOnBusy() override;

    bool hasDeferredUpdate() const { return m_deferred; }

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    void becameIdle();

    QPointer<QWidget> m_surface;
    bool m_deferred = false;
    boost::signals2::scoped_connection m_idleConnection;
};

} // namespace orrery::ui
