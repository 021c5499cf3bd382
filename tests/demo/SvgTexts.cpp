#include "tests/demo/SvgTexts.h"

#include <QFile>
#include <QFont>
#include <QFontMetricsF>
#include <QImage>
#include <QRegularExpression>
#include <QTransform>
#include <QXmlStreamReader>

namespace {

QTransform transformOf(const QXmlStreamAttributes& attributes)
{
    static const QRegularExpression matrix("matrix\\(([^)]*)\\)");
    const QRegularExpressionMatch match = matrix.match(attributes.value("transform").toString());
    if (!match.hasMatch())
        return QTransform();
    const QStringList n = match.captured(1).split(',');
    if (n.size() != 6)
        return QTransform();
    return QTransform(n[0].toDouble(), n[1].toDouble(), n[2].toDouble(), n[3].toDouble(), n[4].toDouble(),
                      n[5].toDouble());
}

} // namespace

std::vector<SvgText> readSvgTexts(const QString& path, QString* error)
{
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly)) {
        *error = file.errorString();
        return {};
    }
    QImage page(1, 1, QImage::Format_RGB32);
    page.setDotsPerMeterX(qRound(96 / 0.0254));
    page.setDotsPerMeterY(qRound(96 / 0.0254));
    std::vector<SvgText> texts;
    std::vector<QTransform> groups{QTransform()};
    QXmlStreamReader svg(&file);
    while (!svg.atEnd()) {
        svg.readNext();
        if (svg.isEndElement() && svg.name() == QLatin1String("g") && groups.size() > 1)
            groups.pop_back();
        if (!svg.isStartElement())
            continue;
        const QXmlStreamAttributes a = svg.attributes();
        if (svg.name() == QLatin1String("g")) {
            groups.push_back(transformOf(a) * groups.back());
            continue;
        }
        if (svg.name() != QLatin1String("text"))
            continue;
        // Sizes are in page units, 96 to the inch.
        QFont font(a.value("font-family").toString());
        font.setPointSizeF(a.value("font-size").toDouble() * 72.0 / 96.0);
        const bool bold = a.value("font-weight").toInt() >= 600;
        font.setBold(bold);
        const QFontMetricsF metrics(font, &page);
        const double x = a.value("x").toDouble(), y = a.value("y").toDouble();
        SvgText text;
        text.text = svg.readElementText();
        text.bold = bold;
        const QRectF own(x, y - metrics.ascent(), metrics.horizontalAdvance(text.text),
                         metrics.ascent() + metrics.descent());
        text.box = groups.back().mapRect(own);
        text.turned = groups.back().isRotating();
        texts.push_back(text);
    }
    if (svg.hasError()) {
        *error = svg.errorString();
        return {};
    }
    return texts;
}
