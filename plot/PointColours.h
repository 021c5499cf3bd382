#pragma once
#include <algorithm>
#include <array>
#include <cmath>
#include <QColor>

// The colour of each point of one zone's layer: one colour, a colour map over
// the colouring variable's values, or red, green and blue from three columns.
// A plain value: the columns are the caller's and must outlive it.
class PointColours
{
public:
    // The variable a colour map follows and the range it spreads over.
    struct Contour
    {
        int var = 0;
        int map = 0;
        double min = 0.0;
        double max = 1.0;
    };
    // How red, green and blue follow their columns: each spread over [min, max];
    // modes 1 to 3 leave blue, green or red to be calculated from the other two.
    struct Channels
    {
        std::array<const double*, 3> values{{nullptr, nullptr, nullptr}};
        int mode = 0;
        double min = 0.0;
        double max = 1.0;
    };

    explicit PointColours(QRgb fixed = qRgb(0, 0, 0)) : m_fixed(fixed) {}
    // Along the map by values; fixed when there are none (the key still shows the map).
    static PointColours mapped(QRgb fixed, const double* values, const Contour& contour);
    static PointColours rgb(QRgb fixed, const Channels& channels);

    bool varies() const { return m_kind != Kind::Fixed; }
    bool ramped() const { return m_kind == Kind::Ramp; }
    // Asked to follow the colour map, whether or not it has values to follow.
    bool onMap() const { return m_onMap; }
    bool sameAs(const PointColours& other) const
    {
        return m_kind == other.m_kind && m_onMap == other.m_onMap && m_fixed == other.m_fixed;
    }
    QRgb fixed() const { return m_fixed; }
    // A ramped point's place on the map, from 0 to 1; negative when its value is missing.
    double valueAt(long i) const;
    QRgb at(long i) const;
    // The colour of a point coloured by red, green and blue; in the header, as a
    // raster asks it of millions of points.
    QRgb rgbAt(long i) const
    {
        const Channels& ch = m_channels;
        const double span = ch.max > ch.min ? ch.max - ch.min : 1.0;
        double c[3];
        for (int k = 0; k < 3; ++k)
            c[k] = ch.values[size_t(k)] ? std::clamp((ch.values[size_t(k)][i] - ch.min) / span, 0.0, 1.0) : 0.0;
        if (ch.mode >= 1 && ch.mode <= 3) {
            const int calculated = ch.mode == 1 ? 2 : ch.mode == 2 ? 1 : 0;
            c[calculated] = std::clamp(1.0 - c[(calculated + 1) % 3] - c[(calculated + 2) % 3], 0.0, 1.0);
        }
        if (!std::isfinite(c[0]) || !std::isfinite(c[1]) || !std::isfinite(c[2]))
            return qRgb(128, 128, 128);
        return qRgb(int(c[0] * 255), int(c[1] * 255), int(c[2] * 255));
    }

private:
    enum class Kind
    {
        Fixed,
        RGB,
        Ramp
    };
    Kind m_kind = Kind::Fixed;
    bool m_onMap = false;
    Contour m_contour;
    Channels m_channels;
    QRgb m_fixed = 0;
};
