#pragma once
#include <array>
#include <QColor>

// The colour of each point of one zone's layer: a basic colour, a colour map
// over the colouring variable, or red, green and blue from three variables,
// as the colour index of the layer says.
class PointColours
{
public:
    // The colour chooser's "RGB" entry: red, green and blue from three variables.
    static constexpr int RGBColoring = -6;

    // The variable a colour map follows and the range it spreads over.
    struct Contour
    {
        int var = 0;
        int map = 0;
        double min = 0.0;
        double max = 1.0;
    };

    PointColours(int colorIndex, int zone, const Contour& contour);

    bool varies() const { return m_kind != Kind::Fixed; }
    bool ramped() const { return m_kind == Kind::Ramp; }
    QRgb fixed() const { return m_fixed; }
    // A ramped point's place on the map, from 0 to 1; negative when its value is missing.
    double valueAt(long i) const;
    QRgb at(long i) const;

private:
    enum class Kind
    {
        Fixed,
        RGB,
        Ramp
    };
    Kind m_kind = Kind::Fixed;
    int m_mode = 0;
    Contour m_contour;
    double m_min = 0.0;
    double m_max = 1.0;
    std::array<const double*, 3> m_channel{{nullptr, nullptr, nullptr}};
    QRgb m_fixed = 0;
};
