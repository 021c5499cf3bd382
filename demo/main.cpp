#include <chrono>
#include <cstdio>
#include <cstring>
#include <memory>
#include <QApplication>
#include <QCommandLineParser>
#include "demo/HostStyle.h"
#include "demo/MainWindow.h"
#include "demo/PlotExport.h"
#include "demo/PlotView.h"
#include "demo/SessionAutosave.h"
#include "demo/StdinJournal.h"
#include "demo/Tour.h"
#include "demo/TourWatchdog.h"
#include "demo/Translations.h"
#include "demo/WindowLayout.h"
#include "host/kernel/FileLoad.h"
#include "host/kernel/Kernel.h"

namespace {

// A run that only writes files needs no display: without one it draws offscreen.
void drawOffscreenWithoutDisplay(int argc, char** argv)
{
    if (qEnvironmentVariableIsSet("QT_QPA_PLATFORM") || qEnvironmentVariableIsSet("DISPLAY")
        || qEnvironmentVariableIsSet("WAYLAND_DISPLAY"))
        return;
    for (int i = 1; i < argc; ++i)
        for (const char* option : {"--export", "--tour", "--save-session"}) {
            const size_t length = std::strlen(option);
            if (!std::strncmp(argv[i], option, length) && (argv[i][length] == '\0' || argv[i][length] == '='))
                qputenv("QT_QPA_PLATFORM", "offscreen");
        }
}

} // namespace

int main(int argc, char** argv)
{
    drawOffscreenWithoutDisplay(argc, argv);
    QApplication app(argc, argv);
    QApplication::setApplicationName("orrery-demo");
    QApplication::setApplicationDisplayName("Orrery Prompts Demo");
    QApplication::setApplicationVersion(ORRERY_VERSION);

    QCommandLineParser parser;
    parser.setApplicationDescription("Runs the prompt dialogs on the stand-in host, with a live plot of the "
                                     "current frame.");
    parser.addHelpOption();
    parser.addVersionOption();
    parser.addPositionalArgument("file", "Data file to load instead of the built-in sample data set.", "[FILE]");
    const QCommandLineOption replay("replay", "Play the session (a journal) back after loading.", "session");
    const QCommandLineOption replayChanged("replay-changed",
                                           "Load the data files a session names even where their content has changed.");
    const QCommandLineOption saveSession(
        "save-session", "Save the session as it stands after the file and the replay to <out>, then exit.", "out");
    const QCommandLineOption recover(
        "recover", "Restore the session autosaved by a run that did not end normally, without asking.");
    const QCommandLineOption commands("stdin", "Play journal lines read from standard input as they arrive.");
    const QCommandLineOption tour("tour",
                                  "Open, drive and photograph every dialog and the plot after it, saving the "
                                  "pictures in <dir>, then exit.",
                                  "dir");
    const QCommandLineOption plotType("plot-type", "Start with plot type <n>: 1 3D, 2 2D or 3 XY line.", "n");
    const QCommandLineOption language("lang",
                                      "Show the texts in <language> (for example de); the default follows the "
                                      "system locale, en shows the original English texts.",
                                      "language");
    const QCommandLineOption exportPlot("export",
                                        "Write the plot to <file> (.png, .svg or .pdf) after loading the file and "
                                        "any replay, then exit.",
                                        "file");
    const QCommandLineOption dpi("dpi", "With --export to a PNG: <n> dots per inch (96 is one pixel a screen pixel).",
                                 "n", "96");
    parser.addOptions(
        {replay, replayChanged, saveSession, recover, commands, tour, plotType, language, exportPlot, dpi});
    parser.process(app);
    for (const QString& problem : Translations::install(app, parser.value(language)))
        std::fprintf(stderr, "orrery-demo: %s\n", qPrintable(problem));

    const QStringList files = parser.positionalArguments();
    if (files.size() > 1) {
        std::fprintf(stderr, "orrery-demo: give at most one data file.\n");
        return 2;
    }
    long type = 0;
    if (parser.isSet(plotType)) {
        bool number = false;
        type = parser.value(plotType).toLong(&number);
        if (!number || type < 1 || type > 3) {
            std::fprintf(stderr, "orrery-demo: --plot-type takes 1 (3D), 2 (2D) or 3 (XY line).\n");
            return 2;
        }
    }

    // A dialog nobody closes would keep a tour waiting for ever.
    std::unique_ptr<TourWatchdog> watchdog;
    if (parser.isSet(tour))
        watchdog = std::make_unique<TourWatchdog>(std::chrono::seconds(60));

    MainWindow window;
    const bool exporting = parser.isSet(exportPlot);
    const bool touring = parser.isSet(tour) || exporting;
    // A run without anyone at the keyboard never waits for an answer.
    const bool headless = touring || parser.isSet(saveSession);
    if (parser.isSet(saveSession) || exporting)
        orrery::kernel::Kernel::instance().messageBoxes().setHandler([](const std::string& text, int) {
            std::fprintf(stderr, "orrery-demo: %s\n", text.c_str());
            return 0;
        });
    if (parser.isSet(replayChanged))
        window.setChangedFiles(MainWindow::ChangedFiles::Load);
    else if (headless)
        window.setChangedFiles(MainWindow::ChangedFiles::Refuse);
    orrery::kernel::FileLoad::loadSample(
        "Sample", Translations::text(QT_TRANSLATE_NOOP("DialogCatalog", "Heated plate")).toStdString());
    // A tour or an export is a demonstration, not a session worth keeping.
    bool restoreFailed = false;
    const std::unique_ptr<SessionAutosave> autosave =
        touring ? nullptr : SessionAutosave::startFor(window, parser.isSet(recover), headless, restoreFailed);
    // Without a window to show them in, failures end the run.
    if (watchdog && !files.isEmpty())
        watchdog->at("loading " + files.front());
    const bool fileLoaded =
        files.isEmpty() || (touring ? Tour::loadFile(window, files.front()) : window.loadFile(files.front()));
    if (!fileLoaded && touring)
        return 1;
    std::string error;
    if (type && !HostStyle::setInteger("FrameLayout/PlotType", type, &error)) {
        std::fprintf(stderr, "orrery-demo: %s\n", error.c_str());
        if (touring)
            return 1;
    }
    if (parser.isSet(saveSession)) {
        const bool saved = !restoreFailed && fileLoaded
                           && (!parser.isSet(replay) || window.replayJournal(parser.value(replay)))
                           && window.saveJournal(parser.value(saveSession));
        // The autosave stays only while it holds a restored session saved nowhere else.
        if (autosave && (saved || restoreFailed || !parser.isSet(recover)))
            autosave->finish();
        return saved ? 0 : 1;
    }
    if (watchdog && parser.isSet(replay))
        watchdog->at("replaying " + parser.value(replay));
    if (parser.isSet(replay) && !window.replayJournal(parser.value(replay)) && touring)
        return 1;
    if (exporting) {
        bool number = false;
        const double dotsPerInch = parser.value(dpi).toDouble(&number);
        if (!number || !(dotsPerInch >= 24 && dotsPerInch <= 2400)) {
            std::fprintf(stderr, "orrery-demo: --dpi takes a number from 24 to 2400.\n");
            return 2;
        }
        QString problem;
        if (!PlotExport::write(window.plot(), parser.value(exportPlot), window.plot().sizeHint(), dotsPerInch / 96.0,
                               &problem)) {
            std::fprintf(stderr, "orrery-demo: %s\n", qPrintable(problem));
            return 1;
        }
        return 0;
    }
    if (touring)
        return Tour::run(window, parser.value(tour), *watchdog);
    if (parser.isSet(commands))
        new StdinJournal(&window);
    WindowLayout::restore(window);
    window.show();
    const int code = app.exec();
    WindowLayout::save(window);
    if (autosave)
        autosave->finish();
    return code;
}
