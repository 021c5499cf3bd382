#include "host/kernel/ColorMap.h"
#include <QColor>

namespace orrery {
namespace kernel {

namespace {

struct Rgb
{
    unsigned char r, g, b;
};

const Rgb BasicColors[] = {
    {0, 0, 0}, {255, 0, 0}, {0, 255, 0}, {0, 0, 255}, {0, 255, 255}, {255, 255, 0}, {255, 0, 255}, {255, 255, 255},
};

const int BasicCount = 8;
const int HuesPerRow = 14;

// Custom colours: rows of evenly spaced hues, each row paler or darker.
Rgb customColor(int index)
{
    const int n = index - BasicCount;
    const int row = n / HuesPerRow;
    const int saturation[] = {255, 160, 255, 96};
    const int value[] = {255, 255, 160, 224};
    const QColor c = QColor::fromHsv((n % HuesPerRow) * 360 / HuesPerRow, saturation[row], value[row]);
    return {static_cast<unsigned char>(c.red()), static_cast<unsigned char>(c.green()),
            static_cast<unsigned char>(c.blue())};
}

} // namespace

void ColorMap::rgb(int index, unsigned char& red, unsigned char& green, unsigned char& blue)
{
    Rgb c{0, 0, 0};
    if (index >= 0 && index < BasicCount)
        c = BasicColors[index];
    else if (index >= BasicCount && index < NumColors)
        c = customColor(index);
    red = c.r;
    green = c.g;
    blue = c.b;
}

bool ColorMap::isValidIndex(int index)
{
    return (index >= 0 && index < NumColors) || index == -1 || (index <= -3 && index >= -10);
}

} // namespace kernel
} // namespace orrery
