#include "prompts/propertybindings/ColorButtonPropertyBinding.h"

#include <QAbstractButton>
#include <QColor>
#include <QIcon>
#include <QPixmap>
#include "platform/common/HostCall.h"
#include "platform/kernel/OrrUtil.h"
#include "prompts/prompt/ColorChooserDialog.h"

namespace orrery {
namespace sdk {
namespace ui {
namespace dialogs {
namespace propertybindings {

using orrery::dialogs::prompt::ColorChooserDialog;

namespace {
const int SwatchSize = 12;
} // namespace

ColorButtonPropertyBinding::ColorButtonPropertyBinding(QAbstractButton* button,
                                                       const boost::shared_ptr<PropertyAbstract<int>>& property,
                                                       bool enableVarColoring)
    : QObjectPropertyBinding<int>(property, WidgetUpdateMode_OnIdle), m_button(button),
      m_enableVarColoring(enableVarColoring)
{
    init();
    updateWidget();
}

ColorButtonPropertyBinding::ColorButtonPropertyBinding(QAbstractButton* button,
                                                       propertymanager::UIStylePropertyAbstract<int>& property,
                                                       bool enableVarColoring)
    : QObjectPropertyBinding<int>(property, WidgetUpdateMode_OnIdle), m_button(button),
      m_enableVarColoring(enableVarColoring)
{
    init();
    updateWidget();
}

ColorButtonPropertyBinding::~ColorButtonPropertyBinding() = default;

void ColorButtonPropertyBinding::init()
{
    connect(m_button, SIGNAL(clicked()), this, SLOT(onButtonClicked()));
}

void ColorButtonPropertyBinding::updateWidget()
{
    const int colorIndex = property().getValue();
    const std::string name = ColorChooserDialog::colorToString(colorIndex, true);
    if (colorIndex < 0 && !name.empty())
        m_button->setIcon(QIcon(QPixmap(ColorChooserDialog::multiColorIconPath())));
    else {
        QColor fill(Qt::transparent); // an index the colour map does not know
        if (!name.empty()) {
            unsigned char red = 0, green = 0, blue = 0;
            HostCall::run("OrrUtilColorMapGetBasicColorRGB",
                          [&] { OrrUtilColorMapGetBasicColorRGB(colorIndex, &red, &green, &blue); });
            fill = QColor(red, green, blue, 255);
        }
        // One pixmap per pixel density, so that the swatch stays sharp on a
        // high-density screen rather than being scaled up.
        QIcon swatch;
        for (int ratio = 1; ratio <= 2; ++ratio) {
            QPixmap pixels(SwatchSize * ratio, SwatchSize * ratio);
            pixels.setDevicePixelRatio(ratio);
            pixels.fill(fill);
            swatch.addPixmap(pixels);
        }
        m_button->setIconSize(QSize(SwatchSize, SwatchSize));
        m_button->setIcon(swatch);
    }
    m_button->setText(ColorChooserDialog::colorDisplayName(colorIndex, true));
}

void ColorButtonPropertyBinding::updateVisibility()
{
    m_button->setVisible(isPropertyVisible());
}

void ColorButtonPropertyBinding::updateSensitivity()
{
    m_button->setEnabled(isPropertySensitive());
}

void ColorButtonPropertyBinding::onButtonClicked()
{
    ColorChooserDialog* chooser = ColorChooserDialog::getInstance(*m_button, m_enableVarColoring);
    chooser->exec();
    // The new swatch arrives through the property's change signal, on idle.
    if (chooser->result() == QDialog::Accepted)
        writePropertyReportingRejection(chooser->selectedColor());
}

} // namespace propertybindings
} // namespace dialogs
} // namespace ui
} // namespace sdk
} // namespace orrery
