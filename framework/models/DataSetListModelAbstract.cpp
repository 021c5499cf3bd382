#include "framework/models/DataSetListModelAbstract.h"

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

void DataSetListModelAbstract::refresh()
{
    std::vector<Row> rows = fetchRows();
    if (rows == m_rows)
        return;
    m_rows.swap(rows);
    emitDataChanged();
}

std::string DataSetListModelAbstract::takeKernelString(char* text)
{
    std::string taken = text ? text : "";
    OrrUtilStringDealloc(&text);
    return taken;
}

} // namespace orrery::sdk::ui::dialogs::propertybindings::models
