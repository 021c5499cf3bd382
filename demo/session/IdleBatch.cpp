#include "demo/session/IdleBatch.h"
#include <algorithm>
#include <QTimer>

IdleBatch::IdleBatch(Flush flush, int keep, QObject* parent) : QObject(parent), m_flush(std::move(flush)), m_keep(keep)
{}

void IdleBatch::add(const QString& line)
{
    m_pending << line;
    if (m_pending.size() >= 2 * m_keep) // dropped in bulk, so that each line costs O(1)
        m_pending.erase(m_pending.begin(), m_pending.end() - m_keep);
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
    m_flush(lines.mid(std::max(0, int(lines.size()) - m_keep)));
}
