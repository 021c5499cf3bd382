#pragma once
#include <QString>

// Where the demo's parts say what happened, without knowing the window that
// shows it: a line for the log and the status bar, or a problem to show.
class Messages
{
public:
    virtual void report(const QString& line) = 0;
    virtual void complain(const QString& text) = 0;

protected:
    ~Messages() = default;
};
