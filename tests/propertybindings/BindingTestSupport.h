#pragma once
// Shared by the binding tests: a clean kernel without a data set whose message
// boxes are recorded, the idle queue run on demand, a shown window to put
// widgets in, a validator that refuses one value and a list model that tests can change.
#include <string>
#include <utility>
#include <vector>
#include <QApplication>
#include <QTest>
#include <QWidget>
#include <gtest/gtest.h>

#include "platform/common/IdleQueue.h"
#include "property/Property.h"
#include "propertybindings/models/ListModelAbstract.h"
#include "support/Recorders.h"
#include "support/UserActions.h"

namespace bindingtest {

using testsupport::Emissions;
using testsupport::Kernel;
using testsupport::RelevanceChanges;

inline void runIdle() { orrery::sdk::ui::common::IdleQueue::instance().flush(); }

inline std::vector<std::string> messageTexts()
{
    std::vector<std::string> texts;
    for (const Kernel::CapturedMessageBox& box : Kernel::capturedMessageBoxes())
        texts.push_back(box.text);
    return texts;
}

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

// A property whose validator refuses one value with a given text.
template <typename T>
class RefusingValidator : public orrery::ValidatorInterface<T>
{
public:
    RefusingValidator(const T& refused, const std::string& text) : m_refused(refused), m_text(text) {}
    orrery::ValidationResult validate(const T& value) const override
    {
        orrery::ValidationResult result;
        if (value == m_refused)
            result.setErrorString(m_text);
        return result;
    }

private:
    T m_refused;
    std::string m_text;
};

template <typename T>
boost::shared_ptr<orrery::Property<T>> refusingProperty(const T& initial, const T& refused, const std::string& text)
{
    return boost::make_shared<orrery::Property<T>>(initial, boost::make_shared<RefusingValidator<T>>(refused, text));
}

// Rows of (value, text) that a test replaces, extends or shrinks.
class TestListModel : public orrery::sdk::ui::dialogs::propertybindings::models::ListModelAbstract<int>
{
public:
    typedef std::pair<int, std::string> Row;

    explicit TestListModel(std::vector<Row> rows = {}, std::vector<int> headers = {})
        : m_rows(std::move(rows)), m_headers(std::move(headers))
    {
    }
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
    bool isHeader(int row) const override
    {
        return std::find(m_headers.begin(), m_headers.end(), row) != m_headers.end();
    }

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
