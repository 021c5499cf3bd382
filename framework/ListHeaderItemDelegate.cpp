#include "framework/ListHeaderItemDelegate.h"

namespace orrery::sdk::ui::dialogs {

ListHeaderItemDelegate::ListHeaderItemDelegate(QObject* parent) : QStyledItemDelegate(parent) {}

bool ListHeaderItemDelegate::isHeader(const QModelIndex& index)
{
    return index.isValid() && !(index.flags() & Qt::ItemIsEnabled);
}

void ListHeaderItemDelegate::initStyleOption(QStyleOptionViewItem* option, const QModelIndex& index) const
{
    QStyledItemDelegate::initStyleOption(option, index);
    if (!isHeader(index))
        return;
    option->font.setBold(true);
    option->state |= QStyle::State_Enabled;
    option->state &= ~(QStyle::State_Selected | QStyle::State_MouseOver | QStyle::State_HasFocus);
}

} // namespace orrery::sdk::ui::dialogs
