#include "demo/launchers/SimplePrompts.h"

#include <QCoreApplication>
#include <QLineEdit>
#include <QListView>
#include <QRadioButton>
#include <QSpinBox>
#include <algorithm>
#include "demo/common/DemoUser.h"
#include "demo/scene/HostStyle.h"
#include "host/kernel/OrrUtilHost.h"
#include "demo/common/Translations.h"
#include "platform/loaders/DataLoaderRepository.h"
#include "prompts/prompt/AnchorAlignmentDialog.h"
#include "prompts/prompt/ChooseLoaderDialog.h"
#include "prompts/prompt/EnterASCIICharacterDialog.h"
#include "prompts/prompt/EnterTextStringDialog.h"
#include "prompts/prompt/EnterThreeIntValuesDialog.h"

namespace {

QString yesNo(bool value)
{
    return value ? Translations::text(QT_TRANSLATE_NOOP("DialogCatalog", "yes"))
                 : Translations::text(QT_TRANSLATE_NOOP("DialogCatalog", "no"));
}

} // namespace

SimplePrompts::EnterTextStringDialog* SimplePrompts::openTextString(QWidget& parent)
{
    const QString title = QString::fromStdString(HostStyle::text("FrameLayout/Title"));
    auto* dialog = new EnterTextStringDialog(
        parent, QCoreApplication::translate("DialogCatalog", "Title of the new frame:"),
        title.isEmpty() ? QCoreApplication::translate("DialogCatalog", "Frame 1") : title, "", false);
    dialog->setModal(true); // the host runs this prompt modally; it sets no modality itself
    return dialog;
}

void SimplePrompts::driveTextString(EnterTextStringDialog& d)
{
    DemoUser::typeInto(*d.findChild<QLineEdit*>("EnterTextString_lineEdit"), "Pressure over time");
}

QString SimplePrompts::textStringAnswers(EnterTextStringDialog& d)
{
    return Translations::text(QT_TRANSLATE_NOOP("DialogCatalog", "text = \"%1\"")).arg(d.text());
}

SimplePrompts::EnterThreeIntValuesDialog* SimplePrompts::openThreeInts(QWidget& parent)
{
    // The range drawn now; an open end shows as the number of points of the largest zone.
    long points = 1;
    for (int zone = 1; zone <= OrrUtilDataSetGetNumZones(); ++zone)
        points = std::max(points, long(OrrUtilZoneGetNumPoints(zone)));
    const long end = HostStyle::integer("IndexRange/End");
    return EnterThreeIntValuesDialog::getInstance(
        parent, HostStyle::integer("IndexRange/Begin", -1, 1), end > 0 ? end : points,
        HostStyle::integer("IndexRange/Skip", -1, 1),
        Translations::forDialog(QT_TRANSLATE_NOOP("DialogCatalog", "Index Range")), "",
        Translations::forDialog(QT_TRANSLATE_NOOP("DialogCatalog", "&Begin")),
        Translations::forDialog(QT_TRANSLATE_NOOP("DialogCatalog", "&End")),
        Translations::forDialog(QT_TRANSLATE_NOOP("DialogCatalog", "&Skip")), 1, 1, 1);
}

void SimplePrompts::driveThreeInts(EnterThreeIntValuesDialog& d)
{
    DemoUser::typeInto(*d.findChild<QSpinBox*>("value2"), "250");
    DemoUser::typeInto(*d.findChild<QSpinBox*>("value3"), "5");
    DemoUser::moveFocusTo(*d.findChild<QSpinBox*>("value1"));
}

QString SimplePrompts::threeIntsAnswers(EnterThreeIntValuesDialog& d)
{
    return Translations::text(QT_TRANSLATE_NOOP("DialogCatalog", "values = %1, %2, %3"))
        .arg(d.value1())
        .arg(d.value2())
        .arg(d.value3());
}

SimplePrompts::EnterASCIICharacterDialog* SimplePrompts::openAsciiCharacter(QWidget& parent)
{
    return EnterASCIICharacterDialog::getInstance(parent, "A", true, Font_Greek);
}

void SimplePrompts::driveAsciiCharacter(EnterASCIICharacterDialog& d)
{
    DemoUser::typeInto(*d.findChild<QLineEdit*>("selectedCharacter_lineEdit"), "q");
    DemoUser::click(*d.findChild<QRadioButton*>("useGreekFont_RadioButton"));
}

QString SimplePrompts::asciiCharacterAnswers(EnterASCIICharacterDialog& d)
{
    return Translations::text(QT_TRANSLATE_NOOP("DialogCatalog", "character = '%1', type face = %2, base font = %3"))
        .arg(QString::fromStdString(d.selectedChar()))
        .arg(int(d.typeFaceOverride()))
        .arg(yesNo(d.useBaseFont()));
}

SimplePrompts::AnchorAlignmentDialog* SimplePrompts::openAnchorAlignment(QWidget& parent)
{
    return AnchorAlignmentDialog::getInstance(
        AnchorAlignment_e(HostStyle::integer("FrameLayout/TitleAnchor", -1, AnchorAlignment_TopCenter)), parent);
}

void SimplePrompts::driveAnchorAlignment(AnchorAlignmentDialog& d)
{
    DemoUser::click(*d.findChild<QRadioButton*>("anchorAlignment_TopLeft_RadioButton"));
}

QString SimplePrompts::anchorAlignmentAnswers(AnchorAlignmentDialog& d)
{
    return Translations::text(QT_TRANSLATE_NOOP("DialogCatalog", "alignment = %1")).arg(int(d.selectedAlignment()));
}

SimplePrompts::ChooseLoaderDialog* SimplePrompts::openLoaderChooser(QWidget& parent)
{
    return ChooseLoaderDialog::getInstance(
        parent, orrery::sdk::DataLoaderRepository::getInstance().loadersForExtension("dat"), {".dat"});
}

void SimplePrompts::driveLoaderChooser(ChooseLoaderDialog& d)
{
    // The list shows the loaders' names in the user's language.
    DemoUser::selectRow(*d.findChild<QListView*>("LoadersList"),
                        QCoreApplication::translate("ChooseLoader", "Text table"));
}

QString SimplePrompts::loaderChooserAnswers(ChooseLoaderDialog& d)
{
    const ChooseLoaderDialog::LoaderPtr loader = d.selectedLoader();
    return Translations::text(QT_TRANSLATE_NOOP("DialogCatalog", "loader = %1"))
        .arg(loader ? QCoreApplication::translate("ChooseLoader", loader->properties().name.c_str())
                    : Translations::text(QT_TRANSLATE_NOOP("DialogCatalog", "(none)")));
}
