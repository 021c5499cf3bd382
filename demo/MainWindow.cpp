#include "demo/MainWindow.h"

#include <QApplication>
#include <QDockWidget>
#include <QEventLoop>
#include <QFile>
#include <QFileDialog>
#include <QFileInfo>
#include <QMenuBar>
#include <QPlainTextEdit>
#include <QStatusBar>
#include <QTimer>
#include "demo/StateView.h"
#include "platform/kernel/KernelTestSupport.h"
#include "platform/kernel/OrrUtil.h"
#include "platform/loaders/DataLoaderRepository.h"
#include "prompts/prompt/ChooseLoaderDialog.h"

using orrery::dialogs::prompt::ChooseLoaderDialog;
using orrery::sdk::DataLoaderRepository;

MainWindow::MainWindow() : m_answers(new QPlainTextEdit), m_state(new StateView)
{
    setObjectName("OrreryDemo");
    setWindowTitle(tr("Orrery Prompts demo"));
    m_answers->setReadOnly(true);
    m_answers->setPlaceholderText(tr("Open a dialog from the Dialogs menu; its answers appear here."));
    setCentralWidget(m_answers);

    auto* dock = new QDockWidget(tr("Host state"), this);
    dock->setObjectName("hostState");
    dock->setWidget(m_state);
    addDockWidget(Qt::RightDockWidgetArea, dock);

    QMenu* file = menuBar()->addMenu(tr("&File"));
    file->addAction(tr("&Open..."), this, &MainWindow::openFile)->setShortcut(QKeySequence::Open);
    file->addAction(tr("Load &Sample Data Set"), this, &MainWindow::loadSample);
    file->addSeparator();
    file->addAction(tr("&Quit"), qApp, &QApplication::quit)->setShortcut(QKeySequence::Quit);

    QMenu* dialogs = menuBar()->addMenu(tr("&Dialogs"));
    for (const DialogCatalog::Entry& entry : DialogCatalog::entries())
        dialogs->addAction(entry.name, this, [this, &entry] { runDialog(entry); });
    dock->toggleViewAction()->setText(tr("Show &Host State"));
    menuBar()->addMenu(tr("&View"))->addAction(dock->toggleViewAction());
    resize(1000, 580);
    resizeDocks({dock}, {480}, Qt::Horizontal);
}

void MainWindow::report(const QString& line)
{
    m_answers->appendPlainText(line);
    statusBar()->showMessage(line, 8000);
}

QString MainWindow::runDialog(const DialogCatalog::Entry& entry,
                              const std::function<void(DialogCatalog::Dialog&)>& whileOpen)
{
    DialogCatalog::Dialog* dialog = entry.open(*this);
    QString line;
    if (!dialog->isRelevant())
        line = tr("%1: not available now (it needs a data set)").arg(entry.name);
    else
    {
        if (whileOpen)
            QTimer::singleShot(0, dialog, [dialog, whileOpen] { whileOpen(*dialog); });
        dialog->launch();
        if (dialog->isVisible()) // a modeless dialog: its answers count once it is closed
        {
            QEventLoop untilClosed;
            connect(dialog, &QDialog::finished, &untilClosed, &QEventLoop::quit);
            untilClosed.exec();
        }
        line = QString("%1: %2, %3")
                   .arg(entry.name, dialog->result() == QDialog::Accepted ? tr("accepted") : tr("cancelled"),
                        entry.answers(*dialog));
    }
    if (entry.callerOwnsDialog)
        delete dialog;
    report(line);
    return line;
}

bool MainWindow::loadFile(const QString& path)
{
    const QString suffix = QFileInfo(path).suffix().toLower();
    std::vector<ChooseLoaderDialog::LoaderPtr> loaders =
        DataLoaderRepository::getInstance().loadersForExtension(suffix.toStdString());
    ChooseLoaderDialog::LoaderPtr loader = loaders.size() == 1 ? loaders.front() : nullptr;
    if (!loader)
    {
        std::set<std::string> extensions;
        if (!suffix.isEmpty())
            extensions.insert("." + suffix.toStdString());
        ChooseLoaderDialog* chooser = ChooseLoaderDialog::getInstance(*this, loaders, extensions);
        chooser->launch();
        if (chooser->result() != QDialog::Accepted || !(loader = chooser->selectedLoader()))
            return false;
    }
    std::string error;
    // The native name: a file name that is not UTF-8 must still open.
    if (!loader->load(QFile::encodeName(path).toStdString(), error))
    {
        OrrUtilDialogMessageBox(QString("Cannot load %1: %2").arg(path, QString::fromStdString(error)).toUtf8(),
                                MessageBoxType_Error);
        return false;
    }
    QString line = tr("Loaded %1 with the loader \"%2\"").arg(path, QString::fromStdString(loader->properties().name));
    const std::string summary = loader->lastLoadSummary();
    if (!summary.empty())
        line += ": " + QString::fromStdString(summary);
    report(line);
    return true;
}

void MainWindow::openFile()
{
    const QString path = QFileDialog::getOpenFileName(this, tr("Open Data File"));
    if (!path.isEmpty())
        loadFile(path);
}

void MainWindow::loadSample()
{
    orrery::kernel::testing::KernelTestSupport::loadSampleDataSet();
    report(tr("Loaded the sample data set"));
}
