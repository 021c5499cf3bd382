// A combo box and its property, driven through the keyboard as a user would.
#include <QComboBox>

#include "tests/core/propertybindings/BindingTestSupport.h"
#include "core/propertybindings/ComboBoxPropertyBinding.h"
#include "core/propertybindings/models/QListModel.h"

using namespace bindingtest;

namespace {

class ComboBoxBindingTest : public BindingFixture
{
protected:
    ComboBoxBindingTest() : combo(&window) {}

    QComboBox combo;
    boost::shared_ptr<TestListModel> rows =
        boost::make_shared<TestListModel>(std::vector<TestListModel::Row>{{10, "ten"}, {20, "twenty"}, {30, "thirty"}});
    boost::shared_ptr<Property<int>> property = boost::make_shared<Property<int>>(20);
};

} // namespace

TEST_F(ComboBoxBindingTest, AUserChoiceStoresOnceAndAPropertyChangeSelectsItsRowOnIdleNeitherWritingBack)
{
    ComboBoxPropertyBinding<int> binding(combo, property, rows);
    runIdle();
    ASSERT_EQ(combo.count(), 3);
    EXPECT_EQ(combo.currentText(), QStringLiteral("twenty"));
    EXPECT_EQ(combo.itemData(2, models::QListModel<int>::ValueRole).toInt(), 30);
    EXPECT_EQ(combo.insertPolicy(), QComboBox::NoInsert);

    Emissions<int> emissions(*property);
    QTest::keyClick(&combo, Qt::Key_Down);
    EXPECT_EQ(emissions.values, std::vector<int>({30}));
    runIdle();
    EXPECT_EQ(combo.currentIndex(), 2);
    EXPECT_EQ(emissions.count(), 1u);

    property->setValue(10);
    property->setValue(20);
    EXPECT_EQ(combo.currentIndex(), 2);
    runIdle();
    EXPECT_EQ(combo.currentIndex(), 1);
    EXPECT_EQ(emissions.values, std::vector<int>({30, 10, 20}));
}

TEST_F(ComboBoxBindingTest, AValueOutsideTheListIsTextInAnEditableComboAndTheFirstRowOfAFixedOne)
{
    property->setValue(25);
    QComboBox editable(&window);
    editable.setEditable(true);
    ComboBoxPropertyBinding<int> editableBinding(editable, property, rows);
    ComboBoxPropertyBinding<int> binding(combo, property, rows);
    runIdle();
    EXPECT_EQ(editable.currentText(), QStringLiteral("25"));
    EXPECT_EQ(property->getValue(), 25);
    QTest::keyClick(&combo, Qt::Key_End);
    property->setValue(26);
    runIdle();
    EXPECT_EQ(combo.currentIndex(), 0);
    EXPECT_EQ(property->getValue(), 26);
}

TEST_F(ComboBoxBindingTest, RebuildingOrEmptyingTheListKeepsTheValueAndReselectsItOnIdle)
{
    ComboBoxPropertyBinding<int> binding(combo, property, rows, BindingInterface::ModelUpdate_DeferredWhileBusy);
    runIdle();
    Emissions<int> emissions(*property);
    rows->replaceAll({{5, "five"}, {30, "thirty"}, {20, "twenty"}});
    rows->removeRows(0, 0);
    rows->insertRow(0, {1, "one"});
    EXPECT_EQ(emissions.count(), 0u);
    runIdle();
    EXPECT_EQ(combo.currentText(), QStringLiteral("twenty"));
    rows->replaceAll({});
    runIdle();
    EXPECT_EQ(combo.currentIndex(), -1);
    EXPECT_EQ(property->getValue(), 20);
    EXPECT_EQ(emissions.count(), 0u);
}

TEST_F(ComboBoxBindingTest, ARefusedChoiceIsReportedOnceAndUndoneOnIdle)
{
    auto refusing = refusingProperty<int>(20, 30, "That variable cannot be used.");
    ComboBoxPropertyBinding<int> binding(combo, refusing, rows);
    runIdle();
    QTest::keyClick(&combo, Qt::Key_Down);
    EXPECT_EQ(messageTexts(), std::vector<std::string>({"That variable cannot be used."}));
    EXPECT_EQ(refusing->getValue(), 20);
    runIdle();
    EXPECT_EQ(combo.currentText(), QStringLiteral("twenty"));
}
