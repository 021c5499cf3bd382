#pragma once
#include <string>
#include <vector>
#include "host/loaders/FieldTokenizer.h"
#include "host/loaders/PlainNumberRows.h"

namespace orrery {
namespace sdk {

class ColumnTable;
class FileBlockReader;
class TableLayout;

// Reads the records of a delimited table, or of one part of it, into a
// ColumnTable: the header row first where the layout has one, then records
// of as many cells as the first, plain numeric ones on the short route.
class TableReader
{
public:
    // Reads the file from its start.
    TableReader(FileBlockReader& file, const TableLayout& layout, ColumnTable& table);
    // Reads a later part of the file, which starts at a line and holds
    // records of `columns` cells.
    TableReader(FileBlockReader& file, const TableLayout& layout, ColumnTable& table, size_t columns);

    // Reads until the end of the file or part, or until the first record of
    // values is complete when firstRecordOnly is set. False on a refused
    // record or a read error.
    bool read(bool firstRecordOnly = false);
    // True once the end of the file or part has been reached.
    bool finished() const { return m_finished; }
    // Cells per record, known once the first has been read; 0 before.
    size_t columns() const { return m_columns; }
    std::vector<std::string>& headerCells() { return m_headerCells; }
    // The lines read so far.
    size_t lines() const { return m_tokenizer.lines(); }
    // What went wrong, naming the file, the line (counted from 1 + linesBefore) and the column.
    std::string error(const std::string& fileName, size_t linesBefore = 0) const;

private:
    bool fail(size_t line, size_t column, std::string what);

    FieldTokenizer m_tokenizer;
    ColumnTable& m_table;
    PlainNumberRows m_plainRows;
    bool m_inHeader;
    bool m_allNumbers = false; // once every column holds numbers, plain records take the short route
    size_t m_columns = 0;
    size_t m_column = 0;
    std::vector<std::string> m_headerCells;
    bool m_tokenizerFailed = false;
    bool m_finished = false;
    size_t m_errorLine = 0;
    size_t m_errorColumn = 0;
    std::string m_error;
};

} // namespace sdk
} // namespace orrery
