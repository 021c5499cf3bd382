#include "framework/LaunchHelpAction.h"

#include <QWidget>
#include "framework/HelpViewer.h"

namespace orrery {
namespace dialogs {
namespace common {

LaunchHelpAction::LaunchHelpAction(std::string const& helpPage, QObject& owner)
    : QAction(tr("&Help"), &owner), m_helpPage(helpPage)
{
    connect(this, &QAction::triggered, this, &LaunchHelpAction::showHelp);
}

void LaunchHelpAction::showHelp()
{
    // The viewer is a window of the dialog that asks, so a modal dialog does
    // not block its own help.
    QWidget* owner = qobject_cast<QWidget*>(parent());
    HelpViewer::showPage(QString::fromStdString(m_helpPage), owner ? owner->window() : nullptr);
}

} // namespace common
} // namespace dialogs
} // namespace orrery
