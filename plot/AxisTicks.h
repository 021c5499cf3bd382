#pragma once
#include <functional>
#include <string>
#include <vector>
#include <QString>

// The marks along a plot axis. Numbers land on round steps (1, 2 or 5 times a
// power of ten, chosen by the extended Wilkinson method of Talbot, Lin and
// Hanrahan) and are as many as the axis has room for, never more than ten;
// a variable of a few categories gets one mark per category, named after it.
// Labels are never shortened: where they cannot fit, there are fewer of them.
class AxisTicks
{
public:
    struct Tick
    {
        double value;
        QString label;
    };
    struct Scale
    {
        std::vector<Tick> ticks;
        // Shown once at the axis end when the labels leave out a shared power
        // of ten ("×10⁵"), an offset ("+101300") or both ("×10⁻² +101325"):
        // a value is the label times the power plus the offset. Empty otherwise.
        QString note;
        // Unlabelled marks between the ticks (2 to 9 times a decade on a logarithmic axis).
        std::vector<double> minor;
    };
    // The room a label takes along the axis, in pixels.
    typedef std::function<double(const QString&)> Extent;
    // Where a value lands along the axis, in pixels.
    typedef std::function<double(double)> Position;

    // What the caller knows about the axis besides its range.
    struct Options
    {
        bool integers = false; // every value is a whole number: so is every step
        double spacing = 0.0;  // the distance between ticks a reader likes, in pixels; 0: as close as they fit
    };

    // More categories than this would crowd the axis: they get numbers.
    static constexpr size_t MaxNamed = 12;
    // More labels than this are more than a reader takes in.
    static constexpr int MostTicks = 10;

    // Round values within [min, max], about `wanted` of them and at most `most`.
    // One value for a constant or unresolvably narrow range, none for a range
    // that is not finite.
    static std::vector<double> niceValues(double min, double max, int wanted, bool integers = false,
                                          int most = MostTicks);
    // Labels in one format for evenly spaced values: plain, with an offset,
    // with a power of ten or with both, whichever gives the shortest distinct
    // labels. Numbers follow the default locale (decimal comma in German),
    // negative ones take a true minus sign.
    static Scale label(const std::vector<double>& values);

    // The most readable round ticks whose labels do not collide along an axis of the given length.
    static Scale fit(double min, double max, double length, const Extent& extent, double gap, const Options& options);
    static Scale fit(double min, double max, double length, const Extent& extent, double gap);
    // The same on a logarithmic axis (min > 0): decades (every one, or every
    // second, third...), 1, 2 and 5 times them over a decade or two, round
    // values within less than one.
    static Scale fitLog(double min, double max, double length, const Extent& extent, double gap);
    // One tick per category in range, or per second, third... category where
    // the names would otherwise run into each other.
    static Scale categories(double min, double max, const std::vector<std::string>& names, const Position& position,
                            const Extent& extent, double gap);

    // True when no two neighbouring labels overlap (each centred on its tick).
    static bool fits(const Scale& scale, const Position& position, const Extent& extent, double gap);

    // A number as a label shows it: the locale's decimal sign, a true minus sign.
    static QString number(double value, int decimals);
    // "10⁵", "10⁻³".
    static QString powerOfTen(int exponent);
};
