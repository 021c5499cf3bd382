#pragma once
#include <string>
#include <QObject>
#include "demo/session/JournalStep.h"

class QSocketNotifier;

// Plays journal lines read from standard input as they arrive, for scripts that
// drive a running demo. A begin ... end step is played once its end has come.
class StdinJournal : public QObject
{
    Q_OBJECT
public:
    // fd: where the lines come from (standard input unless a test says otherwise).
    explicit StdinJournal(QObject* parent = nullptr, int fd = 0);

private:
    void readAvailable();
    void take(const std::string& line);
    void skipOverlong();

    int m_fd;
    QSocketNotifier* m_notifier;
    std::string m_partial;     // a line not yet ended
    bool m_overlong = false;   // the line being read is too long to keep
    bool m_stepBroken = false; // the open step lost a line: it is not played
    JournalStep m_step;        // the lines of an open step
    int m_lineNumber = 0;
    int m_stepStart = 0;
};
