#pragma once
#include <functional>
#include <memory>
#include <string>
#include <sys/types.h>
#include <QLockFile>
#include <QString>
#include <boost/signals2/connection.hpp>
#include "demo/session/JournalStep.h"
#include "host/kernel/JournalReplayer.h"

// Keeps the session safe from a crash: every journal line is appended to an
// autosave file as it is recorded, written at once and synced to disk at each
// undo step boundary (once a busy host is idle again, so that a replay of
// thousands of lines does not sync each one). A write that fails (a full disk)
// is reported and tried again with the next step. A normal end removes the file; a
// start that finds one left over can restore the session from it. A lock beside
// the file keeps a second running instance out of it.
class Messages;
class QWidget;

class SessionAutosave
{
public:
    // Starts the autosave of the session (of window, marked modified when it
    // restores one; null for a run without a window), first restoring one a dead run
    // (replayed with replay's options) left behind when recover is set or, with someone at the keyboard, the user
    // agrees. Null when the session is not autosaved; problems are reported
    // (on stderr too), never fatal. headless: nobody is asked anything.
    // restoreFailed: a restore was wanted and failed, or with recover there was
    // nothing to restore or no autosave to be had.
    static std::unique_ptr<SessionAutosave> startFor(Messages& messages, QWidget* window,
                                                     const orrery::kernel::JournalReplayer::Options& replay,
                                                     bool recover, bool headless, bool& restoreFailed);

    // The file is autosave.orrery-journal in folder; empty: the application's
    // local data folder.
    explicit SessionAutosave(const QString& folder = QString());
    ~SessionAutosave();

    QString path() const;
    // Told, once, when the autosave stops working and why, and again when it
    // works again.
    void setReporter(std::function<void(const QString&)> tell) { m_tell = std::move(tell); }
    // False when another running instance holds the autosave (or the folder
    // cannot be made); this one then keeps none.
    bool lock(QString& error);
    // Something is left in the autosave's place by a run that died (only
    // meaningful once locked).
    bool leftOver() const;
    // Starts a new autosave with the journal's lines so far. False, with a
    // message naming the file, when it cannot be opened (also when something
    // other than a regular file is in its place).
    bool start(QString& error);
    bool running() const { return m_fd >= 0; }
    // Plays the left-over autosave back and starts a new one. A file that cannot be
    // played back whole is kept as autosave.orrery-journal.broken-<time>; message
    // then says why (file and line) and where it is. A file cut off where its
    // writer died counts as restored up to the cut. Anything but a regular file
    // is refused by name and left where it is. Changed data files are handled
    // as options say.
    bool restore(const orrery::kernel::JournalReplayer::Options& options, QString& message);
    // Keeps the left-over autosave as autosave.orrery-journal.<reason>-<time>
    // and returns that name (empty when it could not be moved).
    QString moveAside(const QString& reason);
    // The run ended normally: the autosave goes.
    void finish();

private:
    void write(const std::string& line);
    bool writePending();
    bool cutBack();
    void sync();
    void failed(const QString& why);
    void close();

    QString m_folder;
    QLockFile* m_lock = nullptr;
    int m_fd = -1;
    off_t m_whole = 0;       // the file's size up to its last whole step
    std::string m_pending;   // whole steps not written yet
    JournalStep m_step;      // the lines of a step not yet complete
    bool m_unsynced = false; // steps written but not yet synced
    bool m_failing = false;  // a write or sync failed and is still to be made good
    std::function<void(const QString&)> m_tell;
    boost::signals2::scoped_connection m_lines;
    boost::signals2::scoped_connection m_idle;
};
