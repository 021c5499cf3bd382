#pragma once
#include <functional>
#include <QObject>
#include <QStringList>

// Collects lines and hands them over together once the event loop is idle, so
// that a burst of changes (a replay of thousands of lines) costs one view update
// instead of one per change. Only the newest `keep` lines are handed over: the
// views show no more.
class IdleBatch : public QObject
{
    Q_OBJECT
public:
    typedef std::function<void(const QStringList& lines)> Flush;

    IdleBatch(Flush flush, int keep, QObject* parent = nullptr);

    void add(const QString& line);
    // Hands over what is pending now (nothing when nothing is).
    void flush();

private:
    Flush m_flush;
    int m_keep;
    QStringList m_pending;
    bool m_scheduled = false;
};
