#include "host/loaders/TableReader.h"
#include "host/loaders/ColumnTable.h"
#include "host/loaders/TableLayout.h"

namespace orrery {
namespace sdk {

namespace {

std::string values(size_t count)
{
    return std::to_string(count) + (count == 1 ? " value" : " values");
}

} // namespace

TableReader::TableReader(FileBlockReader& file, const TableLayout& layout, ColumnTable& table)
    : m_tokenizer(file, layout.delimiter), m_table(table), m_plainRows(layout.delimiter, layout.decimalComma),
      m_inHeader(layout.header)
{}

TableReader::TableReader(FileBlockReader& file, const TableLayout& layout, ColumnTable& table, size_t columns)
    : m_tokenizer(file, layout.delimiter, false), m_table(table), m_plainRows(layout.delimiter, layout.decimalComma),
      m_inHeader(false), m_allNumbers(table.allNumbers()), m_columns(columns)
{}

bool TableReader::fail(size_t line, size_t column, std::string what)
{
    m_errorLine = line;
    m_errorColumn = column;
    m_error = std::move(what);
    return false;
}

std::string TableReader::error(const std::string& fileName, size_t linesBefore) const
{
    if (m_tokenizerFailed)
        return m_tokenizer.error(fileName, linesBefore);
    return fileName + ", line " + std::to_string(m_errorLine + linesBefore) + ", column "
           + std::to_string(m_errorColumn) + ": " + m_error;
}

bool TableReader::read(bool firstRecordOnly)
{
    FieldTokenizer::Field field;
    FieldTokenizer::Step step;
    std::string reason;
    for (;;) {
        if (m_allNumbers && m_column == 0) {
            size_t records = 0;
            const size_t bytes = m_plainRows.read(m_tokenizer.bufferedRecords(), m_table, records);
            m_tokenizer.skipRecords(bytes, records);
        }
        if ((step = m_tokenizer.next(field)) != FieldTokenizer::Step::Field)
            break;
        if (m_columns && m_column >= m_columns) {
            size_t count = m_column + 1;
            while (!field.lastInRecord && m_tokenizer.next(field) == FieldTokenizer::Step::Field)
                ++count;
            return fail(field.line, m_columns + 1,
                        values(count) + " where " + std::to_string(m_columns) + " were expected.");
        }
        if (m_inHeader) {
            if (m_headerCells.size() >= ColumnTable::MaxColumns)
                return fail(field.line, field.column,
                            "more than " + std::to_string(ColumnTable::MaxColumns) + " columns.");
            m_headerCells.emplace_back(field.text);
        } else if (!m_table.add(m_column, field.text, reason)) {
            return fail(field.line, field.column, reason);
        }
        ++m_column;
        if (field.lastInRecord) {
            if (m_columns && m_column < m_columns)
                return fail(field.line, m_column + 1,
                            values(m_column) + " where " + std::to_string(m_columns) + " were expected.");
            m_columns = m_column;
            m_column = 0;
            const bool header = m_inHeader;
            m_inHeader = false;
            m_allNumbers = m_allNumbers || m_table.allNumbers();
            if (firstRecordOnly && !header)
                return true;
        }
    }
    m_tokenizerFailed = step == FieldTokenizer::Step::Failed;
    m_finished = step == FieldTokenizer::Step::End;
    return !m_tokenizerFailed;
}

} // namespace sdk
} // namespace orrery
