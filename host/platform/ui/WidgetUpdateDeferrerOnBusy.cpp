#include "platform/ui/WidgetUpdateDeferrerOnBusy.h"

#include <QEvent>
#include "platform/sdk/AppLock.h"

namespace orrery::ui {

WidgetUpdateDeferrerOnBusy::WidgetUpdateDeferrerOnBusy(QWidget* widget) : m_widget(widget)
{
    widget->installEventFilter(this);
    m_idleConnection = sdk::AppLock::becameIdleSignal().connect([this] { becameIdle(); });
}

WidgetUpdateDeferrerOnBusy::~WidgetUpdateDeferrerOnBusy()
{
    if (m_widget)
        m_widget->removeEventFilter(this);
}

bool WidgetUpdateDeferrerOnBusy::eventFilter(QObject* watched, QEvent* event)
{
    if (watched == m_widget && event->type() == QEvent::Paint && sdk::AppLock::isBusy()) {
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
    if (m_widget)
        m_widget->update();
}

} // namespace orrery::ui
