#pragma once
#include <QColor>
#include <QString>

// The colour maps a variable colours points with: a value from 0 to 1 gives a colour.
class ColourRamp
{
public:
    static constexpr int Count = 3;
    // The map's name in the user's language.
    static QString name(int map);
    static QRgb at(int map, double t);
};
