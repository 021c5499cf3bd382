#include "demo/IdleBatch.h"
#include <QTimer>

IdleBatch::IdleBatch(Flush flush, QObject* parent) : QObject(parent), m_flush(std::move(flush)) {}

void IdleBatch::add(const QString& line)
{
    m_pending << line;
    if (m_scheduled)
        return;
    m_scheduled = true;
    QTimer::singleShot(0, this, &IdleBatch::flush);
}

void IdleBatch::flush()
{
    m_scheduled = false;
    if (m_pending.isEmpty())
        return;
    QStringList lines;
    lines.swap(m_pending);
    m_flush(lines);
}
