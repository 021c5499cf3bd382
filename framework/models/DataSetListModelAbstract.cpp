#include "framework/models/DataSetListModelAbstract.h"

#include <algorithm>
#include "platform/common/HostCall.h"
#include "platform/kernel/OrrUtil.h"
#include "platform/sdk/StateChangeEventObservable.h"

namespace orrery::sdk::ui::dialogs::propertybindings::models {

DataSetListModelAbstract::DataSetListModelAbstract()
{
    // Style changes (code 7) never change zones or variables and come with every edit.
    m_stateChanges = integration::StateChangeEventObservable::getInstance().signal().connect(
        [this](const integration::StateChangeEventInterface& event) {
            if (event.code() != StateChange_Style)
                refresh();
        });
}

DataSetListModelAbstract::~DataSetListModelAbstract() = default;

std::string DataSetListModelAbstract::getStr(int row) const
{
    if (row < 0 || row >= size())
        return std::string();
    auto shown = m_shownTexts.find(row);
    if (shown == m_shownTexts.end())
        shown = m_shownTexts.emplace(row, fetchText(get(row))).first;
    return shown->second;
}

int DataSetListModelAbstract::indexOf(const int& number) const
{
    const auto at = std::lower_bound(m_numbers.begin(), m_numbers.end(), number);
    return at != m_numbers.end() && *at == number ? static_cast<int>(at - m_numbers.begin()) : -1;
}

void DataSetListModelAbstract::refresh()
{
    std::vector<int> numbers = fetchNumbers();
    if (numbers == m_numbers && !shownTextsChanged())
        return;
    m_numbers.swap(numbers);
    m_shownTexts.clear();
    emitDataChanged();
}

// Texts not yet shown are fetched fresh when they are, so only the shown ones
// can be stale (a renamed zone, another data set with as many zones).
bool DataSetListModelAbstract::shownTextsChanged() const
{
    return std::any_of(m_shownTexts.begin(), m_shownTexts.end(),
                       [this](const auto& shown) { return fetchText(get(shown.first)) != shown.second; });
}

std::string DataSetListModelAbstract::takeKernelString(char* text)
{
    return HostCall::take("a host operation's text", text, HostCall::Null::Empty);
}

} // namespace orrery::sdk::ui::dialogs::propertybindings::models
