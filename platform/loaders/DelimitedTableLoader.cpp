#include "platform/loaders/DelimitedTableLoader.h"
#include <QFileInfo>
#include "platform/kernel/Kernel.h"
#include "platform/loaders/ColumnTable.h"

namespace orrery {
namespace sdk {

namespace {

bool skipped(const std::string& line)
{
    const size_t start = line.find_first_not_of(" \t");
    return start == std::string::npos || line[start] == '#';
}

} // namespace

bool DelimitedTableLoader::load(const std::string& path, std::string& error)
{
    std::vector<std::string> lines;
    if (!ColumnTable::readLines(path, lines, error))
        return false;
    std::vector<std::string> header;
    ColumnTable table(0);
    for (size_t i = 0; i < lines.size(); ++i) {
        if (skipped(lines[i]))
            continue;
        if (header.empty()) {
            header = split(lines[i]);
            table = ColumnTable(header.size());
        } else if (!table.addRow(split(lines[i]), static_cast<int>(i + 1), error)) {
            return false;
        }
    }
    if (table.rowCount() == 0) {
        error = path + " holds no rows of values.";
        return false;
    }
    const std::string name = QFileInfo(QString::fromStdString(path)).completeBaseName().toStdString();
    kernel::DataSet data(name, header);
    data.addZone(name, table.columns());
    kernel::Kernel::instance().setDataSet(data);
    return true;
}

} // namespace sdk
} // namespace orrery
