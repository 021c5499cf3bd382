// A list model as Qt views see it: roles, editable rows, and relayed changes.
#include <QSignalSpy>

#include "tests/core/propertybindings/BindingTestSupport.h"
#include "core/propertybindings/models/QListModel.h"

using namespace bindingtest;
using orrery::sdk::ui::dialogs::propertybindings::models::ListModelAbstract;
using orrery::sdk::ui::dialogs::propertybindings::models::QListModel;

namespace {

class EditableModel : public TestListModel
{
public:
    using TestListModel::TestListModel;
    bool isEditable() const override { return true; }
    std::string getStrForEdit(int row) const override { return "edit " + getStr(row); }
    void setEditedItem(const std::string& text, int row) const override { edits.emplace_back(row, text); }
    mutable std::vector<std::pair<int, std::string>> edits;
};

} // namespace

TEST(QListModelTest, OffersTextValueAndEditTextByRoleOnlyForEditableRows)
{
    TestListModel rows({{7, "seven"}, {9, "nine"}, {7, "again"}});
    QListModel<int> model(rows);
    const QModelIndex second = model.index(1, 0);
    EXPECT_EQ(model.rowCount(), 3);
    EXPECT_EQ(model.data(second, Qt::DisplayRole).toString(), QStringLiteral("nine"));
    EXPECT_EQ(model.data(second, Qt::ToolTipRole).toString(), QStringLiteral("nine"));
    EXPECT_EQ(model.data(second, QListModel<int>::ValueRole).toInt(), 9);
    EXPECT_FALSE(model.data(second, Qt::EditRole).isValid());
    EXPECT_FALSE(model.data(second, Qt::DecorationRole).isValid());
    EXPECT_FALSE(model.data(model.index(5, 0), Qt::DisplayRole).isValid());
    EXPECT_FALSE(second.parent().isValid());
    EXPECT_FALSE(model.setData(second, QStringLiteral("x")));
    // The list model's defaults: the first row of a value, the text for editing, not editable.
    const ListModelAbstract<int>& plain = rows;
    EXPECT_EQ(plain.indexOf(7), 0);
    EXPECT_EQ(plain.indexOf(9), 1);
    EXPECT_EQ(plain.indexOf(6), -1);
    EXPECT_EQ(plain.getStrForEdit(2), "again");
    EXPECT_FALSE(plain.isEditable());

    EditableModel editableRows({{1, "a"}, {2, "b"}}, {1});
    QListModel<int> editable(editableRows);
    EXPECT_EQ(editable.data(editable.index(0, 0), Qt::EditRole).toString(), QStringLiteral("edit a"));
    EXPECT_TRUE(editable.flags(editable.index(0, 0)) & Qt::ItemIsEditable);
    EXPECT_FALSE(editable.flags(editable.index(1, 0)) & Qt::ItemIsEditable);
    EXPECT_TRUE(editable.setData(editable.index(0, 0), QStringLiteral("changed")));
    ASSERT_EQ(editableRows.edits.size(), 1u);
    EXPECT_EQ(editableRows.edits[0], std::make_pair(0, std::string("changed")));
}

TEST(QListModelTest, RelaysAChangedRowAndARebuiltList)
{
    TestListModel rows(TestListModel::numbered(5));
    QListModel<int> model(rows);
    QSignalSpy reset(&model, &QAbstractItemModel::modelReset);
    QSignalSpy changed(&model, &QAbstractItemModel::dataChanged);
    rows.renameRow(2, "renamed");
    ASSERT_EQ(changed.count(), 1);
    EXPECT_EQ(changed.at(0).at(0).value<QModelIndex>().row(), 2);
    EXPECT_EQ(model.data(model.index(2, 0), Qt::DisplayRole).toString(), QStringLiteral("renamed"));
    rows.replaceAll(TestListModel::numbered(2));
    EXPECT_EQ(reset.count(), 1);
    EXPECT_EQ(model.rowCount(), 2);
}
