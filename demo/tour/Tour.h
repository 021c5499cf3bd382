#pragma once
#include <QString>

class MainWindow;
class Session;
class TourWatchdog;

// Runs every dialog of the demo without anyone at the keyboard: drives it as a
// user would, saves a screenshot of it, and prints its answers.
class Tour
{
public:
    // Returns the process exit code; each step is told to watchdog as it begins.
    static int run(MainWindow& window, const QString& screenshotDir, TourWatchdog& watchdog);
    // Loads a data file, confirming the loader chooser's preselection (or its
    // first loader) if the file's extension needs one.
    static bool loadFile(Session& session, const QString& path);
};
