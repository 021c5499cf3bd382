#include "demo/window/CommandLine.h"

#include <algorithm>

CommandLine::CommandLine()
    : m_replay("replay", "Play the session (a journal) back after loading the file.", "session"),
      m_replayChanged("replay-changed", "Load the data files a session names even where their content has changed."),
      m_saveSession("save-session", "Save the session as it stands after the file and the replay to <out>, then exit.",
                    "out"),
      m_recover("recover", "Restore the session autosaved by a run that did not end normally, without asking; "
                           "first of all."),
      m_stdin("stdin", "Play journal lines read from standard input as they arrive, in the window."),
      m_tour("tour",
             "Open, drive and photograph every dialog and the plot after it, saving the pictures in <dir>, then "
             "exit.",
             "dir"),
      m_plotType("plot-type", "Start with plot type <n>: 1 3D, 2 2D or 3 XY line.", "n"),
      m_language("lang",
                 "Show the texts in <language> (for example de); the default follows the system locale, en shows "
                 "the original English texts.",
                 "language"),
      m_export("export",
               "Write the plot to <file> (.png, .svg or .pdf) after loading the file, any replay and any "
               "--save-session, then exit.",
               "file"),
      m_dpi("dpi",
            "With --export to a PNG: <n> dots per inch (96 is one pixel a screen pixel); the figure stays the same, "
            "finer or coarser.",
            "n", "96"),
      m_size("size", "With --export: the figure's size in screen pixels (1/96 inch), <width>x<height>.", "WxH",
             "800x600"),
      m_help({"h", "help"}, "Displays help on commandline options."),
      m_version({"v", "version"}, "Displays version information.")
{
    m_parser.setApplicationDescription(
        "Runs the prompt dialogs on the stand-in host, with a live plot of the current frame.\n"
        "Order: --recover, FILE, --plot-type, --replay, then --save-session and --export, or --tour.");
    m_parser.addPositionalArgument("file", "Data file to load instead of the built-in sample data set.", "[FILE]");
    m_parser.addOptions({m_replay, m_replayChanged, m_saveSession, m_recover, m_stdin, m_tour, m_plotType, m_language,
                         m_export, m_dpi, m_size, m_help, m_version});
}

CommandLine::Outcome CommandLine::refuse(const QString& problem)
{
    m_problem = problem;
    return Outcome::Refused;
}

CommandLine::Outcome CommandLine::parse(const QStringList& arguments)
{
    if (!m_parser.parse(arguments))
        return refuse(m_parser.errorText());
    if (m_parser.isSet(m_help))
        return Outcome::Help;
    if (m_parser.isSet(m_version))
        return Outcome::Version;
    const QStringList files = m_parser.positionalArguments();
    if (files.size() > 1)
        return refuse("give at most one data file.");
    file = files.value(0);
    replay = m_parser.value(m_replay);
    replayChanged = m_parser.isSet(m_replayChanged);
    saveSession = m_parser.value(m_saveSession);
    recover = m_parser.isSet(m_recover);
    commandsOnStdin = m_parser.isSet(m_stdin);
    tour = m_parser.value(m_tour);
    language = m_parser.value(m_language);
    exportPlot = m_parser.value(m_export);
    bool number = false;
    if (m_parser.isSet(m_plotType)) {
        plotType = m_parser.value(m_plotType).toLong(&number);
        if (!number || plotType < 1 || plotType > 3)
            return refuse("--plot-type takes 1 (3D), 2 (2D) or 3 (XY line).");
    }
    dotsPerInch = m_parser.value(m_dpi).toDouble(&number);
    if (!number || !(dotsPerInch >= 24 && dotsPerInch <= 2400))
        return refuse("--dpi takes a number from 24 to 2400.");
    const QStringList sides = m_parser.value(m_size).split('x');
    bool wide = false, high = false;
    plotSize = sides.size() == 2 ? QSize(sides[0].toInt(&wide), sides[1].toInt(&high)) : QSize();
    // A PNG side beyond 32767 pixels cannot be painted.
    const double largest = std::max(plotSize.width(), plotSize.height()) * dotsPerInch / 96.0;
    if (!wide || !high || plotSize.width() < 100 || plotSize.height() < 100 || largest > 32000)
        return refuse("--size takes <width>x<height>, each at least 100, at most 32000 pixels at the --dpi given.");
    return check();
}

// Parts that cannot both happen are refused rather than one of them dropped.
CommandLine::Outcome CommandLine::check()
{
    const QString tourReason = "a tour is a demonstration that ends the run, not a session";
    const QString stdinReason = "standard input is read only while the window is open";
    const struct
    {
        const QCommandLineOption& first;
        const QCommandLineOption& second;
        const QString& reason;
    } conflicts[] = {{m_tour, m_export, tourReason},   {m_tour, m_saveSession, tourReason},
                     {m_tour, m_recover, tourReason},  {m_stdin, m_tour, stdinReason},
                     {m_stdin, m_export, stdinReason}, {m_stdin, m_saveSession, stdinReason}};
    for (const auto& conflict : conflicts)
        if (m_parser.isSet(conflict.first) && m_parser.isSet(conflict.second))
            return refuse(QString("--%1 cannot go with --%2: %3.")
                              .arg(conflict.first.names().front(), conflict.second.names().front(), conflict.reason));
    for (const QCommandLineOption* option : {&m_dpi, &m_size})
        if (m_parser.isSet(*option) && !exporting())
            return refuse(QString("--%1 goes with --export.").arg(option->names().front()));
    return Outcome::Run;
}
