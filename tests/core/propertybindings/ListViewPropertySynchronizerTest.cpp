// A list view's selection and a property of row values, in both directions,
// including rows that come, go and change under a selection.
#include <set>
#include <QListView>
#include <QSignalSpy>

#include "tests/core/propertybindings/BindingTestSupport.h"
#include "core/propertybindings/ListViewPropertySynchronizer.h"

using namespace bindingtest;

namespace {

typedef std::set<int> Values;

class ListViewSynchronizerTest : public BindingFixture
{
protected:
    ListViewSynchronizerTest() : view(&window) { view.resize(300, 280); }

    std::unique_ptr<ListViewPropertySynchronizer<Values>>
    synchronize(BindingInterface::WidgetUpdateMode_e mode = BindingInterface::WidgetUpdateMode_OnIdle)
    {
        auto s = std::make_unique<ListViewPropertySynchronizer<Values>>(view, property, rows, mode);
        view.setSelectionMode(QAbstractItemView::MultiSelection);
        return s;
    }
    std::vector<int> selectedRows() const
    {
        std::vector<int> result;
        for (int row = 0; row < view.model()->rowCount(); ++row)
            if (view.selectionModel()->isSelected(view.model()->index(row, 0)))
                result.push_back(row);
        return result;
    }

    QListView view;
    boost::shared_ptr<TestListModel> rows = boost::make_shared<TestListModel>(TestListModel::numbered(8, 11));
    boost::shared_ptr<Property<Values>> property = boost::make_shared<Property<Values>>(Values{12, 14});
};

} // namespace

TEST_F(ListViewSynchronizerTest, ShowsTheRowsOfTheValuesAtOnceAndWritesOncePerClick)
{
    ASSERT_TRUE(showWindow());
    auto s = synchronize();
    EXPECT_EQ(selectedRows(), std::vector<int>({1, 3}));
    EXPECT_TRUE(view.uniformItemSizes());
    QSignalSpy selectionChanges(view.selectionModel(), &QItemSelectionModel::selectionChanged);
    s->setSelectionForPropertyValues({12, 14}); // the same rows again change nothing
    EXPECT_EQ(selectionChanges.count(), 0);

    Emissions<Values> emissions(*property);
    user::clickRow(view, 6);
    user::clickRow(view, 1);
    EXPECT_EQ(emissions.values, std::vector<Values>({{12, 14, 17}, {14, 17}}));
    runIdle();
    EXPECT_EQ(selectedRows(), std::vector<int>({3, 6}));
    EXPECT_EQ(emissions.count(), 2u);
}

TEST_F(ListViewSynchronizerTest, APropertyChangeSelectsOnIdleWithoutWritingBack)
{
    auto s = synchronize();
    Emissions<Values> emissions(*property);
    QSignalSpy selectionChanges(view.selectionModel(), &QItemSelectionModel::selectionChanged);
    property->setValue({11});
    property->setValue({15, 18, 99});
    EXPECT_EQ(selectedRows(), std::vector<int>({1, 3}));
    runIdle();
    EXPECT_EQ(selectedRows(), std::vector<int>({4, 7}));
    EXPECT_EQ(selectionChanges.count(), 1);
    // A value no row holds stays in the property.
    EXPECT_EQ(property->getValue(), Values({15, 18, 99}));
    EXPECT_EQ(emissions.count(), 2u);
}

TEST_F(ListViewSynchronizerTest, ARebuiltListIsSelectedByValueAndValuesOfVanishedRowsDropOut)
{
    auto s = synchronize(BindingInterface::WidgetUpdateMode_Immediate);
    Emissions<Values> emissions(*property);
    rows->replaceAll({{14, "fourteen"}, {20, "twenty"}, {12, "twelve"}, {13, "thirteen"}});
    EXPECT_EQ(selectedRows(), std::vector<int>({0, 2}));
    EXPECT_EQ(emissions.count(), 0u);
    rows->insertRow(0, {30, "thirty"});
    EXPECT_EQ(selectedRows(), std::vector<int>({1, 3}));
    EXPECT_EQ(property->getValue(), Values({12, 14}));

    rows->removeRows(2, 4);
    runIdle();
    EXPECT_EQ(property->getValue(), Values({14}));
    EXPECT_EQ(selectedRows(), std::vector<int>({1}));
}

TEST_F(ListViewSynchronizerTest, HeaderRowsAreNeverSelectedAndAVectorPropertyGetsTheValuesInRowOrder)
{
    rows = boost::make_shared<TestListModel>(TestListModel::numbered(4, 0), std::vector<int>{0, 2});
    property->setValue({0, 1, 2, 3});
    auto s = synchronize();
    EXPECT_EQ(selectedRows(), std::vector<int>({1, 3}));

    auto values = boost::make_shared<Property<std::vector<int>>>(std::vector<int>{15});
    auto unordered =
        boost::make_shared<TestListModel>(std::vector<TestListModel::Row>{{9, "a"}, {3, "b"}, {5, "c"}, {15, "d"}});
    QListView other(&window);
    other.resize(300, 280);
    ASSERT_TRUE(showWindow());
    ListViewPropertySynchronizer<std::vector<int>> vs(other, values, unordered,
                                                      BindingInterface::WidgetUpdateMode_OnIdle);
    other.setSelectionMode(QAbstractItemView::MultiSelection);
    user::clickRow(other, 2);
    user::clickRow(other, 0);
    EXPECT_EQ(values->getValue(), std::vector<int>({9, 5, 15}));
}

TEST_F(ListViewSynchronizerTest, ARefusedSelectionIsReportedAndTakenBackOnIdle)
{
    ASSERT_TRUE(showWindow());
    property = refusingProperty<Values>(Values{12}, Values{12, 13}, "Choose one zone only.");
    auto s = synchronize();
    user::clickRow(view, 2);
    EXPECT_EQ(messageTexts(), std::vector<std::string>({"Choose one zone only."}));
    EXPECT_EQ(property->getValue(), Values({12}));
    runIdle();
    EXPECT_EQ(selectedRows(), std::vector<int>({1}));
}

TEST_F(ListViewSynchronizerTest, ARebuildKeepingTheSelectedValuesLeavesAVectorPropertyInItsOwnOrder)
{
    typedef std::vector<int> Ordered;
    auto values = boost::make_shared<Property<Ordered>>(Ordered{40, 20});
    auto list =
        boost::make_shared<TestListModel>(std::vector<TestListModel::Row>{{10, "a"}, {20, "b"}, {30, "c"}, {40, "d"}});
    for (auto mode : {BindingInterface::WidgetUpdateMode_Immediate, BindingInterface::WidgetUpdateMode_OnIdle}) {
        values->setValue({40, 20});
        ListViewPropertySynchronizer<Ordered> vs(view, values, list, mode);
        view.setSelectionMode(QAbstractItemView::MultiSelection);
        runIdle();
        EXPECT_EQ(selectedRows(), std::vector<int>({1, 3}));
        Emissions<Ordered> emissions(*values);
        list->replaceAll({{10, "a"}, {20, "b"}, {30, "c"}, {40, "d"}});
        runIdle();
        EXPECT_EQ(values->getValue(), Ordered({40, 20}));
        EXPECT_EQ(emissions.count(), 0u);
        // A rebuild that loses a value still drops it.
        list->replaceAll({{10, "a"}, {40, "d"}});
        runIdle();
        EXPECT_EQ(values->getValue(), Ordered({40}));
        list->replaceAll({{10, "a"}, {20, "b"}, {30, "c"}, {40, "d"}});
        runIdle();
    }
}

TEST_F(ListViewSynchronizerTest, ASelectionFromThePropertyBecomesTheCurrentRowAndIsScrolledIntoSight)
{
    rows = boost::make_shared<TestListModel>(TestListModel::numbered(300, 1));
    property->setValue({251});
    view.resize(200, 120);
    ASSERT_TRUE(showWindow());
    auto s = synchronize();
    view.setSelectionMode(QAbstractItemView::SingleSelection);
    EXPECT_EQ(view.currentIndex().row(), 250);
    EXPECT_TRUE(view.viewport()->rect().intersects(view.visualRect(view.currentIndex())));
    // The keyboard goes on from there.
    view.setFocus();
    QTest::keyClick(&view, Qt::Key_Down);
    EXPECT_EQ(property->getValue(), Values({252}));

    property->setValue({3});
    runIdle();
    EXPECT_EQ(view.currentIndex().row(), 2);
    EXPECT_TRUE(view.viewport()->rect().intersects(view.visualRect(view.currentIndex())));
}
