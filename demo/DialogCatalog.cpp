#include "demo/DialogCatalog.h"

#include <sstream>
#include <variant>
#include <QComboBox>
#include <QLineEdit>
#include <QListView>
#include <QRadioButton>
#include <QSpinBox>
#include "demo/DemoUser.h"
#include "platform/loaders/DataLoaderRepository.h"
#include <boost/make_shared.hpp>
#include <boost/signals2/connection.hpp>
#include "core/property/Property.h"
#include "platform/kernel/OrrUtil.h"
#include "platform/sdk/StateChangeEventObservable.h"
#include "platform/kernel/KernelTestSupport.h"
#include "prompts/prompt/AddonsVariableSelectDialog.h"
#include "prompts/prompt/AnchorAlignmentDialog.h"
#include "prompts/prompt/AxisVariableSelectDialog.h"
#include "prompts/prompt/RGBVariableSelectDialog.h"
#include "prompts/prompt/VectorVariableSelectDialog.h"
#include "prompts/prompt/ZoneSelectDialog.h"
#include "prompts/prompt/ChooseLoaderDialog.h"
#include "prompts/prompt/EnterASCIICharacterDialog.h"
#include "prompts/prompt/EnterTextStringDialog.h"
#include "prompts/prompt/EnterThreeIntValuesDialog.h"

using namespace orrery::dialogs::prompt;

namespace {

QString yesNo(bool value)
{
    return value ? "yes" : "no";
}

// Text string prompt
EnterTextStringDialog* openTextString(QWidget& parent)
{
    auto* dialog = new EnterTextStringDialog(parent, "Title of the new frame:", "Frame 1", "", false);
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
    return EnterThreeIntValuesDialog::getInstance(parent, 1, 100, 1, "Index Range", "", "&Begin", "&End", "&Skip", 1,
                                                  1, 1);
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

} // namespace

const std::vector<DialogCatalog::Entry>& DialogCatalog::entries()
{
    using B = QDialogButtonBox;
    static const std::vector<Entry> all = {
        entry("Text String...", openTextString, driveTextString, B::Ok, textStringAnswers),
        entry("Three Integer Values...", openThreeInts, driveThreeInts, B::Ok, threeIntsAnswers),
        entry("ASCII Character...", openAsciiCharacter, driveAsciiCharacter, B::Ok, asciiCharacterAnswers),
        entry("Anchor Alignment...", openAnchorAlignment, driveAnchorAlignment, B::Cancel, anchorAlignmentAnswers),
        entry("Choose Loader...", openLoaderChooser, driveLoaderChooser, B::Ok, loaderChooserAnswers),
        entry("Axis Variables...", openAxisVariables, driveAxisVariables, B::Ok, variableAnswers),
        entry("Vector Variables...", openVectorVariables, driveVectorVariables, B::Ok, variableAnswers),
        entry("RGB Variables...", openRGBVariables, driveRGBVariables, B::Ok, variableAnswers),
        entry("Add-on Variables...", openAddonVariables, driveAddonVariables, B::Ok, addonAnswers),
        entry("Select Zone...", openZone, driveZone, B::Ok, zoneAnswers),
    };
    return all;
}
