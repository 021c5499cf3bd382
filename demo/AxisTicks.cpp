#include "demo/AxisTicks.h"

#include <algorithm>
#include <cmath>

namespace {

// The steps the search may use, most preferred first.
const double Steps[] = {1.0, 5.0, 2.0};
const int StepCount = 3;
// Weights of simplicity, coverage and density in a labelling's score.
const double WSimple = 0.25, WCover = 0.2, WDense = 0.5, WLegible = 0.05;
// A range narrower than this part of its magnitude cannot be labelled in round steps.
const double Resolution = 1e-12;

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

// "-0" and the last bits of a sum are not numbers a reader wants to see.
QString fixed(double value, int decimals)
{
    QString text = QString::number(value, 'f', decimals);
    if (text.startsWith('-') && text.count('0') + text.count('.') + 1 == text.size())
        text.remove(0, 1);
    return text;
}

int decimalsFor(double step)
{
    return std::max(0, int(-std::floor(std::log10(step) + 1e-9)));
}

QString superscript(int exponent)
{
    static const QString digits = QString::fromUtf8("⁰¹²³⁴⁵⁶⁷⁸⁹");
    QString text;
    for (const QChar c : QString::number(exponent))
        text += c == '-' ? QString::fromUtf8("⁻") : QString(digits[c.digitValue()]);
    return text;
}

QString powerOfTen(int exponent)
{
    return QString::fromUtf8("10") + superscript(exponent);
}

bool resolvable(double min, double max)
{
    const double range = max - min;
    return std::isfinite(range) && range > 0.0 && range > Resolution * std::max(std::abs(min), std::abs(max))
           && range > 1e-290;
}

} // namespace

std::vector<double> AxisTicks::niceValues(double min, double max, int wanted)
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
        for (int k = 2; k < 100; ++k) {
            const double dm = densityMax(k, m);
            if (WSimple * sm + WCover + WDense * dm + WLegible < best)
                break;
            const double delta = (max - min) / (k + 1) / Steps[i];
            for (int z = int(std::ceil(std::log10(delta))), zEnd = z + 20; z < zEnd; ++z) {
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
        return {min, max};
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
        scale.ticks.push_back({values[0], QString::number(values[0], 'g', 6)});
        return scale;
    }
    const double step = values[1] - values[0];
    double magnitude = 0.0;
    for (double v : values)
        magnitude = std::max(magnitude, std::abs(v));
    double offset = 0.0;
    double factor = 1.0;
    if (magnitude / step >= 1e5) {
        // The labels would repeat their leading digits: they show the difference from a round offset.
        const double unit = std::pow(10.0, std::ceil(std::log10(values.back() - values.front())));
        offset = std::floor(values.front() / unit) * unit;
        scale.note = (offset < 0 ? "-" : "+") + QString::number(std::abs(offset), 'g', 15);
        magnitude = values.back() - offset;
    } else if (magnitude >= 1e5 || magnitude < 1e-3) {
        const int exponent = int(std::floor(std::log10(magnitude)));
        factor = std::pow(10.0, exponent);
        scale.note = QString::fromUtf8("×") + powerOfTen(exponent);
    }
    const int decimals = decimalsFor(step / factor);
    for (double v : values) {
        const double shown = std::abs(v) < step * 1e-6 ? 0.0 : (v - offset) / factor;
        scale.ticks.push_back({v, fixed(shown, decimals)});
    }
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

AxisTicks::Scale AxisTicks::fit(double min, double max, double length, const Extent& extent, double gap)
{
    const Position position = [&](double v) { return (v - min) / (max - min) * length; };
    if (!resolvable(min, max))
        return label(niceValues(min, max, 1));
    const int most = std::clamp(int(length / (extent("0.0") + gap)), 2, 40);
    Scale best;
    for (int wanted = most; wanted >= 2; --wanted) {
        best = label(niceValues(min, max, wanted));
        if (fits(best, position, extent, gap))
            return best;
    }
    // Not even two labels fit: one, in the middle.
    if (!best.ticks.empty())
        best.ticks.erase(best.ticks.begin() + 1, best.ticks.end());
    return best;
}

AxisTicks::Scale AxisTicks::fitLog(double min, double max, double length, const Extent& extent, double gap)
{
    if (!(min > 0.0) || !std::isfinite(max) || !(max > min))
        return fit(min, max, length, extent, gap);
    const double lo = std::log10(min), hi = std::log10(max);
    const Position position = [&](double v) { return (std::log10(v) - lo) / (hi - lo) * length; };
    const int first = int(std::ceil(lo - 1e-9)), last = int(std::floor(hi + 1e-9));
    if (last - first < 1) {
        // Less than a decade: round values, placed on the logarithmic axis.
        const int most = std::clamp(int(length / (extent("0.0") + gap)), 2, 40);
        Scale best;
        for (int wanted = most; wanted >= 2; --wanted)
            if (fits(best = label(niceValues(min, max, wanted)), position, extent, gap))
                return best;
        return best;
    }
    Scale scale;
    for (int stride = 1;; ++stride) {
        scale.ticks.clear();
        for (int e = first; e <= last; e += stride) {
            const bool plain = e >= -3 && e <= 5;
            scale.ticks.push_back(
                {std::pow(10.0, e), plain ? fixed(std::pow(10.0, e), std::max(0, -e)) : powerOfTen(e)});
        }
        if (scale.ticks.size() <= 2 || fits(scale, position, extent, gap))
            return scale;
    }
}

AxisTicks::Scale AxisTicks::categories(double min, double max, const std::vector<std::string>& names,
                                       const Position& position, const Extent& extent, double gap,
                                       const std::function<QString(const QString&, double)>& elide)
{
    Scale scale;
    // Category k is stored as the number k.
    std::vector<double> positions;
    for (size_t k = 1; k <= names.size(); ++k)
        if (double(k) >= min && double(k) <= max) {
            scale.ticks.push_back({double(k), QString::fromStdString(names[k - 1])});
            positions.push_back(position(double(k)));
        }
    for (size_t t = 0; t < scale.ticks.size(); ++t) {
        // A centred label narrower than the distance to its nearer neighbour cannot reach that neighbour's.
        const double before = t > 0 ? std::abs(positions[t] - positions[t - 1]) : 1e9;
        const double after = t + 1 < positions.size() ? std::abs(positions[t + 1] - positions[t]) : 1e9;
        const double room = std::min(before, after) - gap;
        if (extent(scale.ticks[t].label) > room)
            scale.ticks[t].label = elide(scale.ticks[t].label, std::max(0.0, room));
    }
    return scale;
}
