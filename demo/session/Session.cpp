#include "demo/session/Session.h"

#include <QElapsedTimer>
#include <QFile>
#include <QFileInfo>
#include <QProgressDialog>
#include "demo/session/Messages.h"
#include "demo/session/RecentFiles.h"
#include "host/kernel/FileLoad.h"
#include "host/kernel/Kernel.h"
#include "host/kernel/OrrUtilHost.h"
#include "host/loaders/LoadProgress.h"
#include "platform/loaders/DataLoaderRepository.h"
#include "prompts/prompt/ChooseLoaderDialog.h"

using orrery::dialogs::prompt::ChooseLoaderDialog;
using orrery::kernel::FileLoad;
using orrery::kernel::JournalReplayer;
using orrery::kernel::Kernel;
using orrery::sdk::DataLoaderRepository;
using orrery::sdk::LoadProgress;

namespace {

// Shows a cancellable progress dialog for a load that takes longer than a
// moment; the previous handler is put back when the load ends.
class ProgressWhileLoading
{
public:
    ProgressWhileLoading(QWidget& parent, const QString& path) : m_parent(parent), m_path(path)
    {
        m_clock.start();
        m_previous =
            LoadProgress::setHandler([this](std::uint64_t done, std::uint64_t total) { return step(done, total); });
    }
    ~ProgressWhileLoading()
    {
        LoadProgress::setHandler(std::move(m_previous));
        delete m_dialog;
    }
    bool cancelled() const { return m_dialog && m_dialog->wasCanceled(); }

private:
    bool step(std::uint64_t done, std::uint64_t total)
    {
        if (!m_dialog && m_clock.elapsed() < 400)
            return true;
        if (!m_dialog) {
            m_dialog = new QProgressDialog(QObject::tr("Loading %1...").arg(QFileInfo(m_path).fileName()),
                                           QObject::tr("Cancel"), 0, 1000, &m_parent);
            m_dialog->setWindowModality(Qt::WindowModal);
            m_dialog->setMinimumDuration(0);
        }
        m_dialog->setValue(total ? int(1000.0 * double(done) / double(total)) : 0);
        QCoreApplication::processEvents();
        return !m_dialog->wasCanceled();
    }

    QWidget& m_parent;
    QString m_path;
    QElapsedTimer m_clock;
    QProgressDialog* m_dialog = nullptr;
    LoadProgress::Handler m_previous;
};

} // namespace

Session::Session(Messages& messages, QWidget& dialogParent, QObject* parent)
    : QObject(parent), m_messages(messages), m_dialogParent(dialogParent)
{}

bool Session::loadFile(const QString& path)
{
    const QString suffix = QFileInfo(path).suffix().toLower();
    std::vector<ChooseLoaderDialog::LoaderPtr> loaders =
        DataLoaderRepository::getInstance().loadersForExtension(suffix.toStdString());
    ChooseLoaderDialog::LoaderPtr loader = loaders.size() == 1 ? loaders.front() : nullptr;
    if (!loader) {
        std::set<std::string> extensions;
        if (!suffix.isEmpty())
            extensions.insert("." + suffix.toStdString());
        ChooseLoaderDialog* chooser = ChooseLoaderDialog::getInstance(m_dialogParent, loaders, extensions);
        chooser->launch();
        if (chooser->result() != QDialog::Accepted || !(loader = chooser->selectedLoader()))
            return false;
    }
    std::string error;
    bool loaded = false;
    {
        ProgressWhileLoading progress(m_dialogParent, path);
        try {
            // The native name: a file name that is not UTF-8 must still open.
            loaded = FileLoad::load(*loader, QFile::encodeName(path).toStdString(), error);
        } catch (const std::exception& e) {
            error = e.what();
        }
    }
    if (!loaded) {
        m_messages.complain(tr("Cannot load %1: %2").arg(path, QString::fromStdString(error)));
        return false;
    }
    QString line = tr("Loaded %1 with the loader \"%2\"").arg(path, QString::fromStdString(loader->properties().name));
    const std::string summary = loader->lastLoadSummary();
    if (!summary.empty())
        line += ": " + QString::fromStdString(summary);
    m_messages.report(line);
    RecentFiles::add(path);
    return true;
}

bool Session::replayJournal(const QString& path)
{
    JournalReplayer::Result result;
    try {
        result = JournalReplayer::replayFile(QFile::encodeName(path).toStdString(), replayOptions(path));
    } catch (const std::exception& e) {
        result.ok = false;
        result.message = path.toStdString() + ": " + e.what();
    }
    if (!result.ok) {
        m_messages.complain(
            tr("The replay stopped at a bad line; the %n command(s) before it were kept.\n%1", nullptr, result.played)
                .arg(QString::fromStdString(result.message)));
        return false;
    }
    m_messages.report(tr("Replayed %1 commands from %2").arg(result.played).arg(path));
    savedAs(path);
    return true;
}

JournalReplayer::Options Session::replayOptions(const QString& journal) const
{
    JournalReplayer::Options options;
    if (!journal.isEmpty())
        options.folder = QFile::encodeName(QFileInfo(journal).absolutePath()).toStdString();
    if (m_changedFiles == ChangedFiles::Load)
        options.acceptChangedFile = [](const std::string&) { return true; };
    else if (m_changedFiles == ChangedFiles::Ask)
        options.acceptChangedFile = [](const std::string& message) {
            const QString question = tr("%1\n\nLoad it as it is now?").arg(QString::fromStdString(message));
            return OrrUtilDialogMessageBox(question.toUtf8().constData(), MessageBoxType_Question) == 1;
        };
    return options;
}

bool Session::isSession(const QString& path)
{
    const QString suffix = QFileInfo(path).suffix().toLower();
    return suffix == "orrery-journal" || suffix == "orj";
}

bool Session::open(const QString& path)
{
    return isSession(path) ? replayJournal(path) : loadFile(path);
}

bool Session::saveJournal(const QString& path)
{
    std::string error;
    if (!Kernel::instance().journal().save(QFile::encodeName(path).toStdString(), error)) {
        m_messages.complain(QString::fromStdString(error));
        return false;
    }
    m_messages.report(tr("Saved the session to %1").arg(path));
    savedAs(path);
    return true;
}

void Session::savedAs(const QString& path)
{
    RecentFiles::add(path);
    m_path = path;
    m_saved();
}
