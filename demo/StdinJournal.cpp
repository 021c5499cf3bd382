#include "demo/StdinJournal.h"
#include <cstdio>
#include <sstream>
#include <unistd.h>
#include <QSocketNotifier>
#include "host/kernel/JournalReplayer.h"

using orrery::kernel::JournalReplayer;

StdinJournal::StdinJournal(QObject* parent)
    : QObject(parent), m_notifier(new QSocketNotifier(STDIN_FILENO, QSocketNotifier::Read, this))
{
    connect(m_notifier, &QSocketNotifier::activated, this, [this] { readAvailable(); });
}

void StdinJournal::readAvailable()
{
    char buffer[4096];
    const ssize_t got = ::read(STDIN_FILENO, buffer, sizeof buffer);
    if (got <= 0) {
        m_notifier->setEnabled(false); // the end of the input: nothing more will come
        return;
    }
    m_partial.append(buffer, size_t(got));
    for (size_t end; (end = m_partial.find('\n')) != std::string::npos;) {
        const std::string line = m_partial.substr(0, end);
        m_partial.erase(0, end + 1);
        take(line);
    }
}

void StdinJournal::take(const std::string& line)
{
    if (m_step.empty())
        m_stepStart = m_lineNumber + 1;
    ++m_lineNumber;
    if (!m_step.add(line))
        return;
    std::istringstream in(m_step.take());
    const JournalReplayer::Result result =
        JournalReplayer::replay(in, "standard input (the step from line " + std::to_string(m_stepStart) + ")");
    if (!result.ok)
        std::fprintf(stderr, "orrery-demo: %s\n", result.message.c_str());
}
