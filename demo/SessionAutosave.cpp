#include "demo/SessionAutosave.h"
#include <cerrno>
#include <cstdio>
#include <cstring>
#include <fstream>
#include <unistd.h>
#include <QDateTime>
#include <QDir>
#include <QFileInfo>
#include <QStandardPaths>
#include "demo/MainWindow.h"
#include "host/kernel/Kernel.h"
#include "host/kernel/OrrUtilHost.h"
#include "platform/sdk/AppLock.h"

using orrery::kernel::JournalReplayer;
using orrery::kernel::Kernel;
using orrery::sdk::AppLock;

SessionAutosave::SessionAutosave(const QString& folder)
    : m_folder(folder.isEmpty() ? QStandardPaths::writableLocation(QStandardPaths::AppLocalDataLocation) : folder)
{}

SessionAutosave::~SessionAutosave()
{
    delete m_lock;
}

QString SessionAutosave::path() const
{
    return QDir(m_folder).filePath("autosave.orrery-journal");
}

bool SessionAutosave::lock(QString& error)
{
    if (!QDir().mkpath(m_folder)) {
        error = QObject::tr("Cannot make the folder %1 for the autosaved session.").arg(m_folder);
        return false;
    }
    // A lock whose process died is stale at once, whatever its age.
    auto* lock = new QLockFile(QDir(m_folder).filePath("autosave.lock"));
    lock->setStaleLockTime(0);
    if (!lock->tryLock()) {
        error = lock->error() == QLockFile::LockFailedError
                    ? QObject::tr("Another running demo keeps its session in %1; this one keeps none.").arg(path())
                    : QObject::tr("Cannot lock %1; the session is not autosaved.").arg(path());
        delete lock;
        return false;
    }
    m_lock = lock;
    return true;
}

bool SessionAutosave::leftOver() const
{
    return m_lock && !m_file.isOpen() && QFileInfo::exists(path());
}

bool SessionAutosave::start(QString& error)
{
    m_file.setFileName(path());
    if (!m_lock || !m_file.open(QIODevice::WriteOnly | QIODevice::Truncate | QIODevice::Unbuffered)) {
        error = QObject::tr("Cannot write the autosaved session %1: %2").arg(path(), m_file.errorString());
        return false;
    }
    orrery::kernel::Journal& journal = Kernel::instance().journal();
    for (const std::string& line : journal.lines())
        write(line);
    sync();
    m_lines = journal.lineAdded().connect([this](const std::string& line) { write(line); });
    m_idle = AppLock::becameIdleSignal().connect([this] { sync(); });
    return m_file.isOpen();
}

void SessionAutosave::write(const std::string& line)
{
    if (!m_file.isOpen())
        return;
    // A step's lines arrive together once it is complete; they are written in
    // one go, so that a crash leaves a step whole or cuts one line of it.
    if (!m_step.add(line))
        return;
    const std::string step = m_step.take();
    if (m_file.write(step.data(), qint64(step.size())) != qint64(step.size()))
        return fail(m_file.errorString());
    m_unsynced = true;
    if (!AppLock::isBusy())
        sync();
}

void SessionAutosave::sync()
{
    if (m_unsynced && m_file.isOpen() && ::fsync(m_file.handle()) != 0)
        return fail(QString::fromLocal8Bit(std::strerror(errno)));
    m_unsynced = false;
}

void SessionAutosave::fail(const QString& why)
{
    std::fprintf(stderr, "orrery-demo: the session is no longer autosaved: %s: %s\n", qPrintable(path()),
                 qPrintable(why));
    m_file.close();
}

QString SessionAutosave::moveAside(const QString& reason)
{
    const QString aside = path() + "." + reason + "-" + QDateTime::currentDateTime().toString("yyyyMMdd-HHmmss-zzz");
    return QFile::rename(path(), aside) ? aside : QString();
}

bool SessionAutosave::restore(const JournalReplayer::Options& options, QString& message)
{
    // The left-over file is read from beside the new autosave, and kept until it
    // has been played back whole.
    const QString taken = moveAside("restoring");
    if (taken.isEmpty()) {
        message = QObject::tr("Cannot move the autosaved session %1 aside to restore it.").arg(path());
        return false;
    }
    // The session restored is the autosaved one, which brings its own data set.
    Kernel::instance().journal().clear();
    if (!start(message)) {
        QFile::rename(taken, path());
        return false;
    }
    JournalReplayer::Options autosaved = options;
    autosaved.lastLineNeedsEnd = true;
    std::ifstream in(QFile::encodeName(taken).toStdString(), std::ios::binary);
    const JournalReplayer::Result result = JournalReplayer::replay(in, path().toStdString(), autosaved);
    if (result.ok) {
        QFile::remove(taken);
        message = QObject::tr("Restored the autosaved session (%n command(s)).", nullptr, result.played);
        return true;
    }
    const QString kept = QString(taken).replace(".restoring-", ".broken-");
    QFile::rename(taken, kept);
    // The line being written when the program died is all that is missing.
    if (result.cutOff) {
        message = QObject::tr("Restored the autosaved session (%n command(s)) up to where it was cut off.\n%1\n"
                              "The autosaved session is kept as %2.",
                              nullptr, result.played)
                      .arg(QString::fromStdString(result.message), QFileInfo::exists(kept) ? kept : taken);
        return true;
    }
    message = QObject::tr("The autosaved session could not be restored whole; the %n command(s) before the bad "
                          "line were kept.\n%1\nThe autosaved session is kept as %2.",
                          nullptr, result.played)
                  .arg(QString::fromStdString(result.message), QFileInfo::exists(kept) ? kept : taken);
    return false;
}

void SessionAutosave::finish()
{
    m_lines.disconnect();
    m_idle.disconnect();
    if (m_file.isOpen()) {
        m_file.close();
        m_file.remove();
    }
}

std::unique_ptr<SessionAutosave> SessionAutosave::startFor(MainWindow& window, bool recover, bool headless,
                                                           bool& restoreFailed)
{
    auto autosave = std::make_unique<SessionAutosave>();
    QString message;
    const auto tell = [&](const QString& text, bool problem) {
        std::fprintf(stderr, "orrery-demo: %s\n", qPrintable(text));
        if (problem && !headless)
            window.complain(text);
        else
            window.report(text);
    };
    if (!autosave->lock(message)) {
        tell(message, true);
        return nullptr;
    }
    if (autosave->leftOver()) {
        if (!recover && headless) {
            tell(QString("An autosaved session is waiting in %1; --recover restores it.").arg(autosave->path()), false);
            return nullptr;
        }
        const QString question =
            MainWindow::tr("The demo did not end normally last time. Restore the session it was working on?");
        if (recover || OrrUtilDialogMessageBox(question.toUtf8().constData(), MessageBoxType_Question) == 1) {
            restoreFailed = !autosave->restore(window.replayOptions(), message);
            tell(message, restoreFailed);
            return autosave;
        }
        tell(MainWindow::tr("The autosaved session was kept as %1.").arg(autosave->moveAside("declined")), false);
    }
    if (!autosave->start(message)) {
        tell(message, true);
        return nullptr;
    }
    return autosave;
}
