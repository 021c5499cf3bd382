#pragma once
#include <type_traits>
#include <QAbstractListModel>

#include "platform/common/SignalConnectionCollection.h"
#include "core/propertybindings/models/ListModelInterface.h"

namespace orrery::sdk::ui::dialogs::propertybindings::models {

/// Shows a list model in a Qt view or combo box and relays its changes.
/// The list model must outlive this adapter.
template <typename T>
class QListModel : public QAbstractListModel
{
public:
    /// Role under which a row's value is offered.
    static constexpr int ValueRole = 1808;

    /// Shows \a model and turns its change signals into Qt's model notifications.
    explicit QListModel(const ListModelInterface<T>& model) : m_model(model)
    {
        m_connections.add(model.connectToDataChanged([this] {
            beginResetModel();
            endResetModel();
        }));
        m_connections.add(model.connectToItemChanged([this](int row) {
            const QModelIndex changed = index(row, 0);
            Q_EMIT dataChanged(changed, changed);
        }));
        m_connections.add(model.connectToItemsInserted([this](int first, int last) {
            beginInsertRows(QModelIndex(), first, last);
            endInsertRows();
        }));
        m_connections.add(model.connectToItemsRemoved([this](int first, int last) {
            beginRemoveRows(QModelIndex(), first, last);
            endRemoveRows();
        }));
    }

    /// The model's rows; none below a row.
    int rowCount(const QModelIndex& parent = QModelIndex()) const override
    {
        return parent.isValid() ? 0 : m_model.size();
    }

    /// The row's text for display and tool tip, its edit text when editable, its value
    /// under ValueRole.
    QVariant data(const QModelIndex& index, int role) const override
    {
        if (!index.isValid() || index.row() >= m_model.size())
            return QVariant();
        switch (role) {
        case Qt::DisplayRole:
        case Qt::ToolTipRole: return QString::fromUtf8(m_model.getStr(index.row()).c_str());
        case Qt::EditRole:
            return m_model.isEditable() ? QVariant(QString::fromUtf8(m_model.getStrForEdit(index.row()).c_str()))
                                        : QVariant();
        case ValueRole: return toVariant(m_model.get(index.row()));
        default: return QVariant();
        }
    }

    /// Header rows are disabled; other rows are editable when the model is.
    Qt::ItemFlags flags(const QModelIndex& index) const override
    {
        Qt::ItemFlags f = QAbstractListModel::flags(index);
        if (!index.isValid() || index.row() >= m_model.size())
            return f;
        const bool header = m_model.isHeader(index.row());
        if (m_model.isEditable() && !header)
            f |= Qt::ItemIsEditable;
        if (header)
            f &= ~Qt::ItemIsEnabled;
        return f;
    }

    /// Passes an edited text to the model; false when the model is not editable.
    bool setData(const QModelIndex& index, const QVariant& value, int role = Qt::EditRole) override
    {
        if (!index.isValid() || role != Qt::EditRole || !m_model.isEditable())
            return false;
        m_model.setEditedItem(value.toString().toUtf8().toStdString(), index.row());
        return true;
    }

private:
    static QVariant toVariant(const T& value)
    {
        if constexpr (std::is_enum<T>::value)
            return QVariant(static_cast<int>(value));
        else
            return QVariant::fromValue(value);
    }

    const ListModelInterface<T>& m_model;
    SignalConnectionCollection m_connections;
};

} // namespace orrery::sdk::ui::dialogs::propertybindings::models
