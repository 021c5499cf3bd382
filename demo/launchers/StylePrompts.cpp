#include "demo/launchers/StylePrompts.h"
#include "demo/common/Translations.h"

#include <QComboBox>
#include <QDialogButtonBox>
#include <QLineEdit>
#include <QRadioButton>
#include "demo/common/DemoUser.h"
#include "host/kernel/OrrUtilHost.h"
#include "prompts/prompt/RGBColorOptsDialog.h"
#include "prompts/prompt/ScatterSizeFontDialog.h"

StylePrompts::RGBColorOptsDialog* StylePrompts::openRGBColorOpts(QWidget& parent)
{
    return RGBColorOptsDialog::getInstance(parent);
}

void StylePrompts::driveRGBColorOpts(RGBColorOptsDialog& d)
{
    d.findChild<QComboBox*>("rGBColorOpts_Mode_CmbBox")->setCurrentIndex(RGBMode_SpecifyRG);
    d.findChild<QComboBox*>("rGBColorOpts_RedVariable_CmbBox")->setCurrentIndex(0);
    OrrUtilUndoPerform();
}

QString StylePrompts::rgbColorOptsAnswers(RGBColorOptsDialog& d)
{
    return Translations::text(QT_TRANSLATE_NOOP("DialogCatalog", "mode = \"%1\", red = %2, green = %3, blue = %4"))
        .arg(d.findChild<QComboBox*>("rGBColorOpts_Mode_CmbBox")->currentText(),
             d.findChild<QComboBox*>("rGBColorOpts_RedVariable_CmbBox")->currentText(),
             d.findChild<QComboBox*>("rGBColorOpts_GreenVariable_CmbBox")->currentText(),
             d.findChild<QComboBox*>("rGBColorOpts_BlueVariable_CmbBox")->currentText());
}

StylePrompts::ScatterSizeFontDialog* StylePrompts::openScatterSizeFont(QWidget& parent)
{
    return ScatterSizeFontDialog::getInstance(parent);
}

void StylePrompts::driveScatterSizeFont(ScatterSizeFontDialog& d)
{
    DemoUser::click(*d.findChild<QRadioButton*>("scatterSizeFont_SizeCm_radioButton"));
    for (QAbstractButton* button : d.findChild<QDialogButtonBox*>()->buttons())
        if (button->objectName() == "scatterSizeFont_RecalculateSize_Button")
            DemoUser::click(*button);
}

QString StylePrompts::scatterSizeFontAnswers(ScatterSizeFontDialog& d)
{
    return Translations::text(
               QT_TRANSLATE_NOOP("DialogCatalog", "%1: variable = %2, cm/magnitude = %3, grid units/magnitude = %4"))
        .arg(d.windowTitle(), d.findChild<QComboBox*>("scatterSizeFont_SizeVaiable_ComboBox")->currentText(),
             d.findChild<QLineEdit*>("scatterSizeFont_SizeCm_1Text")->text(),
             d.findChild<QLineEdit*>("scatterSizeFont_SizeGrid_1Text")->text());
}
