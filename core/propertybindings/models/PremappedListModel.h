#pragma once
#include <cstddef>
#include <QCoreApplication>
#include "core/propertybindings/models/ListModelAbstract.h"
#include "core/propertybindings/models/OptionRow.h"

namespace orrery::sdk::ui::dialogs::propertybindings::models {

/// Serves a constant option table; never changes, so never signals.
template <typename T>
class PremappedListModel : public ListModelAbstract<T>
{
public:
    /// One row of the table.
    typedef OptionRow<typename OptionValue<T>::type> Row;

    /// Serves \a count rows from \a rows, which must outlive the model (tables are static).
    PremappedListModel(const Row* rows, int count) : m_rows(rows), m_count(count) {}
    /// Serves every row of a static \a table.
    template <std::size_t N>
    explicit PremappedListModel(const Row (&table)[N]) : PremappedListModel(table, static_cast<int>(N))
    {}

    /// Number of rows in the table.
    int size() const override { return m_count; }
    /// The value of \a row, as T.
    T get(int row) const override { return static_cast<T>(m_rows[row].value); }
    /// Option texts are shown in the user's language; numbers pass unchanged.
    std::string getStr(int row) const override
    {
        return QCoreApplication::translate("OptionTables", m_rows[row].text.c_str()).toStdString();
    }

private:
    const Row* m_rows;
    int m_count;
};

} // namespace orrery::sdk::ui::dialogs::propertybindings::models
