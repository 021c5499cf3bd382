#include "prompts/prompt/ColorChooserWidget.h"

#include <QEvent>
#include <QGridLayout>
#include "prompts/prompt/ColorChooserButton.h"
#include "prompts/prompt/ColorChooserDialog.h"

namespace orrery {
namespace dialogs {
namespace prompt {

namespace {
// The basic colours as the first row shows them: dark to light, then hues.
const int BasicColors[8] = {0, 7, 1, 5, 2, 4, 3, 6};
const int Columns = 8;
const int Swatches = 64;
} // namespace

ColorChooserWidget::ColorChooserWidget(QWidget* parent) : QWidget(parent)
{
    auto* grid = new QGridLayout(this);
    grid->setSpacing(2);
    grid->setContentsMargins(0, 0, 0, 0);
    for (int i = 0; i < Swatches; ++i) {
        auto* button = new ColorChooserButton(this, i < 8 ? BasicColors[i] : i);
        // Named by position, not by colour: host scripts address the grid cell.
        button->setObjectName(QString("colorButton_%1").arg(i));
        button->setSizePolicy(QSizePolicy::Preferred, QSizePolicy::Preferred);
        connect(button, &QAbstractButton::clicked, this, &ColorChooserWidget::colorButtonTriggered);
        grid->addWidget(button, i / Columns, i % Columns);
    }
    nameSwatches();
}

void ColorChooserWidget::nameSwatches()
{
    // Screen readers and tooltips announce the colour, not the cell.
    for (ColorChooserButton* button : findChildren<ColorChooserButton*>()) {
        const QString name = ColorChooserDialog::colorDisplayName(button->colorIndex(), false);
        button->setAccessibleName(name);
        button->setToolTip(name);
    }
}

void ColorChooserWidget::changeEvent(QEvent* event)
{
    QWidget::changeEvent(event);
    if (event->type() == QEvent::LanguageChange)
        nameSwatches();
}

boost::signals2::connection ColorChooserWidget::connectToColorSelectedSignal(const ColorSelectedSignal::slot_type& slot)
{
    return m_colorSelected.connect(slot);
}

void ColorChooserWidget::colorButtonTriggered()
{
    if (auto* button = qobject_cast<ColorChooserButton*>(sender()))
        m_colorSelected(button->colorIndex());
}

} // namespace prompt
} // namespace dialogs
} // namespace orrery
