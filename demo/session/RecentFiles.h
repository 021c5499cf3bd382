#pragma once
#include <functional>
#include <QCoreApplication>
#include <QStringList>

class QMenu;

// The files and sessions opened last, newest first, kept in the application
// settings so that the next run offers them again.
class RecentFiles
{
    Q_DECLARE_TR_FUNCTIONS(RecentFiles)
public:
    static constexpr int Kept = 10;

    static QStringList paths();
    // Puts path first (once).
    static void add(const QString& path);
    // Fills menu with them each time it opens; a file that is gone is shown
    // greyed, its path as tooltip. open is called with the chosen path.
    static void attach(QMenu& menu, const std::function<void(const QString&)>& open);
};
