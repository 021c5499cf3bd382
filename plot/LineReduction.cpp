#include "plot/LineReduction.h"
#include <cmath>
#include <utility>

namespace {

// std::floor without its call: this runs once a point.
double floorOf(double x)
{
    if (!(std::abs(x) < 1e15))
        return std::floor(x);
    const double truncated = double(static_cast<long long>(x));
    return truncated > x ? truncated - 1.0 : truncated;
}

} // namespace

void LineReduction::add(const QPointF& point)
{
    const double column = floorOf(point.x());
    const Kept kept{point, m_count++};
    if (!m_inColumn || column != m_column) {
        endColumn();
        m_inColumn = true;
        m_column = column;
        m_first = m_low = m_high = m_last = kept;
        return;
    }
    if (point.y() < m_low.point.y())
        m_low = kept;
    if (point.y() > m_high.point.y())
        m_high = kept;
    m_last = kept;
}

void LineReduction::endColumn()
{
    if (!m_inColumn)
        return;
    m_inColumn = false;
    m_points.push_back(m_first.point);
    Kept inner[2] = {m_low, m_high};
    if (inner[0].order > inner[1].order)
        std::swap(inner[0], inner[1]);
    long previous = m_first.order;
    for (const Kept& k : inner)
        if (k.order != previous && k.order != m_last.order) {
            m_points.push_back(k.point);
            previous = k.order;
        }
    if (m_last.order != m_first.order)
        m_points.push_back(m_last.point);
}

std::vector<QPointF> LineReduction::take()
{
    endColumn();
    std::vector<QPointF> points;
    points.swap(m_points);
    return points;
}
