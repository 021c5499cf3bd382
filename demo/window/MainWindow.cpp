#include "demo/window/MainWindow.h"
#include "demo/scene/HostText.h"
#include "demo/common/Translations.h"
#include "demo/session/IdleBatch.h"

#include <algorithm>
#include <utility>
#include <QActionGroup>
#include <QApplication>
#include <QDir>
#include <QDockWidget>
#include <QEventLoop>
#include <QFileDialog>
#include <QFileInfo>
#include <QMenuBar>
#include <QMessageBox>
#include <QCloseEvent>
#include <QPlainTextEdit>
#include <QStatusBar>
#include <QTimer>
#include "demo/window/FileDrops.h"
#include "demo/scene/HostStyle.h"
#include "demo/common/Mnemonics.h"
#include "demo/session/NewFigure.h"
#include "demo/launchers/PlotEffects.h"
#include "demo/window/PlotMenus.h"
#include "demo/scene/HostPlotView.h"
#include "demo/session/RecentFiles.h"
#include "demo/session/Session.h"
#include "demo/session/SessionAutosave.h"
#include "demo/window/StateView.h"
#include "demo/window/WindowLayout.h"
#include "demo/window/WindowTitle.h"
#include "host/kernel/FileLoad.h"
#include "host/kernel/Kernel.h"
#include "host/kernel/OrrUtilHost.h"
#include "platform/sdk/AppLock.h"
#include "platform/sdk/DataSetQueries.h"
#include "platform/sdk/StateChangeEventObservable.h"
#include "platform/toolbox/Set.h"

using orrery::kernel::FileLoad;
using orrery::kernel::Kernel;
using orrery::sdk::AppLock;

namespace {

QDockWidget* dockFor(QMainWindow& window, const QString& title, const QString& name, QWidget* content,
                     Qt::DockWidgetArea area)
{
    auto* dock = new QDockWidget(title, &window);
    dock->setObjectName(name);
    dock->setWidget(content);
    window.addDockWidget(area, dock);
    return dock;
}

} // namespace

MainWindow::MainWindow()
    : m_plot(new HostPlotView), m_session(new Session(*this, *this, this)), m_answers(new QPlainTextEdit),
      m_journal(new QPlainTextEdit), m_state(new StateView)
{
    setObjectName("OrreryDemo");
    setWindowTitle(tr("Orrery Prompts demo"));
    setCentralWidget(m_plot);

    m_answers->setObjectName("answers");
    m_answers->setReadOnly(true);
    m_answers->setPlaceholderText(tr("Open a dialog from the Dialogs menu; its answers appear here."));
    m_journal->setObjectName("journal");
    m_journal->setReadOnly(true);
    m_journal->setPlaceholderText(tr("Every change is recorded here as a command."));
    for (const std::string& line : Kernel::instance().journal().lines())
        m_journal->appendPlainText(QString::fromStdString(line));

    QDockWidget* stateDock = dockFor(*this, tr("Host state"), "hostState", m_state, Qt::RightDockWidgetArea);
    QDockWidget* journalDock = dockFor(*this, tr("Journal"), "journalDock", m_journal, Qt::RightDockWidgetArea);
    QDockWidget* answersDock = dockFor(*this, tr("Answers"), "answersDock", m_answers, Qt::BottomDockWidgetArea);
    tabifyDockWidget(stateDock, journalDock);
    stateDock->raise();

    QMenu* file = menuBar()->addMenu(tr("&File"));
    file->addAction(tr("&Open..."), this, &MainWindow::openFile)->setShortcut(QKeySequence::Open);
    QMenu* recent = file->addMenu(tr("Open &Recent"));
    recent->setObjectName("fileOpenRecent");
    RecentFiles::attach(*recent, [this](const QString& path) { m_session->open(path); });
    buildSampleMenu(*file->addMenu(tr("Open Sa&mple")));
    file->addSeparator();
    file->addAction(tr("Open S&ession..."), this, &MainWindow::replayJournalFrom)->setObjectName("fileOpenSession");
    QAction* save = file->addAction(tr("&Save Session..."), this, &MainWindow::saveJournalAs);
    save->setObjectName("fileSaveSession");
    save->setShortcut(QKeySequence::Save);
    file->addSeparator();
    QAction* quit = new QAction(tr("&Quit"), this);
    quit->setShortcut(QKeySequence::Quit);
    quit->setObjectName("fileQuit");
    // Through the window's closing, which asks about unsaved changes.
    connect(quit, &QAction::triggered, this, &QWidget::close);

    QMenu* edit = menuBar()->addMenu(tr("&Edit"));
    m_undo = edit->addAction(tr("&Undo"), this, [] {
        AppLock lock(AppLock::ImplicitMacroRecording_Allow);
        OrrUtilUndoPerform();
    });
    m_undo->setObjectName("editUndo");
    m_undo->setShortcut(QKeySequence::Undo);
    m_redo = edit->addAction(tr("&Redo"), this, [] {
        AppLock lock(AppLock::ImplicitMacroRecording_Allow);
        OrrUtilRedoPerform();
    });
    m_redo->setObjectName("editRedo");
    m_redo->setShortcut(QKeySequence::Redo);

    QMenu* view = menuBar()->addMenu(tr("&View"));
    QMenu* plotType = view->addMenu(tr("&Plot Type"));
    m_plotTypes = new QActionGroup(this);
    const std::pair<PlotType_e, QString> types[] = {{PlotType_ThreeD, tr("&3D Cartesian")},
                                                    {PlotType_TwoD, tr("&2D Cartesian")},
                                                    {PlotType_XYLine, tr("&XY Line")}};
    for (const auto& [type, text] : types) {
        QAction* action = plotType->addAction(text);
        action->setCheckable(true);
        action->setData(int(type));
        action->setObjectName(QString("viewPlotType%1").arg(int(type)));
        m_plotTypes->addAction(action);
        connect(action, &QAction::triggered, this, [this, type = type] {
            std::string error;
            if (!HostStyle::setInteger("FrameLayout/PlotType", type, &error))
                complain(QString::fromStdString(error));
        });
    }
    m_showVectors = view->addAction(tr("Show &Vectors"), this, &MainWindow::setShowVectors);
    m_showVectors->setCheckable(true);
    m_showVectors->setObjectName("viewShowVectors");
    m_showScatter = view->addAction(tr("Show &Scatter Symbols"), this, &MainWindow::setShowScatter);
    m_showScatter->setCheckable(true);
    m_showScatter->setObjectName("viewShowScatter");
    m_plotMenus = new PlotMenus(*this, *this, *m_plot, *file, *edit, *view);
    file->addSeparator();
    file->addAction(quit);
    view->addSeparator();
    for (QDockWidget* dock : {stateDock, journalDock, answersDock})
        view->addAction(dock->toggleViewAction());
    connect(m_plot, &HostPlotView::pointerMoved, this, [this](const QString& values) {
        if (values.isEmpty())
            statusBar()->clearMessage();
        else
            statusBar()->showMessage(values);
    });

    QMenu* dialogs = menuBar()->addMenu(tr("&Dialogs"));
    dialogs->setObjectName("dialogsMenu");
    for (const DialogCatalog::Entry& entry : DialogCatalog::entries())
        dialogs->addAction(DialogCatalog::title(entry), this, [this, &entry] { runDialog(entry); });
    Mnemonics::assign(*dialogs);

    // While the host is busy (a replay of thousands of lines) the menus are
    // brought up to date once, when it is idle again.
    m_undoChanged = Kernel::instance().undoStack().changedSignal().connect([this] { refreshActionsWhenIdle(); });
    m_becameIdle = orrery::sdk::AppLock::becameIdleSignal().connect([this] {
        if (std::exchange(m_actionsStale, false)) {
            refreshUndoActions();
            refreshViewActions();
        }
    });
    // A replay adds thousands of lines: they are shown once per idle moment, and
    // the view keeps the newest (Save Session writes them all).
    const int shownLines = 5000;
    m_journal->setMaximumBlockCount(shownLines);
    auto* journalLines = new IdleBatch(
        [this](const QStringList& lines) { m_journal->appendPlainText(lines.join('\n')); }, shownLines, this);
    m_journalGrew = Kernel::instance().journal().lineAdded().connect(
        [journalLines](const std::string& line) { journalLines->add(QString::fromStdString(line)); });
    m_stateChanged = orrery::sdk::integration::StateChangeEventObservable::getInstance().signal().connect(
        [this](const orrery::sdk::integration::StateChangeEventInterface& change) {
            if (change.code() == StateChange_DataSetReset) {
                const QString reset = NewFigure::summary(Kernel::instance().newFigureReset());
                if (!reset.isEmpty())
                    report(reset);
            }
            refreshActionsWhenIdle();
        });
    refreshUndoActions();
    refreshViewActions();
    m_title = new WindowTitle(*this);
    m_session->savedSignal().connect([this] { m_title->markSaved(); });
    new FileDrops(*this, [this](const QString& path) { m_session->open(path); });
    WindowLayout::fitToScreen(*this, QSize(1180, 760));
    // The plot keeps most of a small screen.
    resizeDocks({stateDock}, {std::min(400, width() / 3)}, Qt::Horizontal);
    resizeDocks({answersDock}, {std::min(120, height() / 6)}, Qt::Vertical);
}

MainWindow::~MainWindow() = default;

void MainWindow::report(const QString& line)
{
    m_answers->appendPlainText(line);
    statusBar()->showMessage(line, 8000);
}

void MainWindow::complain(const QString& text)
{
    OrrUtilDialogMessageBox(text.toUtf8().constData(), MessageBoxType_Error);
}

void MainWindow::refreshActionsWhenIdle()
{
    if (orrery::sdk::AppLock::isBusy()) {
        m_actionsStale = true;
        return;
    }
    refreshUndoActions();
    refreshViewActions();
}

void MainWindow::refreshUndoActions()
{
    const QString undo = takeHostText(OrrUtilUndoGetStepName());
    const QString redo = takeHostText(OrrUtilRedoGetStepName());
    m_undo->setText(undo.isEmpty() ? tr("&Undo") : tr("&Undo %1").arg(undo));
    m_undo->setEnabled(!undo.isEmpty());
    m_redo->setText(redo.isEmpty() ? tr("&Redo") : tr("&Redo %1").arg(redo));
    m_redo->setEnabled(!redo.isEmpty());
}

void MainWindow::refreshViewActions()
{
    const int type = int(OrrUtilFrameGetPlotType());
    for (QAction* action : m_plotTypes->actions())
        action->setChecked(action->data().toInt() == type);
    m_showVectors->setChecked(HostStyle::flag("FieldLayers/ShowVector"));
    m_showScatter->setChecked(OrrUtilDataSetGetNumZones() > 0 && HostStyle::flag("FieldMap/Scatter/Show", 1));
    m_plotMenus->refresh();
}

// Vectors need components: when the style has no usable ones, the host's
// candidates are assigned in the same undo step.
void MainWindow::setShowVectors(bool on)
{
    AppLock lock(AppLock::ImplicitMacroRecording_Allow);
    const PlotType_e plotType = OrrUtilFrameGetPlotType();
    int u = 0, v = 0, w = 0;
    if (on && !orrery::sdk::okToTurnOnVectorLayer(plotType)
        && !orrery::sdk::getValidVectorVarCandidates(plotType, u, v, w)) {
        complain(tr("Vectors need a field plot and two variables besides the axes."));
        refreshViewActions();
        return;
    }
    const std::string root = plotType == PlotType_ThreeD ? "GlobalThreeDVector/" : "GlobalTwoDVector/";
    std::string error;
    const bool ok = HostStyle::inOneStep(
        on ? "Show Vectors" : "Hide Vectors",
        [&](std::string& refusal) {
            return (!u
                    || (HostStyle::setInteger(root + "UVar", u, &refusal)
                        && HostStyle::setInteger(root + "VVar", v, &refusal)
                        && (!w || HostStyle::setInteger(root + "WVar", w, &refusal))))
                   && HostStyle::setFlag("FieldLayers/ShowVector", on, &refusal);
        },
        &error);
    if (!ok)
        complain(QString::fromStdString(error));
    refreshViewActions();
}

// One undo step for all zones.
void MainWindow::setShowScatter(bool on)
{
    std::string error;
    if (!HostStyle::inOneStep(
            on ? "Show Scatter" : "Hide Scatter",
            [on](std::string& refusal) { return PlotEffects::showSymbols(on, refusal); }, &error))
        complain(QString::fromStdString(error));
    refreshViewActions();
}

QString MainWindow::runDialog(const DialogCatalog::Entry& entry,
                              const std::function<void(DialogCatalog::Dialog&)>& whileOpen)
{
    DialogCatalog::Dialog* dialog = entry.open(*this);
    QString line;
    if (!dialog->isRelevant())
        line = tr("%1: not available now (it needs a data set)").arg(DialogCatalog::title(entry));
    else {
        if (whileOpen)
            QTimer::singleShot(0, dialog, [dialog, whileOpen] { whileOpen(*dialog); });
        dialog->launch();
        const bool modeless = dialog->isVisible();
        if (modeless) // its answers count once it is closed; its changes were made as they came
        {
            QEventLoop untilClosed;
            connect(dialog, &QDialog::finished, &untilClosed, &QEventLoop::quit);
            untilClosed.exec();
        }
        const bool accepted = dialog->result() == QDialog::Accepted;
        line = QString("%1: %2, %3")
                   .arg(DialogCatalog::title(entry),
                        accepted   ? tr("accepted")
                        : modeless ? tr("closed")
                                   : tr("cancelled"),
                        entry.answers(*dialog));
        const QString effect = accepted || modeless ? entry.effect(*dialog) : QString();
        if (!effect.isEmpty())
            line += QString::fromUtf8(" → ") + effect;
    }
    if (entry.callerOwnsDialog)
        delete dialog;
    report(line);
    return line;
}

void MainWindow::openFile()
{
    const QString path = QFileDialog::getOpenFileName(
        this, tr("Open Data File"), QString(),
        tr("Data files and sessions (*.csv *.txt *.dat *.zbk *.vtk *.orrery-journal *.orj);;All files (*)"));
    if (!path.isEmpty())
        m_session->open(path);
}

bool MainWindow::saveJournalAs()
{
    const QString path = QFileDialog::getSaveFileName(this, tr("Save Session"), "session.orrery-journal",
                                                      tr("Sessions (*.orrery-journal);;All files (*)"));
    return !path.isEmpty() && m_session->saveJournal(path);
}

void MainWindow::adoptAutosave(std::unique_ptr<SessionAutosave> autosave)
{
    m_autosave = std::move(autosave);
}

void MainWindow::closeEvent(QCloseEvent* event)
{
    if (!settleUnsavedChanges())
        return event->ignore();
    if (m_autosave)
        m_autosave->finish();
    QMainWindow::closeEvent(event);
}

// True when nothing unsaved is left: the changes were saved or given up.
bool MainWindow::settleUnsavedChanges()
{
    if (!isWindowModified())
        return true;
    QMessageBox question(QMessageBox::Warning, tr("Unsaved Changes"),
                         tr("The session has changes that are not saved. Save them before closing?"),
                         QMessageBox::Save | QMessageBox::Discard | QMessageBox::Cancel, this);
    question.setObjectName("unsavedChanges");
    question.setDefaultButton(QMessageBox::Save);
    switch (question.exec()) {
    case QMessageBox::Save:
        return m_session->path().isEmpty() ? saveJournalAs() : m_session->saveJournal(m_session->path());
    case QMessageBox::Discard: setWindowModified(false); return true;
    default: return false;
    }
}

void MainWindow::replayJournalFrom()
{
    const QString path = QFileDialog::getOpenFileName(this, tr("Open Session"), QString(),
                                                      tr("Sessions (*.orrery-journal *.orj);;All files (*)"));
    if (!path.isEmpty())
        m_session->replayJournal(path);
}

QStringList MainWindow::sampleFolders()
{
    const QString app = QCoreApplication::applicationDirPath();
    return {app + "/samples", app + QString("/../share/orrery-qt%1/samples").arg(QT_VERSION_MAJOR),
            QStringLiteral(ORRERY_DEMO_SAMPLES)};
}

void MainWindow::buildSampleMenu(QMenu& menu)
{
    menu.addAction(tr("Built-in: Heated Plate"), this, [this] {
        FileLoad::loadSample("Sample",
                             Translations::text(QT_TRANSLATE_NOOP("DialogCatalog", "Heated plate")).toStdString());
        report(tr("Loaded the built-in sample data set"));
    });
    QStringList seen;
    for (const QString& folder : sampleFolders())
        for (const QFileInfo& info : QDir(folder).entryInfoList(QDir::Files, QDir::Name)) {
            if (seen.contains(info.fileName()))
                continue;
            seen << info.fileName();
            const QString path = info.absoluteFilePath();
            menu.addAction(Mnemonics::escaped(info.fileName()), this, [this, path] { m_session->loadFile(path); });
        }
    Mnemonics::assign(menu);
}
