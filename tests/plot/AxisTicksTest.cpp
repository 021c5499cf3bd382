#include <cmath>
#include <set>
#include <QLocale>
#include <gtest/gtest.h>
#include "plot/AxisTicks.h"

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
    EXPECT_TRUE(tiny.note.startsWith(QString::fromUtf8("×10⁻¹"))) << tiny.note.toStdString();
}

TEST(AxisTicks, EachAxisTakesTheFormatWithTheShortestDistinctLabels)
{
    const QString minus(QChar(0x2212));
    // Labels that would repeat their leading digits: an offset at the axis end.
    const AxisTicks::Scale pressure = AxisTicks::label({101300, 101310, 101320, 101330, 101340, 101350});
    EXPECT_EQ((std::vector<QString>{"0", "10", "20", "30", "40", "50"}), labels(pressure));
    EXPECT_EQ(QString("+101300"), pressure.note);
    // Short enough as they are: plain.
    const AxisTicks::Scale kelvin = AxisTicks::label({293.10, 293.12, 293.14, 293.16, 293.18, 293.20});
    EXPECT_EQ(QString("293.10"), kelvin.ticks.front().label);
    EXPECT_TRUE(kelvin.note.isEmpty());
    const AxisTicks::Scale depth = AxisTicks::label({-4000, -3995, -3990});
    EXPECT_EQ(minus + "4000", depth.ticks.front().label) << "a true minus sign";
    // A millionth of a part: the offset and a power of ten together.
    const AxisTicks::Scale fine = AxisTicks::fit(1.0, 1.000000001, Length, width, Gap);
    EXPECT_TRUE(fine.note.startsWith(QString::fromUtf8("×10⁻"))) << fine.note.toStdString();
    EXPECT_TRUE(fine.note.endsWith(" +1")) << fine.note.toStdString();
    for (const QString& text : labels(fine))
        EXPECT_LE(text.size(), 3) << text.toStdString();
    // The offset of a negative range is negative.
    const AxisTicks::Scale below = AxisTicks::label({-100000003, -100000002, -100000001, -100000000});
    EXPECT_EQ(minus + "100000003", below.note);
    EXPECT_EQ(QString("3"), below.ticks.back().label);

    const QLocale before;
    QLocale::setDefault(QLocale(QLocale::German));
    const AxisTicks::Scale german = AxisTicks::label({-0.5, 0.0, 0.5, 1.0});
    QLocale::setDefault(before);
    EXPECT_EQ((std::vector<QString>{minus + "0,5", "0,0", "0,5", "1,0"}), labels(german)) << "a decimal comma";
}

TEST(AxisTicks, WholeNumbersTakeWholeStepsAndEveryAxisThreeToTenLabels)
{
    AxisTicks::Options counts;
    counts.integers = true;
    EXPECT_EQ((std::vector<QString>{"0", "1", "2"}), labels(AxisTicks::fit(-0.1, 2.1, 800, width, Gap, counts)));
    for (const AxisTicks::Tick& tick : AxisTicks::fit(-0.3, 7.3, 800, width, Gap, counts).ticks)
        EXPECT_EQ(tick.value, std::round(tick.value));
    for (const auto& [min, max] : std::vector<std::pair<double, double>>{
             {0, 7}, {1e-300, 3e-300}, {0, 2.5e-12}, {-1e300, 1e300}, {1e300, 1.0001e300}, {1, 1.000000001}}) {
        const size_t count = AxisTicks::fit(min, max, 800, width, Gap).ticks.size();
        EXPECT_GE(count, 3u) << min << ".." << max;
        EXPECT_LE(count, size_t(AxisTicks::MostTicks)) << min << ".." << max;
    }
    // A reader's spacing gives fewer ticks than would fit, and fewer again on a shorter axis.
    AxisTicks::Options spaced;
    spaced.spacing = 200;
    const size_t wide = AxisTicks::fit(0, 100, 800, width, Gap, spaced).ticks.size();
    EXPECT_LE(wide, 6u);
    EXPECT_LT(AxisTicks::fit(0, 100, 250, width, Gap, spaced).ticks.size(), wide);
}

TEST(AxisTicks, ConstantNarrowOrNonFiniteRangesNeverLoopOrDivideByZero)
{
    EXPECT_EQ(1u, AxisTicks::fit(5, 5, Length, width, Gap).ticks.size());
    EXPECT_EQ(1u, AxisTicks::fit(1, 1 + 1e-300, Length, width, Gap).ticks.size());
    EXPECT_TRUE(AxisTicks::niceValues(0, INFINITY, 5).empty());
    EXPECT_TRUE(AxisTicks::niceValues(NAN, 1, 5).empty());
    // A 1 px axis still gets a label rather than nothing or a crash, with no more digits than it has.
    const AxisTicks::Scale single = AxisTicks::fit(0, 10, 1, width, Gap);
    ASSERT_EQ(1u, single.ticks.size());
    EXPECT_EQ(QString::number(single.ticks[0].value), single.ticks[0].label);
    EXPECT_EQ((std::vector<QString>{"1.25"}), labels(AxisTicks::label({1.25})));
}

TEST(AxisTicks, MoreRoomGivesMoreTicksThatStillFit)
{
    const size_t narrow = AxisTicks::fit(0, 100, 150, width, Gap).ticks.size();
    const size_t wide = AxisTicks::fit(0, 100, 1500, width, Gap).ticks.size();
    EXPECT_LT(narrow, wide);
    EXPECT_GE(wide, 10u);
}

TEST(AxisTicks, LogarithmicAxesWriteEveryDecadeAlikeWithMarksBetween)
{
    auto power = [](const char* exponent) { return QString::fromUtf8("10") + QString::fromUtf8(exponent); };
    const AxisTicks::Scale decades = AxisTicks::fitLog(0.5, 2e6, Length, width, Gap);
    EXPECT_EQ(
        (std::vector<QString>{power("⁰"), power("¹"), power("²"), power("³"), power("⁴"), power("⁵"), power("⁶")}),
        labels(decades));
    EXPECT_NE(decades.minor.end(), std::find(decades.minor.begin(), decades.minor.end(), 2.0));
    EXPECT_NE(decades.minor.end(), std::find(decades.minor.begin(), decades.minor.end(), 9e5));
    // Where every decade is short, all are plain; a thousandth is never "0.0…".
    EXPECT_EQ((std::vector<QString>{"0.001", "0.01", "0.1", "1", "10"}),
              labels(AxisTicks::fitLog(8e-4, 12, Length, width, Gap)));
    // More decades than ten labels: every second one, the others marked.
    const AxisTicks::Scale many = AxisTicks::fitLog(1e-300, 1e-288, Length, width, Gap);
    EXPECT_LE(many.ticks.size(), size_t(AxisTicks::MostTicks));
    EXPECT_GE(many.ticks.size(), 3u);
    EXPECT_EQ(power("⁻³⁰⁰"), many.ticks.front().label);
    // A decade or two: 1, 2 and 5 times the decades.
    EXPECT_EQ((std::vector<QString>{"1", "2", "5", "10"}), labels(AxisTicks::fitLog(0.9, 11, Length, width, Gap)));
    // Within a decade the marks are round values.
    EXPECT_GE(AxisTicks::fitLog(2, 8, Length, width, Gap).ticks.size(), 3u);
}

TEST(AxisTicks, CategoriesAreNamedWholeAndThinnedWhereTheyWouldCollide)
{
    const std::vector<std::string> species = {"Iris-setosa", "Iris-versicolor", "Iris-virginica"};
    auto roomy = [](double v) { return v * 300.0; };
    EXPECT_EQ((std::vector<QString>{"Iris-setosa", "Iris-versicolor", "Iris-virginica"}),
              labels(AxisTicks::categories(0.9, 3.1, species, roomy, width, Gap)));
    // Too close for every name: every second one, whole.
    auto cramped = [](double v) { return v * 70.0; };
    EXPECT_EQ((std::vector<QString>{"Iris-setosa", "Iris-virginica"}),
              labels(AxisTicks::categories(0.9, 3.1, species, cramped, width, Gap)));
    EXPECT_EQ(2u, AxisTicks::categories(1.5, 3.0, species, roomy, width, Gap).ticks.size());
}

} // namespace
