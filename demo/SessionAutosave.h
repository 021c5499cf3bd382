#pragma once
#include <memory>
#include <string>
#include <QFile>
#include <QLockFile>
#include <QString>
#include <boost/signals2/connection.hpp>
#include "demo/JournalStep.h"
#include "host/kernel/JournalReplayer.h"

// Keeps the session safe from a crash: every journal line is appended to an
// autosave file as it is recorded, written at once and synced to disk at each
// undo step boundary (once a busy host is idle again, so that a replay of
// thousands of lines does not sync each one). A normal end removes the file; a
// start that finds one left over can restore the session from it. A lock beside
// the file keeps a second running instance out of it.
class MainWindow;

class SessionAutosave
{
public:
    // Starts the autosave of window's session, first restoring one a dead run
    // left behind when recover is set or, with someone at the keyboard, the user
    // agrees. Null when the session is not autosaved; problems are reported
    // (on stderr too), never fatal. headless: nobody is asked anything.
    static std::unique_ptr<SessionAutosave> startFor(MainWindow& window, bool recover, bool headless,
                                                     bool& restoreFailed);

    // The file is autosave.orrery-journal in folder; empty: the application's
    // local data folder.
    explicit SessionAutosave(const QString& folder = QString());
    ~SessionAutosave();

    QString path() const;
    // False when another running instance holds the autosave (or the folder
    // cannot be made); this one then keeps none.
    bool lock(QString& error);
    // An autosave left by a run that died (only meaningful once locked).
    bool leftOver() const;
    // Starts a new autosave with the journal's lines so far. False, with a
    // message naming the file, when it cannot be written.
    bool start(QString& error);
    // Plays the left-over autosave back and starts a new one. A file that cannot be
    // played back whole is kept as autosave.orrery-journal.broken-<time>; message
    // then says why (file and line) and where it is. A file cut off where its
    // writer died counts as restored up to the cut. Changed data files are
    // handled as options say.
    bool restore(const orrery::kernel::JournalReplayer::Options& options, QString& message);
    // Keeps the left-over autosave as autosave.orrery-journal.<reason>-<time>
    // and returns that name (empty when it could not be moved).
    QString moveAside(const QString& reason);
    // The run ended normally: the autosave goes.
    void finish();

private:
    void write(const std::string& line);
    void sync();
    void fail(const QString& why);

    QString m_folder;
    QLockFile* m_lock = nullptr;
    QFile m_file;
    JournalStep m_step;      // the lines of a step not yet complete
    bool m_unsynced = false; // complete steps written but not yet synced
    boost::signals2::scoped_connection m_lines;
    boost::signals2::scoped_connection m_idle;
};
