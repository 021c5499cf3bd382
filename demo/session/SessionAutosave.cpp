#include "demo/session/SessionAutosave.h"
#include <cerrno>
#include <cstdio>
#include <cstring>
#include <fstream>
#include <sys/stat.h>
#include <unistd.h>
#include <utility>
#include <QDateTime>
#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QStandardPaths>
#include <QCoreApplication>
#include <QWidget>
#include "demo/session/Messages.h"
#include "demo/session/RegularFile.h"
#include "host/kernel/Kernel.h"
#include "host/kernel/OrrUtilHost.h"
#include "platform/sdk/AppLock.h"

using orrery::kernel::JournalReplayer;
using orrery::kernel::Kernel;
using orrery::sdk::AppLock;

namespace {

QString systemError(int code)
{
    return QString::fromLocal8Bit(std::strerror(code));
}

} // namespace

SessionAutosave::SessionAutosave(const QString& folder)
    : m_folder(folder.isEmpty() ? QStandardPaths::writableLocation(QStandardPaths::AppLocalDataLocation) : folder)
{}

SessionAutosave::~SessionAutosave()
{
    close();
    delete m_lock;
}

void SessionAutosave::close()
{
    if (m_fd >= 0)
        ::close(m_fd);
    m_fd = -1;
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
    struct stat status;
    return m_lock && m_fd < 0 && ::lstat(QFile::encodeName(path()).constData(), &status) == 0;
}

bool SessionAutosave::start(QString& error)
{
    QString why = QObject::tr("it is not locked");
    if (m_lock)
        m_fd = RegularFile::openForWriting(path(), why);
    if (m_fd < 0) {
        error = QObject::tr("Cannot write the autosaved session %1: %2").arg(path(), why);
        return false;
    }
    m_whole = 0;
    m_pending.clear();
    m_failing = false;
    orrery::kernel::Journal& journal = Kernel::instance().journal();
    for (const std::string& line : journal.lines())
        write(line);
    sync();
    m_lines = journal.lineAdded().connect([this](const std::string& line) { write(line); });
    m_idle = AppLock::becameIdleSignal().connect([this] { sync(); });
    return true;
}

void SessionAutosave::write(const std::string& line)
{
    if (m_fd < 0)
        return;
    // A step's lines arrive together once it is complete; they are written in
    // one go, so that a crash leaves a step whole or cuts one line of it.
    if (!m_step.add(line))
        return;
    m_pending += m_step.take();
    if (!writePending())
        return;
    m_unsynced = true;
    if (!AppLock::isBusy())
        sync();
}

// A write cut short (a full disk) is cut back to the last whole step, and the
// steps waiting are tried again with the next one.
bool SessionAutosave::writePending()
{
    if (m_failing && !cutBack())
        return false;
    size_t done = 0;
    while (done < m_pending.size()) {
        const ssize_t written = ::write(m_fd, m_pending.data() + done, m_pending.size() - done);
        if (written < 0 && errno == EINTR)
            continue;
        if (written <= 0) {
            failed(systemError(written < 0 ? errno : EIO));
            cutBack();
            return false;
        }
        done += size_t(written);
    }
    m_whole += off_t(done);
    m_pending.clear();
    return true;
}

// So that a crash never finds half a step.
bool SessionAutosave::cutBack()
{
    return ::ftruncate(m_fd, m_whole) == 0 && ::lseek(m_fd, m_whole, SEEK_SET) == m_whole;
}

void SessionAutosave::sync()
{
    if (!m_unsynced || m_fd < 0)
        return;
    if (::fsync(m_fd) != 0)
        return failed(systemError(errno));
    m_unsynced = false;
    if (m_pending.empty() && std::exchange(m_failing, false) && m_tell)
        m_tell(QObject::tr("The session is autosaved again in %1.").arg(path()));
}

void SessionAutosave::failed(const QString& why)
{
    if (std::exchange(m_failing, true) || !m_tell)
        return;
    m_tell(QObject::tr("The session cannot be autosaved in %1 for now: %2. It is tried again at the next change.")
               .arg(path(), why));
}

QString SessionAutosave::moveAside(const QString& reason)
{
    const QString aside = path() + "." + reason + "-" + QDateTime::currentDateTime().toString("yyyyMMdd-HHmmss-zzz");
    return QFile::rename(path(), aside) ? aside : QString();
}

bool SessionAutosave::restore(const JournalReplayer::Options& options, QString& message)
{
    // A FIFO would block the start for ever, a folder restore nothing.
    const QString notRegular = RegularFile::problem(path(), false);
    if (!notRegular.isEmpty()) {
        message = QObject::tr("%1: nothing was restored, and the session is not autosaved while it is there.")
                      .arg(notRegular);
        return false;
    }
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
    if (m_fd >= 0) {
        close();
        QFile::remove(path());
    }
}

std::unique_ptr<SessionAutosave> SessionAutosave::startFor(Messages& messages, QWidget* window,
                                                           const orrery::kernel::JournalReplayer::Options& replay,
                                                           bool recover, bool headless, bool& restoreFailed)
{
    auto autosave = std::make_unique<SessionAutosave>();
    QString message;
    const auto tell = [&](const QString& text, bool problem) {
        std::fprintf(stderr, "orrery-demo: %s\n", qPrintable(text));
        if (problem && !headless)
            messages.complain(text);
        else
            messages.report(text);
    };
    if (!autosave->lock(message)) {
        tell(message, true);
        restoreFailed = recover;
        return nullptr;
    }
    // Said in the window, not in a message box: the work goes on meanwhile.
    autosave->setReporter([&messages](const QString& text) {
        std::fprintf(stderr, "orrery-demo: %s\n", qPrintable(text));
        messages.report(text);
    });
    if (autosave->leftOver()) {
        if (!recover && headless) {
            tell(QString("An autosaved session is waiting in %1; --recover restores it.").arg(autosave->path()), false);
            return nullptr;
        }
        const QString question = QCoreApplication::translate(
            "MainWindow", "The demo did not end normally last time. Restore the session it was working on?");
        if (recover || OrrUtilDialogMessageBox(question.toUtf8().constData(), MessageBoxType_Question) == 1) {
            restoreFailed = !autosave->restore(replay, message);
            tell(message, restoreFailed);
            if (!restoreFailed && window) // the session restored is saved nowhere else yet
                window->setWindowModified(true);
            return autosave->running() ? std::move(autosave) : nullptr;
        }
        tell(QCoreApplication::translate("MainWindow", "The autosaved session was kept as %1.")
                 .arg(autosave->moveAside("declined")),
             false);
    } else if (recover) {
        tell(QCoreApplication::translate("MainWindow", "There is no autosaved session to restore in %1.")
                 .arg(autosave->path()),
             true);
        restoreFailed = true;
    }
    if (!autosave->start(message)) {
        tell(message, true);
        return nullptr;
    }
    return autosave;
}
