#include "demo/DialogCatalog.h"

#include <QLineEdit>
#include <QListView>
#include <QRadioButton>
#include <QSpinBox>
#include "demo/DemoUser.h"
#include "platform/loaders/DataLoaderRepository.h"
#include "prompts/prompt/AnchorAlignmentDialog.h"
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
    };
    return all;
}
