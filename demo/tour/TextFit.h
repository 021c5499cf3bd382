#pragma once
#include <QStringList>

class QWidget;

// Finds texts a layout has squeezed: labels and buttons shown smaller than
// they need to show their whole text (a long translation, a large font, a
// high scale factor).
class TextFit
{
public:
    // One line per cut-off text, naming the widget and the text.
    static QStringList clippedTexts(const QWidget& window);
};
