#pragma once
#include <functional>
#include <string>
#include <vector>
#include <QString>

// The marks along a plot axis. Numbers land on round steps (1, 2 or 5 times a
// power of ten, chosen by the extended Wilkinson method of Talbot, Lin and
// Hanrahan) and are as many as the axis has room for; a variable of a few
// categories gets one mark per category, named after it.
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
        // Shown once at the axis end when the labels leave out an offset
        // ("+101300") or a shared power of ten ("×10⁵"); empty otherwise.
        QString note;
    };
    // The room a label takes along the axis, in pixels.
    typedef std::function<double(const QString&)> Extent;
    // Where a value lands along the axis, in pixels.
    typedef std::function<double(double)> Position;

    // More categories than this would crowd the axis: they get numbers.
    static constexpr size_t MaxNamed = 12;

    // Round values within [min, max], about `wanted` of them. One value for a
    // constant or unresolvably narrow range, none for a range that is not finite.
    static std::vector<double> niceValues(double min, double max, int wanted);
    // Labels in one format for evenly spaced values: distinct, with no more
    // digits than the step needs, an offset or power of ten taken out when the
    // labels would otherwise repeat or grow long.
    static Scale label(const std::vector<double>& values);

    // The most round ticks whose labels do not collide along an axis of the given length.
    static Scale fit(double min, double max, double length, const Extent& extent, double gap);
    // The same on a logarithmic axis (min > 0): powers of ten, or round values
    // when the range spans less than a decade.
    static Scale fitLog(double min, double max, double length, const Extent& extent, double gap);
    // One tick per category in range; a name is shortened only where it would
    // run into its neighbour's.
    static Scale categories(double min, double max, const std::vector<std::string>& names, const Position& position,
                            const Extent& extent, double gap,
                            const std::function<QString(const QString&, double)>& elide);

    // True when no two neighbouring labels overlap (each centred on its tick).
    static bool fits(const Scale& scale, const Position& position, const Extent& extent, double gap);
};
