#pragma once
// The texts of an SVG drawing as a reader sees them: each with the box its
// font's metrics give it on the page, after the transforms of its groups.
#include <vector>
#include <QRectF>
#include <QString>

struct SvgText
{
    QString text;
    QRectF box;          // ascent to descent, start to advance, in page units
    bool turned = false; // drawn at an angle (a vertical axis title)
    bool bold = false;
};

// Empty, with a reason in error, when the file cannot be read as SVG.
std::vector<SvgText> readSvgTexts(const QString& path, QString* error);
