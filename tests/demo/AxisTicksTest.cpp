#include <cmath>
#include <set>
#include <gtest/gtest.h>
#include "demo/AxisTicks.h"

namespace {

// Labels 7 px a character, 12 px apart, on an axis of 500 px.
const double Length = 500.0, Gap = 12.0;
double width(const QString& text)
{
    return 7.0 * text.size();
}

bool isRoundStep(double step)
{
    const double mantissa = step / std::pow(10.0, std::floor(std::log10(step) + 1e-9));
    return std::abs(mantissa - 1) < 1e-6 || std::abs(mantissa - 2) < 1e-6 || std::abs(mantissa - 5) < 1e-6;
}

void expectReadable(double min, double max)
{
    SCOPED_TRACE(testing::Message() << min << ".." << max);
    const AxisTicks::Scale scale = AxisTicks::fit(min, max, Length, width, Gap);
    ASSERT_GE(scale.ticks.size(), 3u);
    std::set<QString> distinct;
    const double step = scale.ticks[1].value - scale.ticks[0].value;
    EXPECT_TRUE(isRoundStep(step)) << step;
    for (const AxisTicks::Tick& tick : scale.ticks) {
        EXPECT_GE(tick.value, min);
        EXPECT_LE(tick.value, max);
        EXPECT_TRUE(std::isfinite(tick.value));
        EXPECT_NEAR(tick.value / step, std::round(tick.value / step), 1e-6) << "a multiple of the step";
        distinct.insert(tick.label);
    }
    EXPECT_EQ(scale.ticks.size(), distinct.size());
    EXPECT_TRUE(AxisTicks::fits(
        scale, [&](double v) { return (v - min) / (max - min) * Length; }, width, Gap));
}

std::vector<QString> labels(const AxisTicks::Scale& scale)
{
    std::vector<QString> all;
    for (const AxisTicks::Tick& tick : scale.ticks)
        all.push_back(tick.label);
    return all;
}

TEST(AxisTicks, RangesThatOnceGaveOddOrRepeatedLabelsGetRoundDistinctOnes)
{
    for (const auto& [min, max] : std::vector<std::pair<double, double>>{
             {101325 - 50, 101325 + 50}, {-0.36, 9.36}, {4.3, 7.9}, {0, 1e-12}, {-1e300, 1e300}, {0.0, 1.0}})
        expectReadable(min, max);

    const AxisTicks::Scale sepals = AxisTicks::fit(4.3, 7.9, Length, width, Gap);
    EXPECT_EQ(QString("4.5"), sepals.ticks.front().label);
    EXPECT_TRUE(sepals.note.isEmpty());

    // Around a large value the common leading digits go to one offset at the axis end.
    const AxisTicks::Scale pressure = AxisTicks::fit(101325 - 0.05, 101325 + 0.05, Length, width, Gap);
    EXPECT_TRUE(pressure.note.startsWith("+10132")) << pressure.note.toStdString();
    for (const QString& text : labels(pressure))
        EXPECT_LE(text.size(), 5) << text.toStdString();

    // Zero is shown as zero, not as the rounding error of a sum.
    const std::vector<QString> across = labels(AxisTicks::label(AxisTicks::niceValues(-0.3, 0.3, 7)));
    EXPECT_NE(across.end(), std::find(across.begin(), across.end(), "0.0"));
    EXPECT_EQ(across.end(), std::find(across.begin(), across.end(), "-0.0"));

    const AxisTicks::Scale tiny = AxisTicks::fit(0, 1e-12, Length, width, Gap);
    EXPECT_EQ(QString::fromUtf8("×10⁻¹²"), tiny.note);
}

TEST(AxisTicks, ConstantNarrowOrNonFiniteRangesNeverLoopOrDivideByZero)
{
    EXPECT_EQ(1u, AxisTicks::fit(5, 5, Length, width, Gap).ticks.size());
    EXPECT_EQ(1u, AxisTicks::fit(1, 1 + 1e-300, Length, width, Gap).ticks.size());
    EXPECT_TRUE(AxisTicks::niceValues(0, INFINITY, 5).empty());
    EXPECT_TRUE(AxisTicks::niceValues(NAN, 1, 5).empty());
    // A 1 px axis still gets a label rather than nothing or a crash.
    EXPECT_EQ(1u, AxisTicks::fit(0, 10, 1, width, Gap).ticks.size());
}

TEST(AxisTicks, MoreRoomGivesMoreTicksThatStillFit)
{
    const size_t narrow = AxisTicks::fit(0, 100, 150, width, Gap).ticks.size();
    const size_t wide = AxisTicks::fit(0, 100, 1500, width, Gap).ticks.size();
    EXPECT_LT(narrow, wide);
    EXPECT_GE(wide, 10u);
}

TEST(AxisTicks, LogarithmicAxesMarkPowersOfTen)
{
    const AxisTicks::Scale decades = AxisTicks::fitLog(0.5, 2e6, Length, width, Gap);
    EXPECT_EQ((std::vector<QString>{"1", "10", "100", "1000", "10000", "100000", QString::fromUtf8("10⁶")}),
              labels(decades));
    // Within one decade the marks are round values.
    EXPECT_GE(AxisTicks::fitLog(2, 8, Length, width, Gap).ticks.size(), 3u);
}

TEST(AxisTicks, CategoriesAreNamedAndShortenedOnlyWhereTheyWouldCollide)
{
    const std::vector<std::string> species = {"Iris-setosa", "Iris-versicolor", "Iris-virginica"};
    auto shorten = [](const QString& text, double room) { return text.left(int(room / 7.0)); };
    auto roomy = [](double v) { return v * 300.0; };
    EXPECT_EQ((std::vector<QString>{"Iris-setosa", "Iris-versicolor", "Iris-virginica"}),
              labels(AxisTicks::categories(0.9, 3.1, species, roomy, width, Gap, shorten)));
    auto cramped = [](double v) { return v * 60.0; };
    const AxisTicks::Scale shortened = AxisTicks::categories(0.9, 3.1, species, cramped, width, Gap, shorten);
    for (const QString& text : labels(shortened))
        EXPECT_LE(width(text), 60.0 - Gap);
    EXPECT_EQ(2u, AxisTicks::categories(1.5, 3.0, species, roomy, width, Gap, shorten).ticks.size());
}

} // namespace
