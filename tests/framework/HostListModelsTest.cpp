// The host's list models: rows that follow the kernel's data set.
#include "framework/models/EnabledVariablesListModel.h"
#include "framework/models/ZoneListModel.h"
#include "platform/sdk/DataSetQueries.h"
#include "tests/core/propertybindings/BindingTestSupport.h"

using namespace bindingtest;
using namespace orrery::sdk::ui::dialogs::propertybindings::models;

namespace {

typedef std::vector<std::pair<int, std::string>> Rows;

Rows rowsOf(const ListModelInterface<int>& model)
{
    Rows rows;
    for (int row = 0; row < model.size(); ++row)
        rows.emplace_back(model.get(row), model.getStr(row));
    return rows;
}

typedef BindingFixture HostListModelsTest;

} // namespace

TEST_F(HostListModelsTest, ZonesAndVariablesFollowTheDataSetAndWhatIsEnabled)
{
    ZoneListModel zones(sdk::getEnabledZonesForFrame, false);
    ZoneListModel numbered(sdk::getEnabledZonesForFrame, true);
    int changes = 0;
    SignalConnectionCollection connections;
    zones.connectToEveryChange([&changes] { ++changes; }, connections);
    EXPECT_EQ(zones.size(), 0);
    Kernel::loadSampleDataSet();
    ASSERT_EQ(zones.size(), 3);
    EXPECT_EQ(changes, 1);
    EXPECT_EQ(numbered.getStr(1), "2: " + zones.getStr(1));
    EXPECT_EQ(numbered.get(1), 2);
    const Rows all = rowsOf(zones);
    Kernel::setEnabledZones({1, 3});
    EXPECT_EQ(rowsOf(zones), (Rows{all[0], all[2]}));
    EXPECT_EQ(changes, 2);
    Kernel::clearDataSet();
    EXPECT_EQ(zones.size(), 0);

    // Variables follow the enabled variables, but not style changes or unchanged rows.
    Kernel::loadSampleDataSet();
    EnabledVariablesListModel vars;
    int varChanges = 0;
    vars.connectToEveryChange([&varChanges] { ++varChanges; }, connections);
    Kernel::fireStateChange(StateChange_Style, {"GlobalRGB", "RGBMode"});
    Kernel::fireStateChange(StateChange_VarsAltered);
    EXPECT_EQ(varChanges, 0);
    ASSERT_EQ(vars.size(), 5);
    EXPECT_EQ(vars.get(3), 4);
    EXPECT_EQ(vars.indexOf(5), 4);
    Kernel::setEnabledVars({2, 4});
    EXPECT_EQ(vars.size(), 2);
    EXPECT_EQ(vars.get(1), 4);
    EXPECT_EQ(vars.indexOf(5), -1);
    EXPECT_EQ(varChanges, 1);
    Kernel::loadSampleDataSet("Small");
    EXPECT_EQ(rowsOf(vars).size(), 2u);
}
