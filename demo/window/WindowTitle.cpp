#include "demo/window/WindowTitle.h"
#include <QFileInfo>
#include <QWidget>
#include "host/kernel/Kernel.h"

using orrery::kernel::Journal;
using orrery::kernel::Kernel;

WindowTitle::WindowTitle(QWidget& window) : QObject(&window), m_window(window)
{
    show(QString::fromStdString(Kernel::instance().dataSet().title()));
    m_lines = Kernel::instance().journal().lineAdded().connect([this](const std::string& line) { follow(line); });
}

void WindowTitle::markSaved()
{
    m_window.setWindowModified(false);
}

void WindowTitle::follow(const std::string& line)
{
    Journal::FileRecord file;
    std::string error;
    if (line.compare(0, 5, "load ") == 0 && Journal::parseLoad(line.substr(5), file, error))
        show(QFileInfo(QFile::decodeName(file.path.c_str())).fileName());
    else if (line.compare(0, 7, "sample ") == 0)
        show(QString::fromStdString(Kernel::instance().dataSet().title()));
    else
        m_window.setWindowModified(true);
}

// A new data set is where changes start to count.
void WindowTitle::show(const QString& name)
{
    m_window.setWindowTitle(name.isEmpty() ? tr("Orrery Prompts demo[*]")
                                           : tr("%1[*] - Orrery Prompts demo").arg(name));
    m_window.setWindowModified(false);
}
