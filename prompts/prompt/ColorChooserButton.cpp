#include "prompts/prompt/ColorChooserButton.h"

#include <QPainter>
#include <QStyle>
#include <QStyleOptionFocusRect>
#include "platform/common/HostCall.h"
#include "platform/kernel/OrrUtil.h"

namespace orrery {
namespace dialogs {
namespace prompt {

ColorChooserButton::ColorChooserButton(QWidget* parent, int colorIndex) : QToolButton(parent), m_colorIndex(colorIndex)
{
    unsigned char red = 0, green = 0, blue = 0;
    HostCall::run("OrrUtilColorMapGetBasicColorRGB",
                  [&] { OrrUtilColorMapGetBasicColorRGB(colorIndex, &red, &green, &blue); });
    m_color = QColor(red, green, blue);
    setAttribute(Qt::WA_OpaquePaintEvent);
}

QSize ColorChooserButton::sizeHint() const
{
    return QSize(20, 20);
}

void ColorChooserButton::paintEvent(QPaintEvent*)
{
    QPainter painter(this);
    painter.fillRect(rect(), m_color);
    if (isDown()) {
        // A pressed swatch shows a sunken edge in the contrasting shade.
        painter.setPen(m_color.lightness() > 127 ? Qt::black : Qt::white);
        painter.drawRect(rect().adjusted(0, 0, -1, -1));
    }
    if (hasFocus()) {
        QStyleOptionFocusRect option;
        option.initFrom(this);
        option.rect = rect().adjusted(2, 2, -2, -2);
        option.backgroundColor = m_color;
        style()->drawPrimitive(QStyle::PE_FrameFocusRect, &option, &painter, this);
    }
}

} // namespace prompt
} // namespace dialogs
} // namespace orrery
