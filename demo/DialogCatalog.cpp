#include "demo/DialogCatalog.h"

#include <QComboBox>
#include <QCoreApplication>
#include <QLineEdit>
#include <QListView>
#include <QPushButton>
#include <QRadioButton>
#include <QSpinBox>
#include <QTimer>
#include <QToolButton>
#include "demo/ColorButtonDemoDialog.h"
#include "demo/DemoUser.h"
#include "platform/loaders/DataLoaderRepository.h"
#include "prompts/prompt/AnchorAlignmentDialog.h"
#include "prompts/prompt/ChooseLoaderDialog.h"
#include "prompts/prompt/ColorChooserDialog.h"
#include "prompts/prompt/EnterASCIICharacterDialog.h"
#include "prompts/prompt/EnterTextStringDialog.h"
#include "prompts/prompt/EnterThreeIntValuesDialog.h"
#include "prompts/prompt/RGBColorOptsDialog.h"
#include "prompts/prompt/ScatterSizeFontDialog.h"

using namespace orrery::dialogs::prompt;

namespace {

// Texts the host hands to a dialog cross as Latin-1, which holds every
// letter of the demo's translations.
std::string translated(const char* text)
{
    return QCoreApplication::translate("DialogCatalog", text).toLatin1().toStdString();
}

QString yesNo(bool value)
{
    return value ? "yes" : "no";
}

// Text string prompt
EnterTextStringDialog* openTextString(QWidget& parent)
{
    auto* dialog = new EnterTextStringDialog(parent, QCoreApplication::translate("DialogCatalog", "Title of the new frame:"),
                                             QCoreApplication::translate("DialogCatalog", "Frame 1"), "", false);
    dialog->setModal(true); // the host runs this prompt modally; it sets no modality itself
    return dialog;
}
void driveTextString(EnterTextStringDialog& d)
{
    DemoUser::typeInto(*d.findChild<QLineEdit*>("EnterTextString_lineEdit"), "Pressure over time");
}
QString textStringAnswers(EnterTextStringDialog& d)
{
    return QString("text = \"%1\"").arg(d.text());
}

// Three integer values prompt
EnterThreeIntValuesDialog* openThreeInts(QWidget& parent)
{
    return EnterThreeIntValuesDialog::getInstance(parent, 1, 100, 1, translated(QT_TRANSLATE_NOOP("DialogCatalog", "Index Range")), "",
                                                  translated(QT_TRANSLATE_NOOP("DialogCatalog", "&Begin")),
                                                  translated(QT_TRANSLATE_NOOP("DialogCatalog", "&End")),
                                                  translated(QT_TRANSLATE_NOOP("DialogCatalog", "&Skip")), 1, 1, 1);
}
void driveThreeInts(EnterThreeIntValuesDialog& d)
{
    DemoUser::typeInto(*d.findChild<QSpinBox*>("value2"), "250");
    DemoUser::typeInto(*d.findChild<QSpinBox*>("value3"), "5");
    DemoUser::moveFocusTo(*d.findChild<QSpinBox*>("value1"));
}
QString threeIntsAnswers(EnterThreeIntValuesDialog& d)
{
    return QString("values = %1, %2, %3").arg(d.value1()).arg(d.value2()).arg(d.value3());
}

// ASCII character prompt
EnterASCIICharacterDialog* openAsciiCharacter(QWidget& parent)
{
    return EnterASCIICharacterDialog::getInstance(parent, "A", true, Font_Greek);
}
void driveAsciiCharacter(EnterASCIICharacterDialog& d)
{
    DemoUser::typeInto(*d.findChild<QLineEdit*>("selectedCharacter_lineEdit"), "q");
    DemoUser::click(*d.findChild<QRadioButton*>("useGreekFont_RadioButton"));
}
QString asciiCharacterAnswers(EnterASCIICharacterDialog& d)
{
    return QString("character = '%1', type face = %2, base font = %3")
        .arg(QString::fromStdString(d.selectedChar()))
        .arg(int(d.typeFaceOverride()))
        .arg(yesNo(d.useBaseFont()));
}

// Anchor alignment prompt
AnchorAlignmentDialog* openAnchorAlignment(QWidget& parent)
{
    return AnchorAlignmentDialog::getInstance(AnchorAlignment_BottomLeft, parent);
}
void driveAnchorAlignment(AnchorAlignmentDialog& d)
{
    DemoUser::click(*d.findChild<QRadioButton*>("anchorAlignment_MiddleCenter_RadioButton"));
}
QString anchorAlignmentAnswers(AnchorAlignmentDialog& d)
{
    return QString("alignment = %1").arg(int(d.selectedAlignment()));
}

// Loader chooser, as File > Open asks it for a ".dat" file
ChooseLoaderDialog* openLoaderChooser(QWidget& parent)
{
    return ChooseLoaderDialog::getInstance(
        parent, orrery::sdk::DataLoaderRepository::getInstance().loadersForExtension("dat"), {".dat"});
}
void driveLoaderChooser(ChooseLoaderDialog& d)
{
    DemoUser::selectRow(*d.findChild<QListView*>("LoadersList"), "Text table");
}
QString loaderChooserAnswers(ChooseLoaderDialog& d)
{
    const ChooseLoaderDialog::LoaderPtr loader = d.selectedLoader();
    return QString("loader = %1").arg(loader ? QString::fromStdString(loader->properties().name) : "(none)");
}

// Colour chooser, as a style dialog's colour button opens it. A click ends it,
// so the tour's drive is the last thing done in it.
ColorChooserDialog* openColorChooser(QWidget& parent)
{
    return ColorChooserDialog::getInstance(parent, true);
}
ColorChooserDialog* openColorChooserWithoutVarColoring(QWidget& parent)
{
    return ColorChooserDialog::getInstance(parent, false);
}
void pickGridColor(ColorChooserDialog& d)
{
    DemoUser::click(*d.findChild<QToolButton*>("colorButton_12"));
}
void pickMultiColor(ColorChooserDialog& d)
{
    DemoUser::click(*d.findChild<QToolButton*>("C3"));
}
void pickWhite(ColorChooserDialog& d)
{
    DemoUser::click(*d.findChild<QToolButton*>("colorButton_1"));
}
// Without channel variables the chooser asks for them first; the tour takes
// the variables the dialog proposes.
void pickRGB(ColorChooserDialog& d)
{
    QTimer::singleShot(0, &d, [&d] {
        for (QDialog* asked : d.findChildren<QDialog*>())
            if (asked->isVisible())
                DemoUser::press(*asked, QDialogButtonBox::Ok);
    });
    DemoUser::click(*d.findChild<QToolButton*>("RGB"));
    if (d.isVisible()) // the variables were not given: the user gives up
        DemoUser::press(d, QDialogButtonBox::Close);
}
QString colorChooserAnswers(ColorChooserDialog& d)
{
    return QString("color = %1 (%2)")
        .arg(d.selectedColor())
        .arg(QString::fromStdString(ColorChooserDialog::colorToString(d.selectedColor(), false)));
}

// A colour button bound to a style value
ColorButtonDemoDialog* openColorButton(QWidget& parent)
{
    return new ColorButtonDemoDialog(parent);
}
void driveColorButton(ColorButtonDemoDialog& d)
{
    QTimer::singleShot(0, &d, [] {
        if (ColorChooserDialog* chooser = ColorChooserDialog::liveInstance())
            DemoUser::click(*chooser->findChild<QToolButton*>("colorButton_4"));
    });
    DemoUser::click(*d.colorButton());
}
QString colorButtonAnswers(ColorButtonDemoDialog& d)
{
    return QString("mesh color of zone 1 = %1, button shows \"%2\"").arg(d.meshColor()).arg(d.colorButton()->text());
}

// RGB colouring options: modeless, every edit goes to the style at once
RGBColorOptsDialog* openRGBColorOpts(QWidget& parent)
{
    return RGBColorOptsDialog::getInstance(parent);
}
void driveRGBColorOpts(RGBColorOptsDialog& d)
{
    d.findChild<QComboBox*>("rGBColorOpts_Mode_CmbBox")->setCurrentIndex(RGBMode_SpecifyRG);
    d.findChild<QComboBox*>("rGBColorOpts_RedVariable_CmbBox")->setCurrentIndex(0);
}
QString rgbColorOptsAnswers(RGBColorOptsDialog& d)
{
    return QString("mode = \"%1\", red = %2, green = %3, blue = %4")
        .arg(d.findChild<QComboBox*>("rGBColorOpts_Mode_CmbBox")->currentText(),
             d.findChild<QComboBox*>("rGBColorOpts_RedVariable_CmbBox")->currentText(),
             d.findChild<QComboBox*>("rGBColorOpts_GreenVariable_CmbBox")->currentText(),
             d.findChild<QComboBox*>("rGBColorOpts_BlueVariable_CmbBox")->currentText());
}

// Scatter size and font: the size multiplier moved to centimetres and recalculated
ScatterSizeFontDialog* openScatterSizeFont(QWidget& parent)
{
    return ScatterSizeFontDialog::getInstance(parent);
}
void driveScatterSizeFont(ScatterSizeFontDialog& d)
{
    DemoUser::click(*d.findChild<QRadioButton*>("scatterSizeFont_SizeCm_radioButton"));
    for (QAbstractButton* button : d.findChild<QDialogButtonBox*>()->buttons())
        if (button->objectName() == "scatterSizeFont_RecalculateSize_Button")
            DemoUser::click(*button);
}
QString scatterSizeFontAnswers(ScatterSizeFontDialog& d)
{
    return QString("%1: variable = %2, cm/magnitude = %3, grid units/magnitude = %4")
        .arg(d.windowTitle(), d.findChild<QComboBox*>("scatterSizeFont_SizeVaiable_ComboBox")->currentText(),
             d.findChild<QLineEdit*>("scatterSizeFont_SizeCm_1Text")->text(),
             d.findChild<QLineEdit*>("scatterSizeFont_SizeGrid_1Text")->text());
}

} // namespace

const std::vector<DialogCatalog::Entry>& DialogCatalog::entries()
{
    using B = QDialogButtonBox;
    static const std::vector<Entry> all = {
        entry(QT_TRANSLATE_NOOP("DialogCatalog", "Text String..."), openTextString, driveTextString, B::Ok, textStringAnswers),
        entry(QT_TRANSLATE_NOOP("DialogCatalog", "Three Integer Values..."), openThreeInts, driveThreeInts, B::Ok, threeIntsAnswers),
        entry(QT_TRANSLATE_NOOP("DialogCatalog", "ASCII Character..."), openAsciiCharacter, driveAsciiCharacter, B::Ok, asciiCharacterAnswers),
        entry(QT_TRANSLATE_NOOP("DialogCatalog", "Anchor Alignment..."), openAnchorAlignment, driveAnchorAlignment, B::Cancel, anchorAlignmentAnswers),
        entry(QT_TRANSLATE_NOOP("DialogCatalog", "Choose Loader..."), openLoaderChooser, driveLoaderChooser, B::Ok, loaderChooserAnswers),
        entry(QT_TRANSLATE_NOOP("DialogCatalog", "Color Chooser..."), openColorChooser, pickGridColor, B::NoButton, colorChooserAnswers),
        entry(QT_TRANSLATE_NOOP("DialogCatalog", "Color Chooser, Multi Color..."), openColorChooser, pickMultiColor, B::NoButton, colorChooserAnswers),
        entry(QT_TRANSLATE_NOOP("DialogCatalog", "Color Chooser without Variable Coloring..."), openColorChooserWithoutVarColoring, pickWhite,
              B::NoButton, colorChooserAnswers),
        entry(QT_TRANSLATE_NOOP("DialogCatalog", "Color Chooser, RGB..."), openColorChooser, pickRGB, B::NoButton, colorChooserAnswers),
        entry(QT_TRANSLATE_NOOP("DialogCatalog", "Color Button..."), openColorButton, driveColorButton, B::Close, colorButtonAnswers),
        entry(QT_TRANSLATE_NOOP("DialogCatalog", "RGB Coloring Options..."), openRGBColorOpts, driveRGBColorOpts, B::Close, rgbColorOptsAnswers),
        entry(QT_TRANSLATE_NOOP("DialogCatalog", "Color Chooser, RGB with Channel Variables..."), openColorChooser, pickRGB, B::NoButton,
              colorChooserAnswers),
        entry(QT_TRANSLATE_NOOP("DialogCatalog", "Scatter Size and Font..."), openScatterSizeFont, driveScatterSizeFont, B::Close,
              scatterSizeFontAnswers),
    };
    return all;
}

QString DialogCatalog::title(const Entry& entry)
{
    return QCoreApplication::translate("DialogCatalog", entry.name.toUtf8().constData());
}
