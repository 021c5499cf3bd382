#pragma once
#include "framework/FrameworkExport.h"
#include <QStyledItemDelegate>

namespace orrery::sdk::ui::dialogs {

/// Draws the header rows of a list (the rows a model shows disabled) as
/// captions: bold, in the normal text colour, never highlighted.
class ORRERY_FRAMEWORK_EXPORT ListHeaderItemDelegate : public QStyledItemDelegate
{
    Q_OBJECT
public:
    explicit ListHeaderItemDelegate(QObject* parent = nullptr);

    static bool isHeader(const QModelIndex& index);

protected:
    void initStyleOption(QStyleOptionViewItem* option, const QModelIndex& index) const override;
};

} // namespace orrery::sdk::ui::dialogs
