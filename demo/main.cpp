#include <cstdio>
#include <cstring>
#include <QApplication>
#include <QCommandLineParser>
#include "demo/HostStyle.h"
#include "demo/MainWindow.h"
#include "demo/PlotExport.h"
#include "demo/PlotView.h"
#include "demo/Tour.h"
#include "demo/Translations.h"
#include "host/kernel/KernelDriver.h"

namespace {

// A run that only writes files needs no display: without one it draws offscreen.
void drawOffscreenWithoutDisplay(int argc, char** argv)
{
    if (qEnvironmentVariableIsSet("QT_QPA_PLATFORM") || qEnvironmentVariableIsSet("DISPLAY")
        || qEnvironmentVariableIsSet("WAYLAND_DISPLAY"))
        return;
    for (int i = 1; i < argc; ++i)
        if (!std::strcmp(argv[i], "--export") || !std::strcmp(argv[i], "--tour")
            || !std::strncmp(argv[i], "--export=", 9) || !std::strncmp(argv[i], "--tour=", 7))
            qputenv("QT_QPA_PLATFORM", "offscreen");
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
    const QCommandLineOption replay("replay", "Play the journal back after loading.", "journal");
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
    parser.addOptions({replay, tour, plotType, language, exportPlot, dpi});
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

    MainWindow window;
    orrery::kernel::KernelDriver::loadSampleDataSet(
        "Sample", Translations::text(QT_TRANSLATE_NOOP("DialogCatalog", "Heated plate")).toStdString());
    const bool touring = parser.isSet(tour) || parser.isSet(exportPlot);
    // Without a window to show them in, failures end the run.
    if (!files.isEmpty() && !(touring ? Tour::loadFile(window, files.front()) : window.loadFile(files.front()))
        && touring)
        return 1;
    std::string error;
    if (type && !HostStyle::setInteger("FrameLayout/PlotType", type, &error)) {
        std::fprintf(stderr, "orrery-demo: %s\n", error.c_str());
        if (touring)
            return 1;
    }
    if (parser.isSet(replay) && !window.replayJournal(parser.value(replay)) && touring)
        return 1;
    if (parser.isSet(exportPlot)) {
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
        return Tour::run(window, parser.value(tour));
    window.show();
    return app.exec();
}
