#include <gtest/gtest.h>
#include "demo/AxisTicks.h"

namespace {

std::vector<QString> labels(const std::vector<AxisTicks::Tick>& ticks)
{
    std::vector<QString> all;
    for (const AxisTicks::Tick& tick : ticks)
        all.push_back(tick.label);
    return all;
}

TEST(AxisTicks, NumbersEvenlySpacedOrOneNamedMarkPerCategoryInRange)
{
    const std::vector<AxisTicks::Tick> numbers = AxisTicks::of(-1, 1, {});
    ASSERT_EQ(5u, numbers.size());
    EXPECT_EQ(-0.5, numbers[1].value);
    EXPECT_EQ((std::vector<QString>{"-1", "-0.5", "0", "0.5", "1"}), labels(numbers));

    const std::vector<std::string> species = {"setosa", "versicolor", "virginica"};
    const std::vector<AxisTicks::Tick> named = AxisTicks::of(0.92, 3.08, species);
    ASSERT_EQ(3u, named.size());
    EXPECT_EQ(2.0, named[1].value);
    EXPECT_EQ((std::vector<QString>{"setosa", "versicolor", "virginica"}), labels(named));
    // Zoomed in: only the categories in range are marked.
    EXPECT_EQ((std::vector<QString>{"versicolor", "virginica"}), labels(AxisTicks::of(1.5, 3.0, species)));

    // Too many names would crowd the axis.
    EXPECT_EQ(5u, AxisTicks::of(1, 13, std::vector<std::string>(AxisTicks::MaxNamed + 1, "x")).size());
}

} // namespace
