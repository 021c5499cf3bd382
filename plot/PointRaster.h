#pragma once
#include <algorithm>
#include <cmath>
#include <vector>
#include <QImage>
#include <QRectF>

// Many points on few pixels: each pixel of the axes box keeps how many points
// fell on it and the largest colouring value among them, so that ten million
// points cost one pass and one image instead of ten million marks.
class PointRaster
{
public:
    // box: the axes box in logical pixels; ratio: device pixels per logical pixel.
    PointRaster(const QRectF& box, double ratio);

    // x, y in logical pixels; value from 0 to 1 for a coloured point, negative for a plain one.
    void add(double x, double y, double value) { addPixel((x - m_left) * m_ratio, (y - m_top) * m_ratio, value); }
    // The same in the raster's own pixels, from its top left corner; NaN is left out.
    void addPixel(double px, double py, double value)
    {
        if (!(px >= 0.0 && py >= 0.0 && px < double(m_width) && py < double(m_height)))
            return;
        const size_t at = size_t(long(py) * m_width + long(px));
        ++m_count[at];
        if (value > m_value[at])
            m_value[at] = float(value);
    }
    // How a data value becomes a raster pixel on each axis: pixel = scale * value + offset.
    struct Mapping
    {
        double scale[2], offset[2];
    };
    Mapping mapping(double sx, double ox, double sy, double oy) const
    {
        return {{sx * m_ratio, sy * m_ratio}, {(ox - m_left) * m_ratio, (oy - m_top) * m_ratio}};
    }
    // Plain points in colour, darker where they crowd; coloured ones by colourOf(largest value).
    template <typename ColourOf>
    QImage image(QRgb colour, const ColourOf& colourOf) const;

private:
    QImage makeImage() const;

    double m_left, m_top, m_ratio;
    long m_width, m_height;
    std::vector<unsigned> m_count;
    std::vector<float> m_value;
};

template <typename ColourOf>
QImage PointRaster::image(QRgb colour, const ColourOf& colourOf) const
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
            else {
                const unsigned count = m_count[at];
                const int alpha = count < alphas.size() ? alphas[count] : alphaOf(count);
                line[x] = qPremultiply(qRgba(qRed(colour), qGreen(colour), qBlue(colour), alpha));
            }
        }
    }
    return picture;
}
