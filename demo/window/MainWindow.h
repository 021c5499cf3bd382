#pragma once
#include <memory>
#include <boost/signals2/connection.hpp>
#include <QMainWindow>
#include "demo/launchers/DialogCatalog.h"
#include "demo/session/Messages.h"

class QAction;
class QActionGroup;
class QCloseEvent;
class QPlainTextEdit;
class PlotMenus;
class HostPlotView;
class Session;
class SessionAutosave;
class StateView;
class WindowTitle;

// The demo host: a live plot of the current frame, a menu of every dialog, the
// host's state and journal beside them, undo and redo of the kernel's steps.
class MainWindow : public QMainWindow, public Messages
{
    Q_OBJECT
public:
    MainWindow();
    ~MainWindow() override;

    // Files loaded, sessions replayed and saved, as the File menu does them.
    Session& session() { return *m_session; }
    // Opens the dialog and runs it; returns the line that reports its answers.
    QString runDialog(const DialogCatalog::Entry& entry,
                      const std::function<void(DialogCatalog::Dialog&)>& whileOpen = nullptr);
    void report(const QString& line) override;
    // Shows a message the way the host does (a message box, captured in tests).
    void complain(const QString& text) override;

    HostPlotView& plot() const { return *m_plot; }
    // The autosave of this window's session: it goes when the window closes
    // with nothing unsaved (saved, given up or never changed), and only then.
    void adoptAutosave(std::unique_ptr<SessionAutosave> autosave);

protected:
    // With changes not saved, asks whether to save them first; Cancel, or a
    // save that did not happen, keeps the window open.
    void closeEvent(QCloseEvent* event) override;
    // Folders searched for the sample files, first match wins.
    static QStringList sampleFolders();

private:
    void openFile();
    void buildSampleMenu(QMenu& menu);
    bool saveJournalAs();
    bool settleUnsavedChanges();
    void replayJournalFrom();
    void refreshActionsWhenIdle();
    void refreshUndoActions();
    void refreshViewActions();
    void setShowVectors(bool on);
    void setShowScatter(bool on);

    HostPlotView* m_plot;
    Session* m_session;
    QPlainTextEdit* m_answers;
    QPlainTextEdit* m_journal;
    StateView* m_state;
    WindowTitle* m_title;
    std::unique_ptr<SessionAutosave> m_autosave;
    QAction* m_undo;
    QAction* m_redo;
    QActionGroup* m_plotTypes;
    QAction* m_showVectors;
    QAction* m_showScatter;
    PlotMenus* m_plotMenus;
    boost::signals2::scoped_connection m_undoChanged;
    boost::signals2::scoped_connection m_journalGrew;
    boost::signals2::scoped_connection m_stateChanged;
    boost::signals2::scoped_connection m_becameIdle;
    bool m_actionsStale = false;
};
