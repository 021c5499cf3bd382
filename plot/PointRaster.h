#pragma once
#include <algorithm>
#include <cmath>
#include <vector>
#include <QImage>
#include <QRectF>

// Many points on few pixels: each pixel of the axes box keeps how many points
// fell on it and either the largest colouring value among them or the colour
// of the last, so that ten million points cost one pass and one image instead
// of ten million marks.
class PointRaster
{
public:
    // box: the axes box in logical pixels; ratio: device pixels per logical pixel.
    PointRaster(const QRectF& box, double ratio);

    // A point at px, py in the raster's own pixels, from its top left corner;
    // value from 0 to 1 for a point coloured along a map, negative for a plain
    // one. Points outside, or at NaN, are left out.
    void addPixel(double px, double py, double value)
    {
        if (const size_t at = indexOf(px, py); at != Outside && value > m_value[at])
            m_value[at] = float(value);
    }
    // The same for a point of its own colour: a pixel takes the last one's.
    void addColoured(double px, double py, QRgb colour)
    {
        if (const size_t at = indexOf(px, py); at != Outside)
            m_colour[at] = colour | 0xff000000u;
    }
    // How a value becomes a raster pixel on each axis: pixel = scale * value + offset.
    struct Mapping
    {
        double scale[2], offset[2];
    };
    // From a position in logical pixels where scale and offset give them from the values.
    Mapping mapping(double sx, double ox, double sy, double oy) const
    {
        return {{sx * m_ratio, sy * m_ratio}, {(ox - m_left) * m_ratio, (oy - m_top) * m_ratio}};
    }
    // Plain points in colour, darker where they crowd; those on a map by
    // colourOf(largest value); those of their own colour by recolour(colour).
    template <typename ColourOf, typename Recolour>
    QImage image(QRgb colour, const ColourOf& colourOf, const Recolour& recolour) const;

private:
    static constexpr size_t Outside = size_t(-1);
    size_t indexOf(double px, double py)
    {
        if (!(px >= 0.0 && py >= 0.0 && px < double(m_width) && py < double(m_height)))
            return Outside;
        const size_t at = size_t(long(py) * m_width + long(px));
        ++m_count[at];
        return at;
    }
    QImage makeImage() const;

    double m_left, m_top, m_ratio;
    long m_width, m_height;
    std::vector<unsigned> m_count;
    std::vector<float> m_value;
    std::vector<QRgb> m_colour; // 0 where no point brought its own
};

template <typename ColourOf, typename Recolour>
QImage PointRaster::image(QRgb colour, const ColourOf& colourOf, const Recolour& recolour) const
{
    QImage picture = makeImage();
    unsigned most = 1;
    for (unsigned c : m_count)
        most = std::max(most, c);
    // At least half opaque, fully where the most points crowd; looked up for the common counts.
    const double logMost = std::log1p(double(most));
    auto alphaOf = [logMost](unsigned count) { return int(255 * (0.5 + 0.5 * std::log1p(double(count)) / logMost)); };
    std::vector<int> alphas(std::min(most, 4096u) + 1);
    for (unsigned c = 0; c < alphas.size(); ++c)
        alphas[c] = alphaOf(c);
    for (long y = 0; y < m_height; ++y) {
        auto* line = reinterpret_cast<QRgb*>(picture.scanLine(int(y)));
        for (long x = 0; x < m_width; ++x) {
            const size_t at = size_t(y * m_width + x);
            if (!m_count[at])
                continue;
            if (m_value[at] >= 0.0f)
                line[x] = colourOf(double(m_value[at])) | 0xff000000u;
            else if (m_colour[at])
                line[x] = recolour(m_colour[at]) | 0xff000000u;
            else {
                const unsigned count = m_count[at];
                const int alpha = count < alphas.size() ? alphas[count] : alphaOf(count);
                line[x] = qPremultiply(qRgba(qRed(colour), qGreen(colour), qBlue(colour), alpha));
            }
        }
    }
    return picture;
}
