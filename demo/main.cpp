#include <chrono>
#include <cstdio>
#include <memory>
#include <QApplication>
#include "demo/window/CommandLine.h"
#include "demo/session/ConsoleMessages.h"
#include "demo/session/Session.h"
#include "demo/scene/HostStyle.h"
#include "demo/window/MainWindow.h"
#include "demo/window/PlotExport.h"
#include "demo/scene/HostScene.h"
#include "plot/PlotScene.h"
#include "plot/Render.h"
#include "demo/session/SessionAutosave.h"
#include "demo/session/StdinJournal.h"
#include "demo/tour/Tour.h"
#include "demo/tour/TourWatchdog.h"
#include "demo/common/Translations.h"
#include "demo/window/WindowLayout.h"
#include "host/kernel/FileLoad.h"
#include "host/kernel/Kernel.h"

namespace {

void say(const QString& text)
{
    std::fprintf(stderr, "orrery-demo: %s\n", qPrintable(text));
}

// Read before any application object exists, as Qt reads them later.
QStringList argumentsOf(int argc, char** argv)
{
    QStringList arguments;
    for (int i = 0; i < argc; ++i)
        arguments << QString::fromLocal8Bit(argv[i]);
    return arguments;
}

void setApplicationNames()
{
    QCoreApplication::setApplicationName("orrery-demo");
    QCoreApplication::setApplicationVersion(ORRERY_VERSION);
}

// A run that only writes files needs no display: without one it draws offscreen.
void drawOffscreenWithoutDisplay(const CommandLine& options)
{
    if (options.headless() && !qEnvironmentVariableIsSet("QT_QPA_PLATFORM") && !qEnvironmentVariableIsSet("DISPLAY")
        && !qEnvironmentVariableIsSet("WAYLAND_DISPLAY"))
        qputenv("QT_QPA_PLATFORM", "offscreen");
}

} // namespace

int main(int argc, char** argv)
{
    CommandLine options;
    const CommandLine::Outcome outcome = options.parse(argumentsOf(argc, argv));
    switch (outcome) {
    case CommandLine::Outcome::Refused: say(options.problem()); return 2;
    case CommandLine::Outcome::Help:
    case CommandLine::Outcome::Version: {
        // Words only: no display is needed.
        QCoreApplication words(argc, argv);
        setApplicationNames();
        const bool help = outcome == CommandLine::Outcome::Help;
        std::fputs(qPrintable(help ? options.helpText() : QString("orrery-demo " ORRERY_VERSION "\n")), stdout);
        return 0;
    }
    case CommandLine::Outcome::Run: break;
    }
    drawOffscreenWithoutDisplay(options);
    QApplication app(argc, argv);
    setApplicationNames();
    QApplication::setApplicationDisplayName("Orrery Prompts Demo");
    for (const QString& problem : Translations::install(app, options.language))
        say(problem);
    // A dialog nobody closes would keep a tour waiting for ever.
    std::unique_ptr<TourWatchdog> watchdog;
    if (options.touring())
        watchdog = std::make_unique<TourWatchdog>(std::chrono::seconds(60));

    // A run that only writes files has no window: what goes wrong is said on
    // standard error, and a loader is chosen as the tour does.
    const bool headless = options.headless();
    const bool windowless = headless && !options.touring();
    std::unique_ptr<MainWindow> window = windowless ? nullptr : std::make_unique<MainWindow>();
    ConsoleMessages console;
    std::unique_ptr<QWidget> dialogParent; // of the loader chooser, in a run without a window
    std::unique_ptr<Session> ownSession;
    if (windowless) {
        dialogParent = std::make_unique<QWidget>();
        ownSession = std::make_unique<Session>(console, *dialogParent);
    }
    Session& session = window ? window->session() : *ownSession;
    Messages& messages = window ? static_cast<Messages&>(*window) : console;
    if (windowless)
        orrery::kernel::Kernel::instance().messageBoxes().setHandler([](const std::string& text, int) {
            say(QString::fromStdString(text));
            return 0;
        });
    if (options.replayChanged)
        session.setChangedFiles(Session::ChangedFiles::Load);
    else if (headless)
        session.setChangedFiles(Session::ChangedFiles::Refuse);
    orrery::kernel::FileLoad::loadSample(
        "Sample", Translations::text(QT_TRANSLATE_NOOP("DialogCatalog", "Heated plate")).toStdString());
    // A setting the host cannot use is said, not replaced without a word.
    for (const std::string& problem : orrery::kernel::Kernel::instance().settingsProblems()) {
        say(QString::fromStdString(problem));
        messages.report(QString::fromStdString(problem));
    }

    // 1. --recover. A tour or an export of the sample is a demonstration, not a
    // session worth keeping; an export of a restored session is.
    bool restoreFailed = false;
    std::unique_ptr<SessionAutosave> autosave =
        options.touring() || (options.exporting() && !options.recover)
            ? nullptr
            : SessionAutosave::startFor(messages, window.get(), session.replayOptions(), options.recover, headless,
                                        restoreFailed);
    // A headless run ends here on failure; the autosave stays only while it
    // holds a restored session saved nowhere else.
    bool sessionSaved = false;
    const auto end = [&](int code) {
        if (autosave && (sessionSaved || restoreFailed || !options.recover))
            autosave->finish();
        else if (autosave)
            say(MainWindow::tr("The restored session stays in %1 until it is saved.").arg(autosave->path()));
        return code;
    };
    if (restoreFailed && headless)
        return end(1);
    // 2. The FILE.
    if (!options.file.isEmpty()) {
        if (watchdog)
            watchdog->at("loading " + options.file);
        const bool loaded = headless ? Tour::loadFile(session, options.file) : session.loadFile(options.file);
        if (!loaded && headless)
            return end(1);
    }
    std::string error;
    if (options.plotType && !HostStyle::setInteger("FrameLayout/PlotType", options.plotType, &error)) {
        say(QString::fromStdString(error));
        if (headless)
            return end(1);
    }
    // 3. --replay.
    if (!options.replay.isEmpty()) {
        if (watchdog)
            watchdog->at("replaying " + options.replay);
        if (!session.replayJournal(options.replay) && headless)
            return end(1);
    }
    // 4. What the run makes.
    if (!options.saveSession.isEmpty()) {
        sessionSaved = session.saveJournal(options.saveSession);
        if (!sessionSaved)
            return end(1);
    }
    if (options.exporting()) {
        QString problem;
        if (!PlotExport::write(HostScene::read(), PlotViewpoint(), options.exportPlot, options.plotSize,
                               options.dotsPerInch / 96.0, &problem)) {
            say(problem);
            return end(1);
        }
    }
    if (options.exporting() || !options.saveSession.isEmpty())
        return end(0);
    if (options.touring())
        return Tour::run(*window, options.tour, *watchdog);
    if (options.commandsOnStdin)
        new StdinJournal(window.get());
    window->adoptAutosave(std::move(autosave));
    WindowLayout::restore(*window);
    window->show();
    const int code = app.exec();
    WindowLayout::save(*window);
    return code;
}
