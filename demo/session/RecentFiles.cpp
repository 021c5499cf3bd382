#include "demo/session/RecentFiles.h"
#include <QDir>
#include <QFileInfo>
#include <QMenu>
#include "demo/common/Mnemonics.h"
#include "platform/settings/ApplicationSettings.h"

namespace {
const char* const Key = "RecentFiles";
}

QStringList RecentFiles::paths()
{
    const std::string text = orrery::sdk::ApplicationSettings::getInstance().getStringValue(Key);
    return QString::fromStdString(text).split('\n', Qt::SkipEmptyParts);
}

void RecentFiles::add(const QString& path)
{
    const QString absolute = QFileInfo(path).absoluteFilePath();
    QStringList list = paths();
    list.removeAll(absolute);
    list.prepend(absolute);
    while (list.size() > Kept)
        list.removeLast();
    orrery::sdk::ApplicationSettings::getInstance().depositValue(Key, list.join('\n').toStdString());
}

void RecentFiles::attach(QMenu& menu, const std::function<void(const QString&)>& open)
{
    menu.setToolTipsVisible(true);
    QObject::connect(&menu, &QMenu::aboutToShow, &menu, [&menu, open] {
        menu.clear();
        for (const QString& path : paths()) {
            QAction* action =
                menu.addAction(Mnemonics::escaped(QFileInfo(path).fileName()), &menu, [open, path] { open(path); });
            action->setToolTip(QDir::toNativeSeparators(path));
            action->setEnabled(QFileInfo::exists(path));
        }
        if (menu.isEmpty())
            menu.addAction(tr("(none)"))->setEnabled(false);
        Mnemonics::assign(menu);
    });
}
