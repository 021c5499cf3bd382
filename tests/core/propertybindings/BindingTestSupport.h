#pragma once
// Shared by the binding tests: a clean kernel without a data set whose message
// boxes are recorded, a shown window to put widgets in, and a list model that
// tests can change.
#include <QWidget>
#include "core/propertybindings/models/ListModelAbstract.h"
#include "tests/support/TestSupport.h"
#include "tests/support/UserActions.h"

namespace bindingtest {

using namespace orrery;
using namespace orrery::sdk::ui::dialogs::propertybindings;
using namespace testsupport;

class BindingFixture : public ::testing::Test
{
protected:
    void SetUp() override
    {
        Kernel::resetKernel();
        Kernel::captureMessageBoxes();
        runIdle();
    }

    // Makes the window active, so that focus changes behave as for a user.
    bool showWindow()
    {
        window.resize(400, 300);
        window.show();
        window.activateWindow();
        return QTest::qWaitForWindowActive(&window);
    }

    QWidget window;
};

// Rows of (value, text) that a test replaces, extends or shrinks.
class TestListModel : public orrery::sdk::ui::dialogs::propertybindings::models::ListModelAbstract<int>
{
public:
    typedef std::pair<int, std::string> Row;

    explicit TestListModel(std::vector<Row> rows = {}, std::vector<int> headers = {})
        : m_rows(std::move(rows)), m_headers(std::move(headers))
    {}
    static std::vector<Row> numbered(int count, int firstValue = 1)
    {
        std::vector<Row> rows;
        for (int i = 0; i < count; ++i)
            rows.emplace_back(firstValue + i, "row " + std::to_string(firstValue + i));
        return rows;
    }

    int size() const override { return static_cast<int>(m_rows.size()); }
    int get(int row) const override { return m_rows.at(static_cast<size_t>(row)).first; }
    std::string getStr(int row) const override { return m_rows.at(static_cast<size_t>(row)).second; }
    bool isHeader(int row) const override { return std::count(m_headers.begin(), m_headers.end(), row) > 0; }

    void replaceAll(std::vector<Row> rows)
    {
        m_rows = std::move(rows);
        emitDataChanged();
    }
    void removeRows(int first, int last)
    {
        m_rows.erase(m_rows.begin() + first, m_rows.begin() + last + 1);
        emitItemsRemoved(first, last);
    }
    void insertRow(int at, Row row)
    {
        m_rows.insert(m_rows.begin() + at, std::move(row));
        emitItemsInserted(at, at);
    }
    void renameRow(int row, const std::string& text)
    {
        m_rows.at(static_cast<size_t>(row)).second = text;
        emitItemChanged(row);
    }

private:
    std::vector<Row> m_rows;
    std::vector<int> m_headers;
};

} // namespace bindingtest
