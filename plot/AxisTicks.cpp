#include "plot/AxisTicks.h"

#include <algorithm>
#include <cmath>
#include <QLocale>

namespace {

// The steps the search may use, most preferred first.
const double Steps[] = {1.0, 5.0, 2.0};
const int StepCount = 3;
// Weights of simplicity, coverage and density in a labelling's score.
const double WSimple = 0.25, WCover = 0.2, WDense = 0.5, WLegible = 0.05;
// A range narrower than this part of its magnitude cannot be labelled in round steps.
const double Resolution = 1e-12;
// Nor one narrower than this: its steps would fall among the denormal doubles.
const double SmallestRange = 1e-305;
// Labels longer than this many digits are no help to a reader, and doubles hold no more.
const int MostDigits = 15;
// What a format costs a reader, in characters of its longest label: a note is
// read with every label, both parts of one more so; decimals are harder to
// take in than whole numbers; a long note takes a little longer.
const double NoteCost = 3.0, BothNotesCost = 2.0, DecimalCost = 0.5, NoteLetterCost = 0.05;

bool isMultiple(double value, double step)
{
    const double ratio = value / step;
    return std::abs(ratio - std::round(ratio)) < 1e-9;
}

double simplicity(int i, bool zeroIncluded)
{
    return 1.0 - double(i) / (StepCount - 1) + (zeroIncluded ? 1.0 : 0.0);
}

double simplicityMax(int i)
{
    return simplicity(i, true);
}

// Distances are taken relative to a tenth of the range so that tiny and huge ranges score alike.
double coverage(double dmin, double dmax, double lmin, double lmax)
{
    const double tenth = 0.1 * (dmax - dmin);
    const double a = (dmax - lmax) / tenth, b = (dmin - lmin) / tenth;
    return 1.0 - 0.5 * (a * a + b * b);
}

double coverageMax(double dmin, double dmax, double span)
{
    const double range = dmax - dmin;
    if (span <= range)
        return 1.0;
    const double half = (span - range) / 2.0 / (0.1 * range);
    return 1.0 - half * half;
}

double density(int k, int m, double dmin, double dmax, double lmin, double lmax)
{
    const double ratio =
        (double(k - 1) * (std::max(lmax, dmax) - std::min(dmin, lmin))) / (double(m - 1) * (lmax - lmin));
    return 2.0 - std::max(ratio, 1.0 / ratio);
}

double densityMax(int k, int m)
{
    return k >= m ? 2.0 - double(k - 1) / double(m - 1) : 1.0;
}

int exponentOf(double value)
{
    return int(std::floor(std::log10(std::abs(value)) + 1e-9));
}

// How many decimals show every multiple of step exactly (2.5 needs one, 0.25 two).
int decimalsFor(double step)
{
    int decimals = std::max(0, -exponentOf(step));
    const double scaled = step * std::pow(10.0, decimals);
    if (std::abs(scaled - std::round(scaled)) > 1e-6 * scaled)
        ++decimals;
    return decimals;
}

QString superscript(int exponent)
{
    static const QString digits = QString::fromUtf8("⁰¹²³⁴⁵⁶⁷⁸⁹");
    QString text;
    for (const QChar c : QString::number(exponent))
        text += c == '-' ? QString::fromUtf8("⁻") : QString(digits[c.digitValue()]);
    return text;
}

bool resolvable(double min, double max)
{
    const double range = max - min;
    return std::isfinite(range) && range > 0.0 && range > Resolution * std::max(std::abs(min), std::abs(max))
           && range > SmallestRange;
}

// One way of writing an axis's labels: shown = (value - offset) / 10^exponent.
struct Format
{
    double offset = 0.0;
    int exponent = 0;
    int offsetDecimals = 0;

    QString note() const
    {
        QString text;
        if (exponent != 0)
            text = QString::fromUtf8("×") + AxisTicks::powerOfTen(exponent);
        if (offset != 0.0) {
            const QString sign = offset < 0 ? QString(QChar(0x2212)) : QString("+");
            text += (text.isEmpty() ? "" : " ") + sign + AxisTicks::number(std::abs(offset), offsetDecimals);
        }
        return text;
    }

    // The labels, or nothing when they would be too long or not distinct.
    bool write(const std::vector<double>& values, double step, std::vector<QString>& labels) const
    {
        const double factor = std::pow(10.0, exponent);
        const double shownStep = step / factor;
        const int decimals = decimalsFor(shownStep);
        if (!std::isfinite(shownStep) || decimals > MostDigits || offsetDecimals > MostDigits)
            return false;
        labels.clear();
        for (double v : values) {
            double shown = (v - offset) / factor;
            if (std::abs(shown) < shownStep * 1e-6)
                shown = 0.0;
            if (!(std::abs(shown) < std::pow(10.0, MostDigits)))
                return false;
            labels.push_back(AxisTicks::number(shown, decimals));
            if (std::find(labels.begin(), labels.end() - 1, labels.back()) != labels.end() - 1)
                return false;
        }
        return note().size() <= MostDigits + 8;
    }

    double cost(const std::vector<QString>& labels, double step) const
    {
        int longest = 0;
        for (const QString& label : labels)
            longest = std::max(longest, int(label.size()));
        const bool both = offset != 0.0 && exponent != 0;
        return longest + DecimalCost * decimalsFor(step / std::pow(10.0, exponent))
               + NoteCost * ((offset != 0.0) + (exponent != 0)) + (both ? BothNotesCost : 0.0)
               + NoteLetterCost * note().size();
    }
};

// The fewest decimals that write a multiple of 10^power exactly.
int decimalsOf(double offset, int power)
{
    for (int decimals = 0; decimals < -power; ++decimals) {
        const double scale = std::pow(10.0, decimals);
        if (std::abs(std::round(offset * scale) / scale - offset) < 1e-3 * std::pow(10.0, power))
            return decimals;
    }
    return std::max(0, -power);
}

// The ways worth trying: plain; a power of ten of the largest label; offsets
// that round the first value down to a power of ten from the step's to the
// range's, alone or with the power of ten of what is left or of the step.
std::vector<Format> formatsFor(const std::vector<double>& values, double step)
{
    double largest = 0.0;
    for (double v : values)
        largest = std::max(largest, std::abs(v));
    std::vector<Format> formats(1);
    if (largest > 0.0 && exponentOf(largest) != 0)
        formats.push_back({0.0, exponentOf(largest), 0});
    const double first = values.front(), span = values.back() - values.front();
    for (int p = exponentOf(step), last = exponentOf(span) + 1; p <= last; ++p) {
        const double unit = std::pow(10.0, p);
        const double offset = std::floor(first / unit) * unit;
        if (offset == 0.0 || !std::isfinite(offset))
            continue;
        const int offsetDecimals = decimalsOf(offset, p);
        formats.push_back({offset, 0, offsetDecimals});
        const double rest = std::max(std::abs(values.back() - offset), std::abs(first - offset));
        for (int exponent : {exponentOf(rest), exponentOf(step)})
            if (rest > 0.0 && exponent != 0)
                formats.push_back({offset, exponent, offsetDecimals});
    }
    return formats;
}

// The labels of values spread over less than a decade or two of a logarithmic
// axis: plain where every one is short, else over their shared power of ten.
AxisTicks::Scale labelSeries(const std::vector<double>& values)
{
    AxisTicks::Scale scale;
    auto plain = [](double v, int shift) {
        const double shown = v / std::pow(10.0, shift);
        return AxisTicks::number(shown, std::max(0, -exponentOf(shown)));
    };
    bool allShort = true;
    for (double v : values)
        allShort &= plain(v, 0).size() <= 6;
    const int shift = allShort ? 0 : exponentOf(values.front());
    for (double v : values)
        scale.ticks.push_back({v, plain(v, shift)});
    if (shift != 0)
        scale.note = QString::fromUtf8("×") + AxisTicks::powerOfTen(shift);
    return scale;
}

} // namespace

QString AxisTicks::number(double value, int decimals)
{
    QLocale locale;
    locale.setNumberOptions(locale.numberOptions() | QLocale::OmitGroupSeparator);
    // What rounds to zero is zero, not "-0.0".
    if (std::abs(value) < 0.5 * std::pow(10.0, -decimals))
        value = 0.0;
    QString text = locale.toString(value, 'f', decimals);
    text.replace(QString(locale.negativeSign()), QString(QChar(0x2212)));
    return text;
}

QString AxisTicks::powerOfTen(int exponent)
{
    return QString::fromUtf8("10") + superscript(exponent);
}

std::vector<double> AxisTicks::niceValues(double min, double max, int wanted, bool integers, int most)
{
    if (!std::isfinite(min) || !std::isfinite(max))
        return {};
    if (!resolvable(min, max))
        return {(min + max) / 2.0};
    const int m = std::max(2, wanted);
    double best = -2.0;
    double bestMin = min, bestStep = max - min;
    int bestCount = 0;
    for (int i = 0; i < StepCount; ++i) {
        const double sm = simplicityMax(i);
        if (WSimple * sm + WCover + WDense + WLegible < best)
            break;
        for (int k = 2; k <= std::max(2, most); ++k) {
            const double dm = densityMax(k, m);
            if (WSimple * sm + WCover + WDense * dm + WLegible < best)
                break;
            const double delta = (max - min) / (k + 1) / Steps[i];
            int z = int(std::ceil(std::log10(delta)));
            if (integers)
                z = std::max(z, 0); // whole numbers take whole steps
            for (const int zEnd = z + 20; z < zEnd; ++z) {
                const double step = Steps[i] * std::pow(10.0, z);
                const double cm = coverageMax(min, max, step * (k - 1));
                if (WSimple * sm + WCover * cm + WDense * dm + WLegible < best)
                    break;
                // Every first label that keeps all k labels within [min, max].
                const double firstStart = std::ceil(min / step), lastStart = std::floor(max / step) - (k - 1);
                if (lastStart - firstStart > 1000)
                    continue;
                for (double start = firstStart; start <= lastStart; ++start) {
                    const double lmin = start * step, lmax = lmin + step * (k - 1);
                    const bool zero = lmin <= 0.0 && lmax >= 0.0 && isMultiple(lmin, step);
                    const double score = WSimple * simplicity(i, zero) + WCover * coverage(min, max, lmin, lmax)
                                         + WDense * density(k, m, min, max, lmin, lmax) + WLegible;
                    if (score > best) {
                        best = score;
                        bestMin = lmin;
                        bestStep = step;
                        bestCount = k;
                    }
                }
            }
        }
    }
    if (!bestCount)
        return {(min + max) / 2.0};
    std::vector<double> values;
    for (int t = 0; t < bestCount; ++t)
        values.push_back(bestMin + bestStep * t);
    return values;
}

AxisTicks::Scale AxisTicks::label(const std::vector<double>& values)
{
    Scale scale;
    if (values.empty())
        return scale;
    if (values.size() == 1) {
        // Alone, a value shows up to six digits, and no more than it has.
        const double v = values[0];
        const int exponent = v == 0.0 ? 0 : exponentOf(v);
        const int shift = std::abs(exponent) < 5 ? 0 : exponent;
        const double shown = v / std::pow(10.0, shift);
        int decimals = 0;
        while (decimals < 5 - (exponent - shift)
               && std::abs(std::round(shown * std::pow(10.0, decimals)) / std::pow(10.0, decimals) - shown)
                      > 1e-9 * std::abs(shown))
            ++decimals;
        scale.ticks.push_back({v, number(shown, decimals)});
        if (shift != 0)
            scale.note = QString::fromUtf8("×") + powerOfTen(shift);
        return scale;
    }
    // The step as the search chose it, without the last bits of the sums.
    const double rough = (values.back() - values.front()) / double(values.size() - 1);
    const double unit = std::pow(10.0, exponentOf(rough));
    const double step = std::round(rough / unit * 100.0) / 100.0 * unit;
    std::vector<QString> labels, bestLabels;
    Format best;
    double bestCost = INFINITY;
    for (const Format& format : formatsFor(values, step))
        if (format.write(values, step, labels) && format.cost(labels, step) < bestCost) {
            bestCost = format.cost(labels, step);
            best = format;
            bestLabels = labels;
        }
    for (size_t t = 0; t < bestLabels.size(); ++t)
        scale.ticks.push_back({values[t], bestLabels[t]});
    scale.note = best.note();
    return scale;
}

bool AxisTicks::fits(const Scale& scale, const Position& position, const Extent& extent, double gap)
{
    for (size_t t = 1; t < scale.ticks.size(); ++t) {
        const double room = std::abs(position(scale.ticks[t].value) - position(scale.ticks[t - 1].value));
        if (room < (extent(scale.ticks[t].label) + extent(scale.ticks[t - 1].label)) / 2.0 + gap)
            return false;
    }
    return true;
}

AxisTicks::Scale AxisTicks::fit(double min, double max, double length, const Extent& extent, double gap,
                                const Options& options)
{
    if (!resolvable(min, max))
        return label(niceValues(min, max, 1));
    const Position position = [&](double v) { return (v - min) / (max - min) * length; };
    // No more than could fit, no more than a reader likes.
    const int room = std::clamp(int(length / (extent("0.0") + gap)) + 1, 2, MostTicks);
    const int liked =
        options.spacing > 0.0 ? std::clamp(int(std::lround(length / options.spacing)) + 1, 2, room) : room;
    Scale best;
    for (int most = room; most >= 2; --most) {
        best = label(niceValues(min, max, std::min(liked, most), options.integers, most));
        if (fits(best, position, extent, gap))
            return best;
    }
    // Not even two labels fit: one, in the middle.
    if (best.ticks.size() > 1)
        best = label({best.ticks[best.ticks.size() / 2].value});
    return best;
}

AxisTicks::Scale AxisTicks::fit(double min, double max, double length, const Extent& extent, double gap)
{
    return fit(min, max, length, extent, gap, Options());
}

AxisTicks::Scale AxisTicks::fitLog(double min, double max, double length, const Extent& extent, double gap)
{
    if (!(min > 0.0) || !std::isfinite(max) || !(max > min))
        return fit(min, max, length, extent, gap);
    const double lo = std::log10(min), hi = std::log10(max);
    const Position position = [&](double v) { return (std::log10(v) - lo) / (hi - lo) * length; };
    const double decadeLength = length / (hi - lo);
    const int first = int(std::ceil(lo - 1e-9)), last = int(std::floor(hi + 1e-9));
    auto within = [&](double v) { return v >= min * (1 - 1e-12) && v <= max * (1 + 1e-12); };

    if (last - first >= 2) {
        // Decades, all written alike: plain where every one is short, else as powers of ten.
        const bool plain = first >= -3 && last <= 4;
        for (int stride = 1;; ++stride) {
            Scale scale;
            for (int e = first; e <= last; ++e) {
                if (e % stride != 0) {
                    scale.minor.push_back(std::pow(10.0, e));
                    continue;
                }
                scale.ticks.push_back(
                    {std::pow(10.0, e), plain ? number(std::pow(10.0, e), std::max(0, -e)) : powerOfTen(e)});
                // 2 to 9 times a decade where a decade has room for them.
                if (stride == 1 && decadeLength >= 40)
                    for (int m = 2; m <= 9; ++m)
                        if (within(m * std::pow(10.0, e)))
                            scale.minor.push_back(m * std::pow(10.0, e));
            }
            if (stride == 1 && decadeLength >= 40)
                for (int m = 2; m <= 9; ++m)
                    if (within(m * std::pow(10.0, first - 1)))
                        scale.minor.push_back(m * std::pow(10.0, first - 1));
            if (scale.ticks.size() <= 2 || (int(scale.ticks.size()) <= MostTicks && fits(scale, position, extent, gap)))
                return scale;
        }
    }
    // A decade or two: 1, 2 and 5 times the decades, the other multiples as marks.
    std::vector<double> series, minor;
    for (int e = first - 1; e <= last; ++e)
        for (int m = 1; m <= 9; ++m) {
            const double v = m * std::pow(10.0, e);
            if (within(v))
                (m == 1 || m == 2 || m == 5 ? series : minor).push_back(v);
        }
    if (series.size() >= 3 && int(series.size()) <= MostTicks) {
        Scale scale = labelSeries(series);
        scale.minor = minor;
        if (fits(scale, position, extent, gap))
            return scale;
    }
    if (last - first >= 1) {
        Scale decades = labelSeries({std::pow(10.0, first), std::pow(10.0, last)});
        decades.minor = series;
        return decades;
    }
    // Less than a decade: round values, placed on the logarithmic axis.
    const int room = std::clamp(int(length / (extent("0.0") + gap)) + 1, 2, MostTicks);
    Scale best;
    for (int most = room; most >= 2; --most)
        if (fits(best = label(niceValues(min, max, most, false, most)), position, extent, gap))
            return best;
    return best;
}

AxisTicks::Scale AxisTicks::categories(double min, double max, const std::vector<std::string>& names,
                                       const Position& position, const Extent& extent, double gap)
{
    // Category k is stored as the number k.
    for (size_t stride = 1;; ++stride) {
        Scale scale;
        for (size_t k = 1; k <= names.size(); k += stride)
            if (double(k) >= min && double(k) <= max)
                scale.ticks.push_back({double(k), QString::fromStdString(names[k - 1])});
        if (scale.ticks.size() <= 1 || fits(scale, position, extent, gap))
            return scale;
    }
}
