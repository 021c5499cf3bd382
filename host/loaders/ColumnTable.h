#pragma once
#include <memory>
#include <string>
#include <string_view>
#include <unordered_map>
#include <vector>

namespace orrery {
namespace sdk {

// Cells read into one column of doubles per variable. A column holds numbers
// or, when its cells are text, categories numbered 1, 2, ... in order of first
// appearance. A missing cell is stored as NaN.
class ColumnTable
{
public:
    enum class Kind
    {
        Undecided,
        Number,
        Category
    };
    struct Options
    {
        bool decimalComma = false;
        bool missingTokens = true; // NA, empty cells and the like are missing values, not errors
    };

    // More columns than this are refused: every variable costs far more than its values.
    static constexpr size_t MaxColumns = 16384;

    ColumnTable(std::vector<Kind> kinds, Options options);
    ColumnTable(ColumnTable&&) = default;
    ColumnTable& operator=(ColumnTable&&) = default;

    // Room for this many rows in each column, present and later ones.
    void reserve(size_t rows);
    // A table that fills `rows` rows of this table's columns from firstRow
    // on, from another thread, while this table fills the rows before it; the
    // columns must all hold numbers and have room for both. Until join(),
    // neither table takes more rows than its part has room for.
    ColumnTable continuation(size_t firstRow, size_t rows);
    // Takes the continuation's rows after this table's own.
    void join(ColumnTable& continuation);

    // Adds the cell to the column (0-based); a column one past the last is
    // created. False with a reason (quoting the cell) when the cell is refused.
    bool add(size_t column, std::string_view text, std::string& reason);
    // Adds one number to each column, all of which hold numbers; false when
    // the part has no room left.
    bool addRow(const double* values);
    bool allNumbers() const;
    size_t columnCount() const { return m_columns.size(); }
    size_t rowCount() const { return m_columns.empty() ? 0 : m_columns.front().count; }
    size_t missingCount() const { return m_missing; }
    Kind kind(size_t column) const { return m_columns[column].kind; }
    const std::vector<std::string>& categories(size_t column) const { return m_columns[column].categories; }
    // The columns' values, moved out; the table is empty afterwards.
    std::vector<std::vector<double>> takeValues();

    static const char* const NoRoomReason;

private:
    struct Column
    {
        Kind kind = Kind::Undecided;
        std::vector<double> values; // the rows, unless they go into another table's column
        double* elsewhere = nullptr;
        size_t count = 0; // rows added
        size_t room = 0;  // rows this part may hold while it shares the column
        std::vector<std::string> categories;
        std::unordered_map<std::string, double> categoryNumbers;
    };
    bool put(Column& column, double value);
    bool addNumber(Column& column, std::string_view text, std::string& reason);
    bool addCategory(Column& column, std::string_view text);

    std::vector<Column> m_columns;
    std::vector<Kind> m_initialKinds;
    Options m_options;
    size_t m_reserved = 0;
    size_t m_missing = 0;
    bool m_fixedRoom = false; // a continuation shares the columns: they must not move
};

} // namespace sdk
} // namespace orrery
