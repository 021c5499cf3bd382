#pragma once
#include <vector>
#include <QPointF>

// A line of many points, reduced per pixel column as it is built: of the points
// that fall in one column one after another, the first, the lowest, the highest
// and the last are kept, in the order they came. Each column then holds the
// same reach as the whole line's, joined to its neighbours by the same
// segments, so the reduced line looks as the whole one does at a cost that
// follows the plot's width rather than the number of points.
class LineReduction
{
public:
    // point in device pixels: a column is a whole unit of x.
    void add(const QPointF& point);
    // The points kept so far, in drawing order; the reduction starts afresh.
    std::vector<QPointF> take();

private:
    struct Kept
    {
        QPointF point;
        long order;
    };
    void endColumn();

    std::vector<QPointF> m_points;
    bool m_inColumn = false;
    double m_column = 0.0;
    long m_count = 0;
    Kept m_first{}, m_low{}, m_high{}, m_last{};
};
