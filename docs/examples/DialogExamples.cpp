#include "docs/examples/DialogExamples.h"
#include <QCoreApplication>
#include <QLibraryInfo>
#include <QTranslator>
#include "platform/loaders/DataLoaderRepository.h"
#include "prompts/prompt/AxisVariableSelectDialog.h"
#include "prompts/prompt/ChooseLoaderDialog.h"
#include "prompts/prompt/EnterTextStringDialog.h"
#include "prompts/prompt/EnterThreeIntValuesDialog.h"
#include "prompts/prompt/RGBColorOptsDialog.h"
#include "prompts/prompt/ZoneSelectDialog.h"

using namespace orrery::dialogs::prompt;

namespace examples {

//! [plain value]
IndexRange askForIndexRange(QWidget& mainWindow)
{
    // The first call makes the dialog; a later call returns it as the user left it.
    EnterThreeIntValuesDialog* dialog = EnterThreeIntValuesDialog::getInstance(mainWindow, 1, 100, 1, "Index range", "",
                                                                               "&Begin", "&End", "&Skip", 1, 1, 1);
    dialog->launch(); // modal: returns when the user closes it
    IndexRange range;
    range.accepted = dialog->result() == QDialog::Accepted;
    if (range.accepted) {
        range.begin = dialog->value1();
        range.end = dialog->value2();
        range.skip = dialog->value3();
    }
    return range;
}
//! [plain value]

//! [open with]
void pickZone(QWidget& mainWindow, int currentZone, std::function<void(int zone)> use)
{
    ZoneSelectDialog* dialog = ZoneSelectDialog::getInstance(mainWindow, currentZone);
    // Returns at once; the function is called once, when this run ends. A connection
    // to finished() would stay and be called again by the dialog's later runs.
    dialog->openWith([dialog, use](int result) {
        if (result == QDialog::Accepted)
            use(dialog->selectedZone());
    });
}
//! [open with]

//! [text string]
std::string askForFrameTitle(QWidget& mainWindow)
{
    // The one dialog a host constructs itself, for one question at a time.
    EnterTextStringDialog dialog(mainWindow, "Title of the new frame:", "Frame 1", "", false);
    if (dialog.exec() != QDialog::Accepted)
        return std::string();
    return dialog.text().toStdString();
}
//! [text string]

//! [variables]
bool assignAxisVariables(QWidget& mainWindow)
{
    // Choices live in the kernel's style state; OK writes them as one undoable step.
    VariableSelectDialog* dialog = AxisVariableSelectDialog::getInstance(mainWindow);
    dialog->launch();
    return dialog->result() == QDialog::Accepted;
}
//! [variables]

//! [style]
void showRGBColoringOptions(QWidget& mainWindow)
{
    // Modeless: every edit reaches the style state at once; the dialog offers Close.
    RGBColorOptsDialog* dialog = RGBColorOptsDialog::getInstance(mainWindow);
    dialog->launch(); // returns at once
}
//! [style]

//! [loader chooser]
std::string chooseLoaderFor(QWidget& mainWindow, const std::string& extension)
{
    orrery::sdk::DataLoaderRepository& loaders = orrery::sdk::DataLoaderRepository::getInstance();
    ChooseLoaderDialog* dialog =
        ChooseLoaderDialog::getInstance(mainWindow, loaders.loadersForExtension(extension), {extension});
    dialog->launch();
    // The choice is remembered per extension in the host's settings store.
    if (dialog->result() != QDialog::Accepted || !dialog->selectedLoader())
        return std::string();
    return dialog->selectedLoader()->properties().name;
}
//! [loader chooser]

//! [translations]
void installGermanTranslation()
{
    // The dialogs' texts are built into the library as resources; OK, Cancel and Help
    // are Qt's own, in Qt's translations.
    static QTranslator ours, qt;
#if QT_VERSION >= QT_VERSION_CHECK(6, 0, 0)
    const QString qtTranslations = QLibraryInfo::path(QLibraryInfo::TranslationsPath);
#else
    const QString qtTranslations = QLibraryInfo::location(QLibraryInfo::TranslationsPath);
#endif
    if (ours.load(":/translations/orrery_de.qm"))
        QCoreApplication::installTranslator(&ours);
    if (qt.load("qtbase_de", qtTranslations))
        QCoreApplication::installTranslator(&qt);
    // Dialogs built before follow: they retranslate on the language change.
}
//! [translations]

} // namespace examples
