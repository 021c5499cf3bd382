#pragma once
#include <string>
#include <vector>
#include <boost/signals2/connection.hpp>

#include "core/propertybindings/models/ListModelAbstract.h"

namespace orrery::sdk::ui::dialogs::propertybindings::models {

// Rows taken from the kernel's data set (zones, variables): one row per
// number, showing its name. The rows are fetched again after every change of
// the data set or the frame, and a change is announced only when they differ.
class DataSetListModelAbstract : public ListModelAbstract<int>
{
public:
    ~DataSetListModelAbstract() override;

    int size() const override { return static_cast<int>(m_rows.size()); }
    int get(int row) const override { return m_rows[static_cast<size_t>(row)].number; }
    std::string getStr(int row) const override { return m_rows[static_cast<size_t>(row)].text; }

    void refresh();

protected:
    struct Row
    {
        int number;
        std::string text;
        bool operator==(const Row& other) const { return number == other.number && text == other.text; }
    };

    DataSetListModelAbstract();
    virtual std::vector<Row> fetchRows() const = 0;
    // Takes over a string returned by the kernel's C interface.
    static std::string takeKernelString(char* text);

private:
    std::vector<Row> m_rows;
    boost::signals2::scoped_connection m_stateChanges;
};

} // namespace orrery::sdk::ui::dialogs::propertybindings::models
