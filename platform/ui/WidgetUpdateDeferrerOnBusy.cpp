#include "platform/ui/WidgetUpdateDeferrerOnBusy.h"

#include <QAbstractScrollArea>
#include <QEvent>
#include "platform/sdk/AppLock.h"

namespace orrery::ui {

// A scrolling view draws its rows on its viewport.
WidgetUpdateDeferrerOnBusy::WidgetUpdateDeferrerOnBusy(QWidget* widget)
{
    QAbstractScrollArea* area = qobject_cast<QAbstractScrollArea*>(widget);
    m_surface = area ? area->viewport() : widget;
    m_surface->installEventFilter(this);
    m_idleConnection = sdk::AppLock::becameIdleSignal().connect([this] { becameIdle(); });
}

WidgetUpdateDeferrerOnBusy::~WidgetUpdateDeferrerOnBusy()
{
    if (m_surface)
        m_surface->removeEventFilter(this);
}

bool WidgetUpdateDeferrerOnBusy::eventFilter(QObject* watched, QEvent* event)
{
    if (watched == m_surface && event->type() == QEvent::Paint && sdk::AppLock::isBusy()) {
        m_deferred = true;
        return true;
    }
    return false;
}

void WidgetUpdateDeferrerOnBusy::becameIdle()
{
    if (!m_deferred)
        return;
    m_deferred = false;
    if (m_surface)
        m_surface->update();
}

} // namespace orrery::ui
