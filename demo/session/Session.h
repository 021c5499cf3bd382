#pragma once
#include <QObject>
#include <QString>
#include <boost/signals2/signal.hpp>
#include "host/kernel/JournalReplayer.h"

class Messages;
class QWidget;

// The user's session with the host: data files loaded, sessions (journals)
// replayed and saved. It says what happened through Messages, so that a window
// and a run that only writes files share it.
class Session : public QObject
{
    Q_OBJECT
public:
    // dialogParent: where the loader chooser and a load's progress appear.
    Session(Messages& messages, QWidget& dialogParent, QObject* parent = nullptr);

    // Reads a file through a loader, asking the user to choose one when the
    // extension does not name exactly one. False, with a message, on failure;
    // the data set is then unchanged.
    bool loadFile(const QString& path);
    // Plays a journal (a session) back; a bad line is reported with its number
    // and stops the replay, keeping what was played before it.
    bool replayJournal(const QString& path);
    bool saveJournal(const QString& path);
    // A data file is loaded, a session (.orrery-journal, .orj) replayed.
    bool open(const QString& path);
    static bool isSession(const QString& path);

    // What a replay does with a data file whose content is not what the session
    // recorded: asks the user (the default), refuses it or loads it.
    enum class ChangedFiles
    {
        Ask,
        Refuse,
        Load
    };
    void setChangedFiles(ChangedFiles policy) { m_changedFiles = policy; }
    // How a replay of journal (a file, or empty) runs.
    orrery::kernel::JournalReplayer::Options replayOptions(const QString& journal = QString()) const;

    // Where Save puts the session: the file it was last saved to or opened
    // from; empty until then.
    const QString& path() const { return m_path; }
    // The session as it stands was saved to, or opened from, path().
    boost::signals2::signal<void()>& savedSignal() { return m_saved; }

private:
    void savedAs(const QString& path);

    Messages& m_messages;
    QWidget& m_dialogParent;
    ChangedFiles m_changedFiles = ChangedFiles::Ask;
    QString m_path;
    boost::signals2::signal<void()> m_saved;
};
