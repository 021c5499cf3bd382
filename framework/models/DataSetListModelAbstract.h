#pragma once
#include "framework/FrameworkExport.h"
#include <string>
#include <unordered_map>
#include <vector>
#include <boost/signals2/connection.hpp>

#include "core/propertybindings/models/ListModelAbstract.h"

namespace orrery::sdk::ui::dialogs::propertybindings::models {

/// Rows taken from the kernel's data set (zones, variables): one row per
/// number, in ascending order, showing its name. The rows are fetched again
/// after every change of the data set or the frame, and a change is announced
/// only when they differ.
///
/// Names are asked of the kernel only for the rows that are shown, and kept:
/// a data set may hold a million zones, of which a list shows a few dozen.
class ORRERY_FRAMEWORK_EXPORT DataSetListModelAbstract : public ListModelAbstract<int>
{
public:
    ~DataSetListModelAbstract() override;

    int size() const override { return static_cast<int>(m_numbers.size()); }
    int get(int row) const override { return m_numbers[static_cast<size_t>(row)]; }
    std::string getStr(int row) const override;
    int indexOf(const int& number) const override;

    /// Fetches the rows again; announces a change only when they differ.
    void refresh();

protected:
    DataSetListModelAbstract();
    /// Ascending.
    virtual std::vector<int> fetchNumbers() const = 0;
    /// The text shown for \a number.
    virtual std::string fetchText(int number) const = 0;
    /// Takes over a string returned by the kernel's C interface.
    static std::string takeKernelString(char* text);

private:
    bool shownTextsChanged() const;

    std::vector<int> m_numbers;
    mutable std::unordered_map<int, std::string> m_shownTexts; // by row
    boost::signals2::scoped_connection m_stateChanges;
};

} // namespace orrery::sdk::ui::dialogs::propertybindings::models
