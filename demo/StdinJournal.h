#pragma once
#include <string>
#include <QObject>
#include "demo/JournalStep.h"

class QSocketNotifier;

// Plays journal lines read from standard input as they arrive, for scripts that
// drive a running demo. A begin ... end step is played once its end has come.
class StdinJournal : public QObject
{
    Q_OBJECT
public:
    explicit StdinJournal(QObject* parent = nullptr);

private:
    void readAvailable();
    void take(const std::string& line);
    void skipOverlong();

    QSocketNotifier* m_notifier;
    std::string m_partial;   // a line not yet ended
    bool m_overlong = false; // the line being read is too long to keep
    JournalStep m_step;      // the lines of an open step
    int m_lineNumber = 0;
    int m_stepStart = 0;
};
