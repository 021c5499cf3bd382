#include "framework/models/StringListWithHeadersModel.h"

namespace orrery::sdk::ui::dialogs::propertybindings::models {

void StringListWithHeadersModel::appendRow(const std::string& text)
{
    append(text, false);
}

void StringListWithHeadersModel::appendHeaderRow(const std::string& text)
{
    append(text, true);
}

void StringListWithHeadersModel::append(const std::string& text, bool header)
{
    m_rows.push_back(Row{text, header});
    const int row = size() - 1;
    emitItemsInserted(row, row);
}

void StringListWithHeadersModel::clear()
{
    if (m_rows.empty())
        return;
    const int last = size() - 1;
    m_rows.clear();
    emitItemsRemoved(0, last);
}

std::string StringListWithHeadersModel::getStr(int row) const
{
    return holds(row) ? m_rows[static_cast<size_t>(row)].text : std::string();
}

bool StringListWithHeadersModel::isHeader(int row) const
{
    return holds(row) && m_rows[static_cast<size_t>(row)].header;
}

} // namespace orrery::sdk::ui::dialogs::propertybindings::models
