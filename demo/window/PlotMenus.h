#pragma once
#include <QObject>

class Messages;
class QWidget;
class PlotView;
class QAction;
class QMenu;

// The plot's own entries, in the View menu and the plot's context menu:
// logarithmic axes, axis titles, the Y variables of an XY line plot, the
// variable and colour map that colour the points, showing everything again;
// and exporting and copying the picture.
class PlotMenus : public QObject
{
    Q_OBJECT
public:
    // window: the parent of the menus' dialogs.
    PlotMenus(Messages& messages, QWidget& window, PlotView& plot, QMenu& file, QMenu& edit, QMenu& view);

    // Brings the check marks up to date with the host's style.
    void refresh();
    void exportPlot();
    void copyPlot();
    // View > Axis Titles: asks for the titles and writes them as one step.
    void editAxisTitles();

private:
    void fillLines(QMenu& menu);
    void showLine(int var, bool on);
    void fillColourBy(QMenu& menu);
    void fillColourMap(QMenu& menu);
    void colourBy(int var);
    void setLog(int axis, bool on);

    Messages& m_messages;
    QWidget& m_window;
    PlotView& m_plot;
    QAction* m_log[2];
    QMenu* m_lines;
};
