#pragma once
// A paint device that keeps what a painter is asked to draw (texts, points,
// the colours of pens and brushes) instead of pixels, so that tests can say
// what a picture shows without comparing pixels.
#include <set>
#include <QPaintDevice>
#include <QPaintEngine>
#include <QPainterPath>
#include <QStringList>
#include <QTextItem>

namespace testsupport {

// What was drawn.
struct Drawn
{
    struct Text
    {
        QString text;
        QPointF at;
    };
    std::vector<Text> texts;
    long points = 0;
    long shapes = 0; // ellipses, paths and polygons filled
    long images = 0;
    double shapeArea = 0;   // of the boxes around the ellipses and paths drawn, in square pixels
    std::set<QRgb> colours; // of every pen and solid brush used to draw

    bool drewText(const QString& text) const
    {
        for (const Text& t : texts)
            if (t.text == text)
                return true;
        return false;
    }
    const Text* textStarting(const QString& start) const
    {
        for (const Text& t : texts)
            if (t.text.startsWith(start))
                return &t;
        return nullptr;
    }
};

class RecordingEngine : public QPaintEngine, public Drawn
{
public:
    RecordingEngine() : QPaintEngine(QPaintEngine::AllFeatures) {}

    bool begin(QPaintDevice*) override { return true; }
    bool end() override { return true; }
    Type type() const override { return QPaintEngine::User; }
    void updateState(const QPaintEngineState& state) override
    {
        if (state.state() & DirtyPen)
            m_pen = state.pen().color().rgb();
        if (state.state() & DirtyBrush)
            m_brush = state.brush().style() == Qt::SolidPattern ? state.brush().color().rgb() : 0;
    }
    void drawPixmap(const QRectF&, const QPixmap&, const QRectF&) override { ++images; }
    void drawImage(const QRectF&, const QImage&, const QRectF&, Qt::ImageConversionFlags) override { ++images; }
    void drawTextItem(const QPointF& at, const QTextItem& item) override
    {
        texts.push_back({item.text(), at});
        colours.insert(m_pen);
    }
    void drawPoints(const QPointF*, int count) override
    {
        points += count;
        colours.insert(m_pen);
    }
    void drawPoints(const QPoint*, int count) override { points += count; }
    void drawEllipse(const QRectF& box) override
    {
        shapeArea += box.width() * box.height();
        filled();
    }
    void drawPath(const QPainterPath& path) override
    {
        shapeArea += path.boundingRect().width() * path.boundingRect().height();
        filled();
    }
    void drawPolygon(const QPointF*, int, PolygonDrawMode) override { filled(); }
    void drawRects(const QRectF*, int) override {}
    void drawLines(const QLineF*, int) override {}

private:
    void filled()
    {
        ++shapes;
        if (m_brush)
            colours.insert(m_brush);
    }
    QRgb m_pen = 0;
    QRgb m_brush = 0;
};

class RecordingDevice : public QPaintDevice
{
public:
    explicit RecordingDevice(QSize size) : m_size(size) {}
    QPaintEngine* paintEngine() const override { return &m_engine; }
    const Drawn& record() const { return m_engine; }

protected:
    int metric(PaintDeviceMetric metric) const override
    {
        switch (metric) {
        case PdmWidth: return m_size.width();
        case PdmHeight: return m_size.height();
        case PdmDpiX:
        case PdmDpiY:
        case PdmPhysicalDpiX:
        case PdmPhysicalDpiY: return 96;
        case PdmDevicePixelRatio: return 1;
        case PdmDevicePixelRatioScaled: return int(QPaintDevice::devicePixelRatioFScale());
        case PdmDepth: return 32;
        case PdmNumColors: return 0x7fffffff;
        default: return m_size.width() * 254 / 960; // the millimetre sizes
        }
    }

private:
    QSize m_size;
    mutable RecordingEngine m_engine;
};

} // namespace testsupport
