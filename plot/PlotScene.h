#pragma once
#include <algorithm>
#include <cmath>
#include <limits>
#include <memory>
#include <string>
#include <vector>
#include <QString>
#include <QColor>
#include <QStringList>
#include "plot/PointColours.h"

// What a figure shows, as a plain value: the axes with the range of the values
// to be drawn, the zones and their layers (values, colours, sizes, vectors),
// the colouring, title, symbol and index range. The columns it points to are
// its maker's: they live at least as long as keepAlive, or else as the scene.
struct PlotScene
{
    struct Axis
    {
        int var = 0;
        QString name;  // of the variable
        QString title; // shown beside the axis: the style's, else the name
        double min = 0.0;
        double max = 1.0;
        bool log = false;
        bool integers = false;               // every value drawn is a whole number
        std::vector<std::string> categories; // named values 1, 2, ... when few
    };
    struct Zone
    {
        int zone = 0;
        QString name;
        long points = 0;
        const double* values[3] = {nullptr, nullptr, nullptr};
        std::vector<const double*> lineValues; // of each of lineVars
        const double* sizes = nullptr;         // of the symbols; one size when none
        const double* vectors[3] = {nullptr, nullptr, nullptr};
        PointColours meshColours;
        PointColours scatterColours;
        bool mesh = false;
        bool scatter = false;
        bool faded = false; // another zone is picked out
    };

    bool threeD = false;
    bool lines = false;
    // The Y variables an XY line plot draws, each a line: the Y axis's first.
    std::vector<int> lineVars;
    QStringList lineNames;
    int dims = 2;
    Axis axes[3];
    QString title;
    int anchor = 1; // the title's place: row * 3 + column in a grid of three by three, top left 0
    long begin = 1, end = 0, skip = 1;
    PointColours::Contour contour;
    int automaticContourVar = 0; // what colours the points when no variable is chosen
    QString contourName;
    bool contourIntegers = false;
    std::vector<std::string> contourCategories;
    bool vectors = false;
    QString sizeName; // of the variable that sizes the symbols; empty for one size
    double relativeSize = 1.0;
    bool sizeInCm = false;
    double mediumPercent = 2.5;
    QString symbol;
    // The colours of an XY line plot's further lines, in turn.
    std::vector<QRgb> linePalette;
    std::vector<Zone> zones;
    // Why nothing can be drawn; empty when something can.
    QString problem;
    // What is drawn otherwise than the style asks, one line each.
    QStringList notes;
    // What keeps the columns alive while a picture is drawn, on another thread
    // perhaps and after the maker has moved on to other data.
    std::shared_ptr<const void> keepAlive;

    // Symbols beyond this many in a zone would hide the data they mark.
    static constexpr long MostSymbols = 20000;
    // Values larger than this, or nearer to 0 than the smallest normal double,
    // are left out: the arithmetic of ranges and ticks cannot hold them.
    static constexpr double MostMagnitude = 1e306;
    // Finite and neither too large nor too small to draw.
    static bool drawable(double v)
    {
        const double size = std::abs(v);
        return size <= MostMagnitude && (size >= std::numeric_limits<double>::min() || v == 0.0);
    }

    // How many of a zone's `points` are within the chosen range.
    long countIn(long points) const
    {
        const long last = end > 0 ? std::min(end, points) : points;
        return last >= begin ? (last - begin) / skip + 1 : 0;
    }
    // Calls visit(i) for every point index of a zone of `points` within the chosen range.
    template <typename Visit>
    void forEachIndex(long points, const Visit& visit) const
    {
        const long last = end > 0 ? std::min(end, points) : points;
        for (long i = begin - 1; i < last; i += skip)
            visit(i);
    }
    // How many points all the zones have within the chosen range.
    long countAll() const;
    bool anyScatter() const;
    // The colour of a zone's line of the line-th Y variable: the zone's own for the first,
    // then the palette's that differ from it.
    QRgb lineColour(size_t line, QRgb zoneColour) const;
    bool anyRamp() const;
};
