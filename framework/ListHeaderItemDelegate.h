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
    /// A delegate owned by \a parent, if one is given.
    explicit ListHeaderItemDelegate(QObject* parent = nullptr);

    /// Whether \a index is a header row: valid, but not enabled.
    static bool isHeader(const QModelIndex& index);

protected:
    /// Styles header rows as captions; other rows as usual.
    void initStyleOption(QStyleOptionViewItem* option, const QModelIndex& index) const override;
};

} // namespace orrery::sdk::ui::dialogs
