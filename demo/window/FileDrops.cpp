#include "demo/window/FileDrops.h"
#include <QDropEvent>
#include <QMimeData>
#include <QTimer>
#include <QUrl>
#include <QWidget>

namespace {

QStringList localFiles(const QMimeData* data)
{
    QStringList files;
    if (data)
        for (const QUrl& url : data->urls())
            if (url.isLocalFile())
                files << url.toLocalFile();
    return files;
}

} // namespace

FileDrops::FileDrops(QWidget& target, std::function<void(const QString&)> open)
    : QObject(&target), m_open(std::move(open))
{
    target.setAcceptDrops(true);
    target.installEventFilter(this);
}

bool FileDrops::eventFilter(QObject* watched, QEvent* event)
{
    if (event->type() == QEvent::DragEnter || event->type() == QEvent::DragMove) {
        auto* drag = static_cast<QDropEvent*>(event);
        if (localFiles(drag->mimeData()).isEmpty())
            return false;
        drag->acceptProposedAction();
        return true;
    }
    if (event->type() == QEvent::Drop) {
        auto* drop = static_cast<QDropEvent*>(event);
        const QStringList files = localFiles(drop->mimeData());
        if (files.isEmpty())
            return false;
        drop->acceptProposedAction();
        // Opened once the drop is over: a file may ask for its loader.
        QTimer::singleShot(0, this, [this, files] {
            for (const QString& file : files)
                m_open(file);
        });
        return true;
    }
    return QObject::eventFilter(watched, event);
}
