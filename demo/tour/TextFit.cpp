#include "demo/tour/TextFit.h"

#include <QAbstractButton>
#include <QLabel>

namespace {

bool fits(const QLabel& label)
{
    if (label.text().isEmpty())
        return true;
    if (label.wordWrap())
        return label.height() >= label.heightForWidth(label.width());
    return label.width() >= label.minimumSizeHint().width() && label.height() >= label.minimumSizeHint().height();
}

bool fits(const QAbstractButton& button)
{
    if (button.text().isEmpty())
        return true;
    return button.width() >= button.minimumSizeHint().width();
}

// A layout may collapse a widget to nothing on purpose to keep it out of sight.
bool collapsed(const QWidget& widget)
{
    return widget.maximumWidth() == 0 || widget.maximumHeight() == 0;
}

QString describe(const QWidget& widget, const QString& text)
{
    return QString("%1 \"%2\" is %3 px wide, needs %4")
        .arg(widget.objectName().isEmpty() ? widget.metaObject()->className() : widget.objectName(), text)
        .arg(widget.width())
        .arg(widget.minimumSizeHint().width());
}

} // namespace

QStringList TextFit::clippedTexts(const QWidget& window)
{
    QStringList clipped;
    for (const QLabel* label : window.findChildren<QLabel*>())
        if (label->isVisibleTo(&window) && !collapsed(*label) && !fits(*label))
            clipped << describe(*label, label->text());
    for (const QAbstractButton* button : window.findChildren<QAbstractButton*>())
        if (button->isVisibleTo(&window) && !collapsed(*button) && !fits(*button))
            clipped << describe(*button, button->text());
    return clipped;
}
