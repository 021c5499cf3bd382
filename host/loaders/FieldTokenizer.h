#pragma once
#include <cstddef>
#include <memory>
#include <string>
#include <string_view>

namespace orrery {
namespace sdk {

class FileBlockReader;

// Splits text into records of fields, one field at a time, holding no more
// than one block of the file and one field. Fields are separated by one
// delimiter character, or, with delimiter 0, by runs of spaces and tabs.
// A field may be quoted: "..." holds delimiters and line breaks, "" stands for
// one quote. Records end at LF, CRLF or CR. Spaces around a field are dropped,
// blank lines and lines starting with '#' are skipped, and a UTF-8 byte-order
// mark at the start of a file is ignored.
class FieldTokenizer
{
public:
    struct Field
    {
        std::string_view text; // valid until the next call
        bool quoted = false;
        bool lastInRecord = false;
        size_t line = 0;   // where the field starts, from 1
        size_t column = 0; // the field's place in its record, from 1
    };
    enum class Step
    {
        Field,
        End,
        Failed
    };

    static constexpr size_t MaxFieldLength = 1 << 16;

    // Reads the file from its current position, which is the start of the
    // file or, with atFileStart false, the start of a line within it.
    FieldTokenizer(FileBlockReader& file, char delimiter, bool atFileStart = true);
    // Reads the given text, which is copied.
    FieldTokenizer(std::string_view text, char delimiter);
    ~FieldTokenizer();

    // The next field; on Failed, error() tells what and where.
    Step next(Field& field);
    // The text read ahead, when the next field starts a record; empty otherwise.
    // Lets a faster reader take whole records straight from the buffer.
    std::string_view bufferedRecords() const;
    // Moves past the first bytes of bufferedRecords(), which held that many
    // records of one line each.
    void skipRecords(size_t bytes, size_t records);
    // What went wrong, naming the file, the line and the column; the lines
    // are counted from 1 + linesBefore.
    std::string error(const std::string& fileName, size_t linesBefore = 0) const;
    // The lines read so far.
    size_t lines() const { return m_line - 1; }

private:
    FieldTokenizer(FileBlockReader* file, size_t capacity, char delimiter);
    bool nextPlain(Field& field);
    int peek();
    bool refill();
    void take() { ++m_pos; }
    void takeLineEnd();
    bool scanUnquoted(const bool* stops);
    bool scanQuoted();
    void skipBlanks();
    bool fail(const std::string& what);
    bool failOnByte(unsigned char byte);

    FileBlockReader* m_file = nullptr;
    std::unique_ptr<char[]> m_buffer;
    size_t m_capacity = 0;
    size_t m_pos = 0;
    size_t m_end = 0;
    bool m_eof = false;
    bool m_started = false;
    bool m_recordStart = true;
    char m_delimiter;
    size_t m_line = 1;
    size_t m_column = 0;
    size_t m_fieldLine = 1;
    std::string m_cell;
    std::string m_error;
    bool m_errorHasPlace = false;
    size_t m_errorLine = 0;
    size_t m_errorColumn = 0;
    bool m_unquotedStops[256] = {};
    bool m_quotedStops[256] = {};
};

} // namespace sdk
} // namespace orrery
