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
    LaunchHelpAction(std::string const& helpPage, QObject& owner);

    std::string const& helpPage() const { return m_helpPage; }

private:
    void showHelp();

    std::string m_helpPage;
};

} // namespace common
} // namespace dialogs
} // namespace orrery
