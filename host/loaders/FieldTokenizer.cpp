#include "host/loaders/FieldTokenizer.h"
#include <cstdio>
#include <cstring>
#include "host/loaders/FileBlockReader.h"

namespace orrery {
namespace sdk {

namespace {

// Control bytes other than tab and line ends do not occur in text files.
bool isBinary(unsigned char c)
{
    return (c < 0x20 && c != '\t' && c != '\n' && c != '\r') || c == 0x7F;
}

} // namespace

FieldTokenizer::FieldTokenizer(FileBlockReader& file, char delimiter, bool atFileStart)
    : FieldTokenizer(&file, FileBlockReader::BlockSize, delimiter)
{
    m_started = !atFileStart;
}

FieldTokenizer::FieldTokenizer(std::string_view text, char delimiter)
    : FieldTokenizer(nullptr, text.size() + 1, delimiter)
{
    std::memcpy(m_buffer.get(), text.data(), text.size());
    m_end = text.size();
    m_eof = true;
}

FieldTokenizer::FieldTokenizer(FileBlockReader* file, size_t capacity, char delimiter)
    : m_file(file), m_buffer(new char[capacity]), m_capacity(capacity), m_delimiter(delimiter)
{
    for (int c = 0; c < 256; ++c) {
        const bool binary = isBinary(static_cast<unsigned char>(c));
        m_unquotedStops[c] = binary || c == '\n' || c == '\r'
                             || (delimiter ? c == static_cast<unsigned char>(delimiter) : c == ' ' || c == '\t');
        m_quotedStops[c] = binary || c == '"' || c == '\n';
    }
    m_cell.reserve(256);
}

FieldTokenizer::~FieldTokenizer() = default;

std::string FieldTokenizer::error(const std::string& fileName, size_t linesBefore) const
{
    if (!m_errorHasPlace)
        return m_error;
    return fileName + ", line " + std::to_string(m_errorLine + linesBefore) + ", column "
           + std::to_string(m_errorColumn) + ": " + m_error;
}

std::string_view FieldTokenizer::bufferedRecords() const
{
    if (!m_started || !m_recordStart)
        return {};
    return std::string_view(m_buffer.get() + m_pos, m_end - m_pos);
}

void FieldTokenizer::skipRecords(size_t bytes, size_t records)
{
    m_pos += bytes;
    m_line += records;
}

bool FieldTokenizer::refill()
{
    if (m_eof || !m_file)
        return false;
    size_t got = 0;
    if (!m_file->read(m_buffer.get(), m_capacity, got, m_error))
        return false;
    m_pos = 0;
    m_end = got;
    m_eof = got == 0;
    return got > 0;
}

int FieldTokenizer::peek()
{
    if (m_pos == m_end && !refill())
        return -1;
    return static_cast<unsigned char>(m_buffer[m_pos]);
}

void FieldTokenizer::takeLineEnd()
{
    if (peek() == '\r') {
        take();
        if (peek() == '\n')
            take();
    } else {
        take();
    }
    ++m_line;
}

void FieldTokenizer::skipBlanks()
{
    for (int c = peek(); (c == ' ' || c == '\t') && c != m_delimiter; c = peek())
        take();
}

bool FieldTokenizer::fail(const std::string& what)
{
    if (m_error.empty()) {
        m_error = what;
        m_errorLine = m_fieldLine;
        m_errorColumn = m_column;
        m_errorHasPlace = true;
    }
    return false;
}

bool FieldTokenizer::failOnByte(unsigned char byte)
{
    char text[64];
    std::snprintf(text, sizeof text, "byte 0x%02X does not belong in a text file.", byte);
    m_fieldLine = m_line;
    return fail(text);
}

bool FieldTokenizer::scanUnquoted(const bool* stops)
{
    for (;;) {
        if (peek() < 0)
            return m_error.empty();
        const char* begin = m_buffer.get() + m_pos;
        const char* end = m_buffer.get() + m_end;
        const char* p = begin;
        while (p != end && !stops[static_cast<unsigned char>(*p)])
            ++p;
        m_cell.append(begin, p);
        m_pos += static_cast<size_t>(p - begin);
        if (m_cell.size() > MaxFieldLength)
            return fail("a cell longer than " + std::to_string(MaxFieldLength) + " characters.");
        if (p != end)
            return !isBinary(static_cast<unsigned char>(*p)) || failOnByte(static_cast<unsigned char>(*p));
    }
}

bool FieldTokenizer::scanQuoted()
{
    take(); // the opening quote
    for (;;) {
        if (!scanUnquoted(m_quotedStops))
            return false;
        const int c = peek();
        if (c < 0)
            return fail("a quoted cell is not closed before the end of the file.");
        take();
        if (c == '\n') {
            ++m_line;
            m_cell += '\n';
        } else if (peek() == '"') { // a doubled quote stands for one
            take();
            m_cell += '"';
        } else {
            return true;
        }
    }
}

bool FieldTokenizer::nextPlain(Field& field)
{
    // An unquoted field that ends inside the buffer is handed out where it lies.
    const char* begin = m_buffer.get() + m_pos;
    const char* end = m_buffer.get() + m_end;
    const unsigned char first = static_cast<unsigned char>(*begin);
    if (!m_delimiter || first == '"' || first == ' ' || first == '\t'
        || (m_recordStart && (first == '#' || first == '\n' || first == '\r')))
        return false;
    const char* p = begin;
    while (p != end && !m_unquotedStops[static_cast<unsigned char>(*p)])
        ++p;
    if (p == end || static_cast<size_t>(p - begin) > MaxFieldLength)
        return false;
    const char* next = p + 1;
    if (*p == '\r') {
        if (next == end || *next != '\n')
            return false;
        ++next;
    } else if (*p != '\n' && *p != m_delimiter) {
        return false;
    }
    const char* last = p;
    while (last != begin && (last[-1] == ' ' || last[-1] == '\t'))
        --last;
    if (m_recordStart)
        m_column = 0;
    field.text = std::string_view(begin, static_cast<size_t>(last - begin));
    field.quoted = false;
    field.line = m_line;
    field.column = ++m_column;
    field.lastInRecord = *p != m_delimiter;
    m_recordStart = field.lastInRecord;
    m_line += field.lastInRecord ? 1 : 0;
    m_pos = static_cast<size_t>(next - m_buffer.get());
    return true;
}

FieldTokenizer::Step FieldTokenizer::next(Field& field)
{
    if (m_started && m_pos < m_end && nextPlain(field))
        return Step::Field;
    m_cell.clear();
    if (!m_started) {
        m_started = true;
        if (peek() == 0xEF && m_end - m_pos >= 3 && std::memcmp(m_buffer.get() + m_pos, "\xEF\xBB\xBF", 3) == 0)
            m_pos += 3;
    }
    if (m_recordStart) {
        for (;;) {
            skipBlanks();
            const int c = peek();
            if (c < 0)
                return m_error.empty() ? Step::End : Step::Failed;
            if (c == '\n' || c == '\r') {
                takeLineEnd();
            } else if (c == '#') {
                while (peek() >= 0 && peek() != '\n' && peek() != '\r')
                    take();
            } else {
                break;
            }
        }
        m_recordStart = false;
        m_column = 0;
    } else {
        skipBlanks();
    }
    ++m_column;
    m_fieldLine = m_line;
    field.line = m_line;
    field.column = m_column;
    field.quoted = peek() == '"';
    if (field.quoted) {
        if (!scanQuoted())
            return Step::Failed;
        skipBlanks();
    } else {
        if (!scanUnquoted(m_unquotedStops))
            return Step::Failed;
        while (!m_cell.empty() && (m_cell.back() == ' ' || m_cell.back() == '\t'))
            m_cell.pop_back();
        if (!m_delimiter)
            skipBlanks();
    }
    const int c = peek();
    if (c < 0 && !m_error.empty())
        return Step::Failed;
    field.lastInRecord = c < 0 || c == '\n' || c == '\r';
    if (c == '\n' || c == '\r')
        takeLineEnd();
    else if (c >= 0 && c == static_cast<unsigned char>(m_delimiter))
        take();
    else if (c >= 0 && m_delimiter) {
        fail("text follows the closing quote of a cell.");
        return Step::Failed;
    }
    m_recordStart = field.lastInRecord;
    field.text = m_cell;
    return Step::Field;
}

} // namespace sdk
} // namespace orrery
