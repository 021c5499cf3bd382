#include "plot/PointRaster.h"

#include <algorithm>
#include <cmath>

PointRaster::PointRaster(const QRectF& box, double ratio)
    : m_left(box.left()), m_top(box.top()), m_ratio(ratio), m_width(std::max(1L, long(std::ceil(box.width() * ratio)))),
      m_height(std::max(1L, long(std::ceil(box.height() * ratio)))), m_count(size_t(m_width * m_height), 0),
      m_value(size_t(m_width * m_height), -1.0f), m_colour(size_t(m_width * m_height), 0)
{}

QImage PointRaster::makeImage() const
{
    QImage picture(int(m_width), int(m_height), QImage::Format_ARGB32_Premultiplied);
    picture.fill(Qt::transparent);
    picture.setDevicePixelRatio(m_ratio);
    return picture;
}
