// The tiny host at work: five dialogs opened on its own model, each driven as a
// user would (no display needed) and its answer printed as a host command reads it.
// Exits with 1 when an answer is not what the scripted user chose.
#include <fstream>
#include <functional>
#include <iostream>
#include <variant>
#include <QApplication>
#include <QComboBox>
#include <QListView>
#include <QRadioButton>
#include <QSpinBox>
#include <QTemporaryDir>
#include <QTimer>
#include "TinyHost.h"
#include "platform/loaders/DataLoaderRepository.h"
#include "platform/settings/ApplicationSettings.h"
#include "prompts/prompt/AnchorAlignmentDialog.h"
#include "prompts/prompt/AxisVariableSelectDialog.h"
#include "prompts/prompt/ChooseLoaderDialog.h"
#include "prompts/prompt/EnterThreeIntValuesDialog.h"
#include "prompts/prompt/ZoneSelectDialog.h"

using namespace orrery::dialogs::prompt;
using tinyhost::Host;

namespace {

int failures = 0;

void expect(bool holds, const std::string& what)
{
    if (!holds) {
        std::cout << "  unexpected: " << what << std::endl;
        ++failures;
    }
}

// Runs the dialog as a host command does; the user acts once it is up.
bool run(orrery::dialogs::common::QtDialogAbstract& dialog, const std::function<void()>& user)
{
    QTimer::singleShot(0, &dialog, [&dialog, user] {
        user();
        if (dialog.isVisible())
            dialog.reject();
    });
    dialog.launch();
    return dialog.result() == QDialog::Accepted;
}

void indexRange(QWidget& window)
{
    auto* dialog =
        EnterThreeIntValuesDialog::getInstance(window, 1, 3, 1, "Index Range", "", "&Begin", "&End", "&Skip", 1, 1, 1);
    const bool ok = run(*dialog, [dialog] {
        dialog->findChild<QSpinBox*>("value2")->setValue(2);
        dialog->accept();
    });
    std::cout << "Index range: begin " << dialog->value1() << ", end " << dialog->value2() << ", skip "
              << dialog->value3() << std::endl;
    expect(ok && dialog->value2() == 2, "the end the user typed");
}

void titleAnchor(QWidget& window)
{
    auto* dialog = AnchorAlignmentDialog::getInstance(AnchorAlignment_TopCenter, window);
    const bool ok = run(*dialog, [dialog] {
        dialog->findChild<QRadioButton*>("anchorAlignment_BottomRight_RadioButton")->click();
        dialog->accept();
    });
    std::cout << "Title anchor: " << int(dialog->selectedAlignment()) << std::endl;
    expect(ok && dialog->selectedAlignment() == AnchorAlignment_BottomRight, "the bottom right anchor");
}

void activeZone(QWidget& window)
{
    auto* dialog = ZoneSelectDialog::getInstance(window, 1);
    const bool ok = run(*dialog, [dialog] {
        QListView* list = dialog->findChild<QListView*>("Zone_Source_MList");
        list->setCurrentIndex(list->model()->index(1, 0));
        dialog->accept();
    });
    std::cout << "Zone: " << dialog->selectedZone() << " (" << Host::instance().zones[1] << ")" << std::endl;
    expect(ok && dialog->selectedZone() == 2, "the second zone");
}

void axisVariables(QWidget& window)
{
    VariableSelectDialog* dialog = AxisVariableSelectDialog::getInstance(window);
    const bool ok = run(*dialog, [dialog] {
        QComboBox* y = dialog->findChild<QComboBox*>("var2_comboBox");
        y->setCurrentIndex(y->findText("Density"));
        dialog->accept(); // writes both axes as one undoable step
    });
    const long y = std::get<long>(Host::instance().style.at("TwoDAxis/YDetail/VarNum"));
    std::cout << "Axis variables: Y is variable " << y << ", undo steps " << Host::instance().steps.size() << std::endl;
    expect(ok && y == 3 && Host::instance().steps.size() == 1, "Density on Y, in one step");
}

void loadTable(QWidget& window, const QTemporaryDir& folder)
{
    const std::string path = folder.filePath("wind.tiny").toStdString();
    std::ofstream(path) << "t speed\n0 1.5\n1 2.5\n2 4.0\n";
    orrery::sdk::DataLoaderRepository& loaders = orrery::sdk::DataLoaderRepository::getInstance();
    auto* dialog = ChooseLoaderDialog::getInstance(window, loaders.loadersForExtension("tiny"), {".tiny"});
    const bool ok = run(*dialog, [dialog] {
        QListView* list = dialog->findChild<QListView*>("LoadersList");
        const QModelIndexList rows = list->model()->match(list->model()->index(0, 0), Qt::DisplayRole, "Tiny table");
        if (!rows.isEmpty())
            list->setCurrentIndex(rows.first());
        dialog->accept(); // remembers the choice for *.tiny in the host's settings
    });
    std::string error;
    const bool loaded = ok && dialog->selectedLoader() && dialog->selectedLoader()->load(path, error);
    std::cout << "Loader: " << (ok ? dialog->selectedLoader()->properties().name : "none") << ", remembered as \""
              << orrery::sdk::ApplicationSettings::getInstance().getStringValue("LastLoaderUsedForExt_.tiny") << "\"; "
              << Host::instance().vars.size() << " variables loaded" << error << std::endl;
    expect(loaded && Host::instance().vars.size() == 2, "the table read by the chosen loader");
}

} // namespace

int main(int argc, char** argv)
{
    if (!qEnvironmentVariableIsSet("QT_QPA_PLATFORM"))
        qputenv("QT_QPA_PLATFORM", "offscreen");
    QApplication app(argc, argv);
    QWidget window;
    Host::instance().reset();
    tinyhost::registerLoaders();
    QTemporaryDir folder;

    indexRange(window);
    titleAnchor(window);
    activeZone(window);
    axisVariables(window);
    loadTable(window, folder);
    return failures == 0 ? 0 : 1;
}
