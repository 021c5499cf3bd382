#pragma once
#include <string>
#include <vector>
#include <QString>

// The marks along a plot axis: five evenly spaced numbers, or, for a variable
// of a few categories, one mark per category in range, named after it.
class AxisTicks
{
public:
    struct Tick
    {
        double value;
        QString label;
    };
    // More categories than this would crowd the axis: they get numbers.
    static constexpr size_t MaxNamed = 12;

    static std::vector<Tick> of(double min, double max, const std::vector<std::string>& categories);
};
