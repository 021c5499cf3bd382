#pragma once
#include <functional>
#include <QObject>
#include <QStringList>

// Collects lines and hands them over together once the event loop is idle, so
// that a burst of changes (a replay of thousands of lines) costs one view update
// instead of one per change.
class IdleBatch : public QObject
{
    Q_OBJECT
public:
    typedef std::function<void(const QStringList& lines)> Flush;

    explicit IdleBatch(Flush flush, QObject* parent = nullptr);

    void add(const QString& line);
    // Hands over what is pending now (nothing when nothing is).
    void flush();

private:
    Flush m_flush;
    QStringList m_pending;
    bool m_scheduled = false;
};
