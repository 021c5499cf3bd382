#include "demo/launchers/ColorPrompts.h"
#include "demo/common/Translations.h"

#include <QDialogButtonBox>
#include <QTimer>
#include <QToolButton>
#include "demo/launchers/ColorButtonDemoDialog.h"
#include "demo/common/DemoUser.h"
#include "demo/launchers/SelectionPrompts.h"
#include "prompts/prompt/ColorChooserDialog.h"

ColorPrompts::ColorChooserDialog* ColorPrompts::openColorChooser(QWidget& parent)
{
    return ColorChooserDialog::getInstance(parent, true);
}

ColorPrompts::ColorChooserDialog* ColorPrompts::openColorChooserWithoutVarColoring(QWidget& parent)
{
    return ColorChooserDialog::getInstance(parent, false);
}

void ColorPrompts::pickGridColor(ColorChooserDialog& d)
{
    DemoUser::click(*d.findChild<QToolButton*>("colorButton_12"));
}

void ColorPrompts::pickMultiColor(ColorChooserDialog& d)
{
    DemoUser::click(*d.findChild<QToolButton*>("C3"));
}

void ColorPrompts::pickRed(ColorChooserDialog& d)
{
    DemoUser::click(*d.findChild<QToolButton*>("colorButton_2"));
}

void ColorPrompts::pickRGB(ColorChooserDialog& d)
{
    SelectionPrompts::dropVariableDialog();
    QTimer::singleShot(0, &d, [&d] {
        for (QDialog* asked : d.findChildren<QDialog*>())
            if (asked->isVisible())
                DemoUser::press(*asked, QDialogButtonBox::Ok);
    });
    DemoUser::click(*d.findChild<QToolButton*>("RGB"));
    if (d.isVisible()) // the variables were not given: the user gives up
        DemoUser::press(d, QDialogButtonBox::Close);
}

QString ColorPrompts::colorChooserAnswers(ColorChooserDialog& d)
{
    return Translations::text(QT_TRANSLATE_NOOP("DialogCatalog", "color = %1 (%2)"))
        .arg(d.selectedColor())
        .arg(ColorChooserDialog::colorDisplayName(d.selectedColor(), false));
}

ColorButtonDemoDialog* ColorPrompts::openColorButton(QWidget& parent)
{
    return new ColorButtonDemoDialog(parent);
}

void ColorPrompts::driveColorButton(ColorButtonDemoDialog& d)
{
    QTimer::singleShot(0, &d, [] {
        if (ColorChooserDialog* chooser = ColorChooserDialog::liveInstance())
            DemoUser::click(*chooser->findChild<QToolButton*>("colorButton_4"));
    });
    DemoUser::click(*d.colorButton());
}

QString ColorPrompts::colorButtonAnswers(ColorButtonDemoDialog& d)
{
    return Translations::text(QT_TRANSLATE_NOOP("DialogCatalog", "mesh color of zone 1 = %1, button shows \"%2\""))
        .arg(d.meshColor())
        .arg(d.colorButton()->text());
}
