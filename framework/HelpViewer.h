#pragma once
#include "framework/FrameworkExport.h"
#include <QString>
#include <QWidget>

class QTextBrowser;

namespace orrery {
namespace dialogs {
namespace common {

/// A window showing one of the help pages shipped as resources under ":/help".
/// Each dialog has at most one; it closes with the dialog's run.
class ORRERY_FRAMEWORK_EXPORT HelpViewer : public QWidget
{
    Q_OBJECT
public:
    /// Shows the page in the viewer of owner (made on first use; a free window
    /// without an owner) and returns that viewer.
    static HelpViewer* showPage(const QString& page, QWidget* owner);
    /// The viewer belonging to owner, or null.
    static HelpViewer* of(const QWidget& owner);

    /// The name of the page asked for last, as given to showPage().
    QString page() const { return m_page; }
    /// False when no page of that name is shipped; a notice is shown instead.
    bool pageFound() const { return m_found; }
    /// The page's text as shown, without markup.
    QString text() const;

private:
    explicit HelpViewer(QWidget* owner);
    void open(const QString& page);

    QTextBrowser* m_browser;
    QString m_page;
    bool m_found = false;
};

} // namespace common
} // namespace dialogs
} // namespace orrery
