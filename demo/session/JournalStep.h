#pragma once
#include <string>

// Gathers journal lines into whole undo steps: a lone line, or a begin line
// with everything up to its end, nested brackets included.
class JournalStep
{
public:
    // True once the lines gathered make a whole step.
    bool add(const std::string& line)
    {
        m_lines += line + '\n';
        if (line.compare(0, 5, "begin") == 0)
            ++m_depth;
        else if (line.compare(0, 3, "end") == 0 && m_depth > 0)
            --m_depth;
        return m_depth == 0;
    }
    bool empty() const { return m_lines.empty(); }
    // The step's lines, each ending in a newline; the gatherer starts afresh.
    std::string take()
    {
        std::string lines;
        lines.swap(m_lines);
        m_depth = 0;
        return lines;
    }

private:
    std::string m_lines;
    int m_depth = 0; // begin lines without their end yet
};
