#pragma once
#include <boost/signals2/connection.hpp>
#include <QWidget>

class IdleBatch;
class QListWidget;
class QTreeWidget;
class QTreeWidgetItem;

namespace orrery {
namespace sdk {
namespace integration {
class StateChangeEventInterface;
}
} // namespace sdk
} // namespace orrery

// The host's state as the dialogs see it: the data set, the style values the
// dialogs use, and the latest state-change events as they are announced.
class StateView : public QWidget
{
    Q_OBJECT
public:
    explicit StateView(QWidget* parent = nullptr);

    void refresh();

private:
    void stateChanged(const orrery::sdk::integration::StateChangeEventInterface& event);
    void refreshDataSet();
    void refreshStyle();

    QTreeWidget* m_tree;
    QTreeWidgetItem* m_dataSet;
    QTreeWidgetItem* m_style;
    QListWidget* m_events;
    // Events are listed, and the values refreshed, once per idle moment.
    IdleBatch* m_newEvents;
    boost::signals2::scoped_connection m_connection;
};
