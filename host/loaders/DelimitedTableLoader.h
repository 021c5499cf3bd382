#pragma once
#include <atomic>
#include <string>
#include <vector>
#include "platform/loaders/DataLoaderInterface.h"

namespace orrery {
namespace sdk {

class ColumnTable;
class FileBlockReader;
class TableLayout;
class TableReader;

// Loads a single table into one zone named after the file: one line per point,
// the delimiter and decimal mark recognised from the first lines, an optional
// header row of variable names, missing values (empty, NA, N/A, NaN, -) kept
// as such and text columns read as categories. Blank lines and lines starting
// with '#' are skipped. The file is read in blocks, never whole.
class DelimitedTableLoader : public DataLoaderInterface
{
public:
    bool load(const std::string& path, std::string& error) override;
    std::string lastLoadSummary() const override { return m_summary; }
    // Files of at least this many bytes whose cells are all numbers are read
    // by two threads, each taking one half.
    void readInTwoPartsFrom(long long bytes) { m_twoPartsFrom = bytes; }

protected:
    // The delimiters to try, the preferred first (0: runs of spaces and tabs).
    virtual std::vector<char> delimiters() const = 0;

private:
    bool loadTable(const std::string& path, std::string& error);
    bool readInTwoParts(FileBlockReader& file, long long split, size_t firstRows, size_t laterRows,
                        const TableLayout& layout, ColumnTable& table, TableReader& reader,
                        const std::atomic<bool>& cancelled, std::string& error);

    std::string m_summary;
    long long m_twoPartsFrom = 8 << 20;
};

} // namespace sdk
} // namespace orrery
