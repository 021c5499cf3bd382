// The host's list models: rows that follow the kernel's data set, and a list
// with header rows.
#include "framework/models/EnabledVariablesListModel.h"
#include "framework/models/StringListWithHeadersModel.h"
#include "framework/models/ZoneListModel.h"
#include "platform/sdk/DataSetQueries.h"
#include "propertybindings/BindingTestSupport.h"

using namespace bindingtest;
using namespace orrery;
using namespace orrery::sdk::ui::dialogs::propertybindings::models;

namespace {

std::vector<std::pair<int, std::string>> rowsOf(const ListModelInterface<int>& model)
{
    std::vector<std::pair<int, std::string>> rows;
    for (int row = 0; row < model.size(); ++row)
        rows.emplace_back(model.get(row), model.getStr(row));
    return rows;
}

struct ChangeCounter
{
    explicit ChangeCounter(const ListModelInterface<int>& model)
    {
        model.connectToEveryChange([this] { ++count; }, connections);
    }
    int count = 0;
    SignalConnectionCollection connections;
};

typedef std::vector<std::pair<int, std::string>> Rows;
typedef BindingFixture HostListModelsTest;

} // namespace

TEST_F(HostListModelsTest, ZonesFollowTheDataSetAndTheEnabledZones)
{
    ZoneListModel zones(sdk::getEnabledZonesForFrame, false);
    ZoneListModel numbered(sdk::getEnabledZonesForFrame, true);
    ChangeCounter changes(zones);
    EXPECT_EQ(zones.size(), 0);
    Kernel::loadSampleDataSet();
    ASSERT_EQ(zones.size(), 3);
    EXPECT_EQ(changes.count, 1);
    EXPECT_EQ(numbered.getStr(1), "2: " + zones.getStr(1));
    EXPECT_EQ(numbered.get(1), 2);
    const Rows all = rowsOf(zones);
    Kernel::setEnabledZones({1, 3});
    EXPECT_EQ(rowsOf(zones), (Rows{all[0], all[2]}));
    EXPECT_EQ(changes.count, 2);
    Kernel::clearDataSet();
    EXPECT_EQ(zones.size(), 0);
}

TEST_F(HostListModelsTest, VariablesFollowTheEnabledVariablesButNotStyleOrUnchangedRows)
{
    Kernel::loadSampleDataSet();
    EnabledVariablesListModel vars;
    ChangeCounter changes(vars);
    Kernel::fireStateChange(StateChange_Style, {"GlobalRGB", "RGBMode"});
    Kernel::fireStateChange(StateChange_VarsAltered);
    EXPECT_EQ(changes.count, 0);
    ASSERT_EQ(vars.size(), 5);
    EXPECT_EQ(vars.get(3), 4);
    EXPECT_EQ(vars.indexOf(5), 4);
    Kernel::setEnabledVars({2, 4});
    EXPECT_EQ(vars.size(), 2);
    EXPECT_EQ(vars.get(1), 4);
    EXPECT_EQ(vars.indexOf(5), -1);
    EXPECT_EQ(changes.count, 1);
    Kernel::loadSampleDataSet("Small");
    EXPECT_EQ(rowsOf(vars).size(), 2u);
}

TEST_F(HostListModelsTest, HeaderListAppendsRowsAndHeadersAndClears)
{
    StringListWithHeadersModel list;
    std::vector<std::pair<int, int>> inserted, removed;
    SignalConnectionCollection connections;
    connections.add(list.connectToItemsInserted([&](int f, int l) { inserted.emplace_back(f, l); }));
    connections.add(list.connectToItemsRemoved([&](int f, int l) { removed.emplace_back(f, l); }));
    list.appendHeaderRow("Suggested Loaders");
    list.appendRow("CSV");
    list.appendHeaderRow("");
    list.appendRow("Text table");
    EXPECT_EQ(rowsOf(list), (Rows{{0, "Suggested Loaders"}, {1, "CSV"}, {2, ""}, {3, "Text table"}}));
    EXPECT_TRUE(list.isHeader(0));
    EXPECT_FALSE(list.isHeader(1));
    EXPECT_TRUE(list.isHeader(2));
    EXPECT_FALSE(list.isHeader(9));
    EXPECT_EQ(list.indexOf(3), 3);
    EXPECT_EQ(inserted, (std::vector<std::pair<int, int>>{{0, 0}, {1, 1}, {2, 2}, {3, 3}}));
    list.clear();
    list.clear();
    EXPECT_EQ(list.size(), 0);
    EXPECT_EQ(removed, (std::vector<std::pair<int, int>>{{0, 3}}));
}
