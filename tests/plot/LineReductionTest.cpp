#include <cmath>
#include <map>
#include <random>
#include <gtest/gtest.h>
#include "plot/LineReduction.h"

namespace {

// What a line reaches in each pixel column: its lowest and highest y there.
struct Reach
{
    double low = INFINITY, high = -INFINITY;
    bool operator==(const Reach& other) const { return low == other.low && high == other.high; }
};

std::map<double, Reach> reachOf(const std::vector<QPointF>& line)
{
    std::map<double, Reach> reach;
    for (const QPointF& p : line) {
        Reach& r = reach[std::floor(p.x())];
        r.low = std::min(r.low, p.y());
        r.high = std::max(r.high, p.y());
    }
    return reach;
}

// The segments that cross from one column to the next.
std::vector<std::pair<QPointF, QPointF>> crossings(const std::vector<QPointF>& line)
{
    std::vector<std::pair<QPointF, QPointF>> segments;
    for (size_t i = 1; i < line.size(); ++i)
        if (std::floor(line[i].x()) != std::floor(line[i - 1].x()))
            segments.emplace_back(line[i - 1], line[i]);
    return segments;
}

TEST(LineReduction, KeepsEachColumnsReachAndTheSegmentsBetweenColumnsWithAtMostFourPointsAColumn)
{
    std::mt19937 random(3);
    std::normal_distribution<double> step(0.0, 4.0);
    for (const int points : {1, 2, 5, 1000, 300000}) {
        std::vector<QPointF> line;
        double y = 300;
        for (int i = 0; i < points; ++i) {
            y += step(random);
            line.emplace_back(50.0 + 700.0 * i / points, y);
        }
        LineReduction reduction;
        for (const QPointF& p : line)
            reduction.add(p);
        const std::vector<QPointF> reduced = reduction.take();
        EXPECT_TRUE(reachOf(reduced) == reachOf(line)) << points;
        EXPECT_EQ(crossings(reduced), crossings(line)) << points;
        EXPECT_LE(reduced.size(), 4 * reachOf(line).size()) << points;
        EXPECT_EQ(reduced.front(), line.front());
        EXPECT_EQ(reduced.back(), line.back());
    }
}

TEST(LineReduction, KeepsTheOrderOfTheExtremesAndStartsAfreshAfterTake)
{
    LineReduction reduction;
    // One column: up to 10, down to -5, then ending at 2; the high comes before the low.
    for (double y : {0.0, 10.0, 3.0, -5.0, 1.0, 2.0})
        reduction.add(QPointF(7.5, y));
    EXPECT_EQ(reduction.take(), (std::vector<QPointF>{{7.5, 0}, {7.5, 10}, {7.5, -5}, {7.5, 2}}));
    // Whole numbers start a column: 8.0 is not in the column of 7.99.
    reduction.add(QPointF(7.99, 1));
    reduction.add(QPointF(8.0, 1));
    EXPECT_EQ(reduction.take(), (std::vector<QPointF>{{7.99, 1}, {8.0, 1}}));
    EXPECT_TRUE(reduction.take().empty());
}

} // namespace
