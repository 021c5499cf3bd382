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
    void add(double x, double y, double value)
    {
        const long px = long((x - m_left) * m_ratio), py = long((y - m_top) * m_ratio);
        if (px < 0 || py < 0 || px >= m_width || py >= m_height)
            return;
        const size_t at = size_t(py * m_width + px);
        ++m_count[at];
        if (value > m_value[at])
            m_value[at] = float(value);
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
    const double logMost = std::log1p(double(most));
    for (long y = 0; y < m_height; ++y) {
        auto* line = reinterpret_cast<QRgb*>(picture.scanLine(int(y)));
        for (long x = 0; x < m_width; ++x) {
            const size_t at = size_t(y * m_width + x);
            if (!m_count[at])
                continue;
            if (m_value[at] >= 0.0f)
                line[x] = colourOf(double(m_value[at])) | 0xff000000u;
            else {
                // At least half opaque, fully where the most points crowd.
                const int alpha = int(255 * (0.5 + 0.5 * std::log1p(double(m_count[at])) / logMost));
                line[x] = qPremultiply(qRgba(qRed(colour), qGreen(colour), qBlue(colour), alpha));
            }
        }
    }
    return picture;
}
