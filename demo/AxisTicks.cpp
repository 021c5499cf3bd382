#include "demo/AxisTicks.h"

std::vector<AxisTicks::Tick> AxisTicks::of(double min, double max, const std::vector<std::string>& categories)
{
    std::vector<Tick> ticks;
    if (!categories.empty() && categories.size() <= MaxNamed) {
        // Category k is stored as the number k.
        for (size_t k = 1; k <= categories.size(); ++k)
            if (double(k) >= min && double(k) <= max)
                ticks.push_back({double(k), QString::fromStdString(categories[k - 1])});
        return ticks;
    }
    const int steps = 4;
    for (int t = 0; t <= steps; ++t) {
        const double value = min + (max - min) * t / steps;
        ticks.push_back({value, QString::number(value, 'g', 4)});
    }
    return ticks;
}
