#pragma once
#include <QCommandLineParser>
#include <QSize>
#include <QString>
#include <QStringList>

// What the demo is asked to do, read before any application object exists so
// that --help and --version need no display. The parts act in one order:
// --recover, the FILE's load, --plot-type, --replay, then --save-session and
// --export (both may be given) or --tour; a combination that cannot work is
// refused, never ignored.
class CommandLine
{
public:
    enum class Outcome
    {
        Run,     // go on with the options read
        Help,    // print helpText() and end
        Version, // print the version and end
        Refused  // print the problem, end with status 2
    };

    CommandLine();
    // arguments: the program's name first, as main was given them.
    Outcome parse(const QStringList& arguments);
    // Why the command line was refused.
    const QString& problem() const { return m_problem; }
    // Needs an application object for the program's name.
    QString helpText() const { return m_parser.helpText(); }

    QString file;
    QString replay;
    bool replayChanged = false;
    QString saveSession;
    bool recover = false;
    bool commandsOnStdin = false;
    QString tour;
    long plotType = 0; // 0: as the data set has it
    QString language;
    QString exportPlot;
    double dotsPerInch = 96;
    QSize plotSize{800, 600}; // of an export, in screen pixels

    bool exporting() const { return !exportPlot.isEmpty(); }
    bool touring() const { return !tour.isEmpty(); }
    // Nobody is at the keyboard: nothing is asked, failures end the run.
    bool headless() const { return exporting() || touring() || !saveSession.isEmpty(); }

private:
    Outcome refuse(const QString& problem);
    Outcome check();

    QCommandLineParser m_parser;
    QCommandLineOption m_replay, m_replayChanged, m_saveSession, m_recover, m_stdin, m_tour, m_plotType, m_language,
        m_export, m_dpi, m_size, m_help, m_version;
    QString m_problem;
};
