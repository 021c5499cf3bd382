#include "framework/HelpViewer.h"

#include <QFile>
#include <QTextBrowser>
#include <QUrl>
#include <QVBoxLayout>

namespace orrery {
namespace dialogs {
namespace common {

HelpViewer::HelpViewer(QWidget* owner) : QWidget(owner, Qt::Window), m_browser(new QTextBrowser(this))
{
    setObjectName("HelpViewer");
    setAttribute(Qt::WA_DeleteOnClose, owner == nullptr);
    m_browser->setObjectName("HelpViewer_browser");
    m_browser->setOpenExternalLinks(true);
    m_browser->setSearchPaths({":/help"});
    auto* layout = new QVBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->addWidget(m_browser);
    resize(480, 420);
}

HelpViewer* HelpViewer::of(const QWidget& owner)
{
    return owner.findChild<HelpViewer*>(QString(), Qt::FindDirectChildrenOnly);
}

HelpViewer* HelpViewer::showPage(const QString& page, QWidget* owner)
{
    HelpViewer* viewer = owner ? of(*owner) : nullptr;
    if (!viewer)
        viewer = new HelpViewer(owner);
    viewer->open(page);
    viewer->show();
    viewer->raise();
    return viewer;
}

QString HelpViewer::text() const
{
    return m_browser->toPlainText();
}

void HelpViewer::open(const QString& page)
{
    m_page = page;
    m_found = !page.isEmpty() && QFile::exists(":/help/" + page);
    if (m_found)
        m_browser->setSource(QUrl("qrc:/help/" + page));
    else
        m_browser->setHtml(
            tr("<h3>Help not available</h3><p>No help page named \"%1\" is installed.</p>").arg(page.toHtmlEscaped()));
    setWindowTitle(m_found ? m_browser->documentTitle() : tr("Help"));
}

} // namespace common
} // namespace dialogs
} // namespace orrery
