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
#include <sstream>
#include <variant>
#include <boost/make_shared.hpp>
#include <boost/signals2/connection.hpp>
#include "core/property/Property.h"
#include "demo/ColorButtonDemoDialog.h"
#include "demo/DemoUser.h"
#include "platform/kernel/KernelTestSupport.h"
#include "platform/kernel/OrrUtil.h"
#include "platform/loaders/DataLoaderRepository.h"
#include "platform/sdk/StateChangeEventObservable.h"
#include "prompts/prompt/AddonsVariableSelectDialog.h"
#include "prompts/prompt/AnchorAlignmentDialog.h"
#include "prompts/prompt/AxisVariableSelectDialog.h"
#include "prompts/prompt/ChooseLoaderDialog.h"
#include "prompts/prompt/ColorChooserDialog.h"
#include "prompts/prompt/EnterASCIICharacterDialog.h"
#include "prompts/prompt/EnterTextStringDialog.h"
#include "prompts/prompt/EnterThreeIntValuesDialog.h"
#include "prompts/prompt/RGBColorOptsDialog.h"
#include "prompts/prompt/RGBVariableSelectDialog.h"
#include "prompts/prompt/ScatterSizeFontDialog.h"
#include "prompts/prompt/VectorVariableSelectDialog.h"
#include "prompts/prompt/ZoneSelectDialog.h"

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

// The style paths written while a dialog is open, in order, each once.
class StyleWrites
{
public:
    void start()
    {
        m_paths.clear();
        m_connection = orrery::sdk::integration::StateChangeEventObservable::getInstance().signal().connect(
            [this](const orrery::sdk::integration::StateChangeEventInterface& event) {
                const QString path = QString::fromStdString(event.stylePath().join("/"));
                if (event.code() == StateChange_Style && !m_paths.contains(path))
                    m_paths << path;
            });
    }
    // "path = value" for each path written, or "no style written".
    QString report()
    {
        m_connection.disconnect();
        QStringList lines;
        for (const QString& path : m_paths)
            lines << QString("%1 = %2").arg(path, valueAt(path));
        return lines.isEmpty() ? QString("no style written") : "wrote " + lines.join(", ");
    }

private:
    static QString valueAt(const QString& path)
    {
        orrery::toolbox::StringList names;
        for (const QString& name : path.split('/'))
            names.append(name.toStdString());
        try
        {
            return std::visit(
                [](const auto& value) {
                    std::ostringstream text;
                    text << value;
                    return QString::fromStdString(text.str());
                },
                orrery::kernel::testing::KernelTestSupport::styleValue(names));
        }
        catch (const std::exception&)
        {
            return "?";
        }
    }

    QStringList m_paths;
    boost::signals2::scoped_connection m_connection;
};

StyleWrites styleWrites;

// Variable dialogs share one live dialog; the host drops the last one so that
// each menu entry gets a dialog for its own style values.
void dropVariableDialog()
{
    delete VariableSelectDialog::liveInstance();
}

// Axis variables of the current frame
VariableSelectDialog* openAxisVariables(QWidget& parent)
{
    dropVariableDialog();
    styleWrites.start();
    return AxisVariableSelectDialog::getInstance(parent);
}
void driveAxisVariables(VariableSelectDialog& d)
{
    DemoUser::choose(*d.findChild<QComboBox*>("var2_comboBox"), "Temperature");
}
QString variableAnswers(VariableSelectDialog&)
{
    return styleWrites.report();
}

// Vector components, for the current frame's plot type
VariableSelectDialog* openVectorVariables(QWidget& parent)
{
    dropVariableDialog();
    styleWrites.start();
    return VectorVariableSelectDialog::getInstance(parent, OrrUtilFrameGetPlotType());
}
void driveVectorVariables(VariableSelectDialog& d)
{
    DemoUser::choose(*d.findChild<QComboBox*>("var1_comboBox"), "Pressure");
}

// RGB channel variables, as the colour chooser's RGB button asks them
VariableSelectDialog* openRGBVariables(QWidget& parent)
{
    dropVariableDialog();
    styleWrites.start();
    return RGBVariableSelectDialog::getInstance(parent);
}
void driveRGBVariables(VariableSelectDialog& d)
{
    DemoUser::choose(*d.findChild<QComboBox*>("var3_comboBox"), "Y");
}

// An add-on's two input variables, kept in the add-on's own properties
struct AddonInputs
{
    boost::shared_ptr<orrery::Property<int>> source = boost::make_shared<orrery::Property<int>>(1);
    boost::shared_ptr<orrery::Property<int>> weight = boost::make_shared<orrery::Property<int>>(2);
    boost::shared_ptr<orrery::Property<int>> unused = boost::make_shared<orrery::Property<int>>(0);
};
AddonInputs& addonInputs()
{
    static AddonInputs inputs;
    return inputs;
}
AddonsVariableSelectDialog* openAddonVariables(QWidget& parent)
{
    styleWrites.start();
    AddonInputs& inputs = addonInputs();
    return AddonsVariableSelectDialog::getInstance(parent, "Choose the add-on's input variables.", "&Source:",
                                                   "&Weight:", nullptr, inputs.source, inputs.weight, inputs.unused);
}
void driveAddonVariables(AddonsVariableSelectDialog& d)
{
    DemoUser::choose(*d.findChild<QComboBox*>("var2_comboBox"), "Pressure");
}
QString addonAnswers(AddonsVariableSelectDialog&)
{
    return QString("source = %1, weight = %2, %3")
        .arg(addonInputs().source->getValue())
        .arg(addonInputs().weight->getValue())
        .arg(styleWrites.report());
}

// Zone prompt, as a mapping asks for its source zone
ZoneSelectDialog* openZone(QWidget& parent)
{
    return ZoneSelectDialog::getInstance(parent, 1);
}
void driveZone(ZoneSelectDialog& d)
{
    auto* list = d.findChild<QListView*>("Zone_Source_MList");
    if (list->model()->rowCount() > 1)
        DemoUser::selectRow(*list, list->model()->index(1, 0).data().toString());
}
QString zoneAnswers(ZoneSelectDialog& d)
{
    return QString("zone = %1").arg(d.selectedZone());
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
    dropVariableDialog();
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
// Picks a mode and a red variable, then takes the variable back with the
// host's undo: the open dialog follows.
void driveRGBColorOpts(RGBColorOptsDialog& d)
{
    d.findChild<QComboBox*>("rGBColorOpts_Mode_CmbBox")->setCurrentIndex(RGBMode_SpecifyRG);
    d.findChild<QComboBox*>("rGBColorOpts_RedVariable_CmbBox")->setCurrentIndex(0);
    OrrUtilUndoPerform();
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
        entry(QT_TRANSLATE_NOOP("DialogCatalog", "Axis Variables..."), openAxisVariables, driveAxisVariables, B::Ok, variableAnswers),
        entry(QT_TRANSLATE_NOOP("DialogCatalog", "Vector Variables..."), openVectorVariables, driveVectorVariables, B::Ok, variableAnswers),
        entry(QT_TRANSLATE_NOOP("DialogCatalog", "RGB Variables..."), openRGBVariables, driveRGBVariables, B::Ok, variableAnswers),
        entry(QT_TRANSLATE_NOOP("DialogCatalog", "Add-on Variables..."), openAddonVariables, driveAddonVariables, B::Ok, addonAnswers),
        entry(QT_TRANSLATE_NOOP("DialogCatalog", "Select Zone..."), openZone, driveZone, B::Ok, zoneAnswers),
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
