#pragma once
#include "framework/FrameworkExport.h"
#include <string>
#include <QAction>

namespace orrery {
namespace dialogs {
namespace common {

/// Opens one page of the application's help beside the widget that owns the action.
class ORRERY_FRAMEWORK_EXPORT LaunchHelpAction : public QAction
{
    Q_OBJECT
public:
    /// A "Help" action, a child of \a owner, showing \a helpPage (a file name under
    /// ":/help") in the help viewer of \a owner's window.
    LaunchHelpAction(std::string const& helpPage, QObject& owner);

    /// The page the action shows.
    std::string const& helpPage() const { return m_helpPage; }

private:
    void showHelp();

    std::string m_helpPage;
};

} // namespace common
} // namespace dialogs
} // namespace orrery
