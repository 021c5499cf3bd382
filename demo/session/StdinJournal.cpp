#include "demo/session/StdinJournal.h"
#include <algorithm>
#include <cstdio>
#include <sstream>
#include <unistd.h>
#include <QSocketNotifier>
#include "host/kernel/JournalReplayer.h"

using orrery::kernel::JournalReplayer;

StdinJournal::StdinJournal(QObject* parent, int fd)
    : QObject(parent), m_fd(fd), m_notifier(new QSocketNotifier(fd, QSocketNotifier::Read, this))
{
    connect(m_notifier, &QSocketNotifier::activated, this, [this] { readAvailable(); });
}

void StdinJournal::readAvailable()
{
    char buffer[1 << 16];
    const ssize_t got = ::read(m_fd, buffer, sizeof buffer);
    if (got <= 0) {
        m_notifier->setEnabled(false); // the end of the input: nothing more will come
        return;
    }
    // Only the bytes just read are searched for a line end, and a line is kept
    // no longer than a replay would take it.
    const char* const end = buffer + got;
    for (const char* at = buffer; at < end;) {
        const char* const lineEnd = std::find(at, end, '\n');
        if (!m_overlong) {
            const size_t length = static_cast<size_t>(lineEnd - at);
            m_overlong = length > JournalReplayer::MaxLineLength - m_partial.size();
            if (m_overlong)
                m_partial.clear();
            else
                m_partial.append(at, length);
        }
        if (lineEnd == end)
            break;
        if (m_overlong)
            skipOverlong();
        else
            take(m_partial);
        m_partial.clear();
        at = lineEnd + 1;
    }
}

void StdinJournal::skipOverlong()
{
    m_overlong = false;
    ++m_lineNumber;
    std::fprintf(stderr,
                 "orrery-demo: standard input, line %d: the line is longer than %zu characters; it was not played.\n",
                 m_lineNumber, JournalReplayer::MaxLineLength);
    m_stepBroken = m_stepBroken || !m_step.empty(); // nor is the rest of the step it was in
}

void StdinJournal::take(const std::string& line)
{
    if (m_step.empty())
        m_stepStart = m_lineNumber + 1;
    ++m_lineNumber;
    if (!m_step.add(line))
        return;
    std::istringstream in(m_step.take());
    const std::string source = "standard input (the step from line " + std::to_string(m_stepStart) + ")";
    if (m_stepBroken) {
        m_stepBroken = false;
        std::fprintf(stderr, "orrery-demo: %s: not played, one of its lines was too long.\n", source.c_str());
        return;
    }
    const JournalReplayer::Result result = JournalReplayer::replay(in, source);
    if (!result.ok)
        std::fprintf(stderr, "orrery-demo: %s\n", result.message.c_str());
}
