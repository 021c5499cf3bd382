#include "demo/tour/TourWatchdog.h"
#include <cstdio>
#include <cstdlib>
#include <future>
#include <memory>
#include <QApplication>
#include <QWidget>

namespace {

QString describe(const QWidget& widget)
{
    return QString("%1 \"%2\"%3")
        .arg(widget.metaObject()->className(), widget.windowTitle(),
             widget.objectName().isEmpty() ? QString() : QString(" (%1)").arg(widget.objectName()));
}

// The windows open, asked of the main thread, which alone may touch widgets;
// a main thread that does not answer is stuck outside any event loop.
std::string openWindows()
{
    auto answer = std::make_shared<std::promise<std::string>>();
    std::future<std::string> windows = answer->get_future();
    QMetaObject::invokeMethod(
        qApp,
        [answer] {
            QStringList lines;
            if (QWidget* modal = QApplication::activeModalWidget())
                lines << "modal: " + describe(*modal);
            for (QWidget* window : QApplication::topLevelWidgets())
                if (window->isVisible())
                    lines << "open: " + describe(*window);
            answer->set_value(lines.join('\n').toStdString());
        },
        Qt::QueuedConnection);
    if (windows.wait_for(std::chrono::seconds(5)) != std::future_status::ready)
        return "the main thread does not answer: it is busy or blocked outside an event loop";
    return windows.get();
}

void printAndExit(const std::string& report)
{
    std::fflush(stdout);
    std::fprintf(stderr, "orrery-demo: %s\n", report.c_str());
    std::fflush(stderr);
    std::_Exit(3);
}

} // namespace

TourWatchdog::TourWatchdog(std::chrono::milliseconds limit, Stuck stuck)
    : m_limit(limit), m_stuck(stuck ? std::move(stuck) : Stuck(printAndExit)),
      m_deadline(std::chrono::steady_clock::now() + limit), m_thread([this] { watch(); })
{}

TourWatchdog::~TourWatchdog()
{
    {
        std::lock_guard<std::mutex> lock(m_mutex);
        m_done = true;
    }
    m_changed.notify_all();
    m_thread.join();
}

void TourWatchdog::at(const QString& step)
{
    std::lock_guard<std::mutex> lock(m_mutex);
    m_step = step.toStdString();
    m_deadline = std::chrono::steady_clock::now() + m_limit;
}

void TourWatchdog::watch()
{
    std::unique_lock<std::mutex> lock(m_mutex);
    while (!m_done) {
        if (m_changed.wait_until(lock, m_deadline) == std::cv_status::no_timeout
            || std::chrono::steady_clock::now() < m_deadline)
            continue;
        const QString step = m_step.empty() ? QString("the start") : QString::fromStdString(m_step);
        lock.unlock();
        const std::string windows = openWindows();
        m_stuck(QString("no progress for %1 s at: %2").arg(double(m_limit.count()) / 1000.0).arg(step).toStdString()
                + (windows.empty() ? "" : "\n" + windows));
        return;
    }
}
