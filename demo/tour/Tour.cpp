#include "demo/tour/Tour.h"
#include <QRegularExpression>

#include <cstdio>
#include <QCoreApplication>
#include <QDir>
#include <QImage>
#include <QListView>
#include <QPixmap>
#include <QTimer>
#include "demo/common/DemoUser.h"
#include "demo/window/MainWindow.h"
#include "demo/session/Session.h"
#include "demo/window/PlotExport.h"
#include "demo/scene/HostPlotView.h"
#include "demo/tour/TextFit.h"
#include "demo/tour/TourWatchdog.h"
#include "platform/common/IdleQueue.h"
#include "prompts/prompt/ChooseLoaderDialog.h"

using orrery::dialogs::prompt::ChooseLoaderDialog;

namespace {

// "Color Chooser, Multi Color..." is saved as color-chooser-multi-color.png.
QString fileNameFor(const QString& dialogName)
{
    QString name = dialogName.toLower();
    name.replace(QRegularExpression("[^a-z0-9]+"), "-");
    name.remove(QRegularExpression("^-+|-+$"));
    return name + ".png";
}

void settle()
{
    QCoreApplication::processEvents();
    orrery::sdk::ui::common::IdleQueue::instance().flush();
}

bool save(QWidget& widget, const QString& path)
{
    const bool saved = widget.grab().save(path);
    std::printf("  %s %s\n", saved ? "screenshot" : "could not save", qPrintable(path));
    return saved;
}

// The plot as the dialog left it, so that the pictures show what each dialog did.
bool savePlot(const HostPlotView& plot, const QString& path)
{
    QString error;
    const bool saved = PlotExport::write(plot.scene(), plot.viewpoint(), path, plot.size().expandedTo(QSize(640, 480)),
                                         plot.devicePixelRatioF(), &error);
    std::printf("  %s\n", saved ? qPrintable("plot " + path) : qPrintable(error));
    return saved;
}

// A dialog the tour could not close (its button missing or disabled) would wait
// for a user for ever: it is closed here and the tour fails.
bool close(QDialog& dialog, QDialogButtonBox::StandardButton button, const QString& name)
{
    DemoUser::press(dialog, button);
    if (!dialog.isVisible())
        return true;
    std::fprintf(stderr, "%s: the tour could not close the dialog\n", qPrintable(name));
    dialog.reject();
    return false;
}

} // namespace

bool Tour::loadFile(Session& session, const QString& path)
{
    QTimer::singleShot(0, &session, [] {
        ChooseLoaderDialog* chooser = ChooseLoaderDialog::liveInstance();
        if (!chooser || !chooser->isVisible())
            return;
        settle();
        auto* list = chooser->findChild<QListView*>("LoadersList");
        for (int row = 0; !chooser->selectedLoader() && row < list->model()->rowCount(); ++row) {
            DemoUser::selectRow(*list, list->model()->index(row, 0).data().toString());
            settle();
        }
        std::printf("Loader chooser for %s: %s\n", qPrintable(chooser->windowTitle()),
                    chooser->selectedLoader() ? chooser->selectedLoader()->properties().name.c_str() : "(none)");
        DemoUser::press(*chooser, QDialogButtonBox::Ok);
    });
    const bool loaded = session.loadFile(path);
    std::printf("%s %s\n", loaded ? "Loaded" : "Could not load", qPrintable(path));
    return loaded;
}

int Tour::run(MainWindow& window, const QString& screenshotDir, TourWatchdog& watchdog)
{
    watchdog.at("the start of the tour");
    if (!QDir().mkpath(screenshotDir)) {
        std::fprintf(stderr, "Cannot create %s\n", qPrintable(screenshotDir));
        return 1;
    }
    const QDir dir(screenshotDir);
    window.show();
    settle();
    bool allSaved = savePlot(window.plot(), dir.filePath("plot-start.png"));
    bool allFit = true;
    bool allClosed = true;
    for (const DialogCatalog::Entry& entry : DialogCatalog::entries()) {
        std::printf("%s\n", qPrintable(entry.name));
        watchdog.at(entry.name + ": opening it");
        const QString line = window.runDialog(entry, [&](DialogCatalog::Dialog& dialog) {
            watchdog.at(entry.name + ": driving it");
            settle();
            entry.drive(dialog);
            settle();
            allSaved &= save(dialog, dir.filePath(fileNameFor(entry.name)));
            for (const QString& clipped : TextFit::clippedTexts(dialog)) {
                std::fprintf(stderr, "%s: text cut off: %s\n", qPrintable(entry.name), qPrintable(clipped));
                allFit = false;
            }
            watchdog.at(entry.name + ": closing it");
            allClosed &= close(dialog, entry.closeWith, entry.name);
        });
        std::printf("  %s\n", qPrintable(line));
        watchdog.at(entry.name + ": drawing the plot after it");
        settle();
        allSaved &= savePlot(window.plot(), dir.filePath(fileNameFor(entry.name).replace(".png", "-plot.png")));
    }
    settle();
    allSaved &= save(window, dir.filePath("main-window.png"));
    std::fflush(stdout);
    return allSaved && allFit && allClosed ? 0 : 1;
}
