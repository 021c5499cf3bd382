#pragma once
#include "framework/FrameworkExport.h"
#include <string>
#include <vector>
#include "core/propertybindings/models/ListModelAbstract.h"

namespace orrery::sdk::ui::dialogs::propertybindings::models {

/// A list of texts with header rows between groups (captions, not choices). A
/// row's value is its row number.
class ORRERY_FRAMEWORK_EXPORT StringListWithHeadersModel : public ListModelAbstract<int>
{
public:
    StringListWithHeadersModel() = default;

    /// Appends a choice showing \a text (UTF-8).
    void appendRow(const std::string& text);
    /// Appends a header showing \a text (UTF-8).
    void appendHeaderRow(const std::string& text);
    /// Removes every row.
    void clear();

    int size() const override { return static_cast<int>(m_rows.size()); }
    int get(int row) const override { return row; }
    std::string getStr(int row) const override;
    bool isHeader(int row) const override;

private:
    struct Row
    {
        std::string text;
        bool header;
    };

    void append(const std::string& text, bool header);
    bool holds(int row) const { return row >= 0 && row < size(); }

    std::vector<Row> m_rows;
};

} // namespace orrery::sdk::ui::dialogs::propertybindings::models
