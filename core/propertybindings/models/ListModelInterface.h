#pragma once
#include <string>
#include <boost/function.hpp>
#include <boost/signals2/signal.hpp>
#include "platform/common/SignalConnectionCollection.h"

namespace orrery::sdk::ui::dialogs::propertybindings::models {

/// Rows of a choice widget: a display text and a value of type T per row, with
/// change signals. Shared (virtually) by every list model.
template <typename T>
class ListModelInterface
{
public:
    typedef boost::signals2::signal<void()> DataChangedSignal;
    typedef boost::signals2::signal<void(int)> ItemChangedSignal;
    typedef boost::signals2::signal<void(int, int)> ItemsRangeSignal;

    virtual int size() const = 0;
    virtual T get(int row) const = 0;
    virtual std::string getStr(int row) const = 0;
    virtual std::string getStrForEdit(int row) const = 0;
    virtual void set(T value, int row) = 0;
    virtual void setEditedItem(const std::string& text, int row) const = 0;
    virtual bool isEditable() const = 0;
    virtual bool isHeader(int row) const = 0;
    virtual int indexOf(const T& value) const = 0;
    virtual void signalDataChangedConnected() const {}
    virtual void signalItemChangedConnected() const {}
    virtual void signalItemsInsertedConnected() const {}
    virtual void signalItemsRemovedConnected() const {}
    virtual ~ListModelInterface() = default;

    /// The whole list may have changed.
    boost::signals2::connection connectToDataChanged(const DataChangedSignal::slot_type& slot) const
    {
        return connected(m_dataChanged.connect(slot), &ListModelInterface::signalDataChangedConnected);
    }
    boost::signals2::connection connectToItemChanged(const ItemChangedSignal::slot_type& slot) const
    {
        return connected(m_itemChanged.connect(slot), &ListModelInterface::signalItemChangedConnected);
    }
    /// Rows first..last (inclusive) were inserted.
    boost::signals2::connection connectToItemsInserted(const ItemsRangeSignal::slot_type& slot) const
    {
        return connected(m_itemsInserted.connect(slot), &ListModelInterface::signalItemsInsertedConnected);
    }
    /// Rows first..last (inclusive) were removed.
    boost::signals2::connection connectToItemsRemoved(const ItemsRangeSignal::slot_type& slot) const
    {
        return connected(m_itemsRemoved.connect(slot), &ListModelInterface::signalItemsRemovedConnected);
    }

    /// One action for every kind of change, its connections kept in the collection.
    void connectToEveryChange(const boost::function<void()>& action, SignalConnectionCollection& connections) const
    {
        connections.add(connectToDataChanged([action] { action(); }));
        connections.add(connectToItemChanged([action](int) { action(); }));
        connections.add(connectToItemsInserted([action](int, int) { action(); }));
        connections.add(connectToItemsRemoved([action](int, int) { action(); }));
    }

protected:
    void emitDataChanged() const { m_dataChanged(); }
    void emitItemChanged(int row) const { m_itemChanged(row); }
    void emitItemsInserted(int first, int last) const { m_itemsInserted(first, last); }
    void emitItemsRemoved(int first, int last) const { m_itemsRemoved(first, last); }

private:
    boost::signals2::connection connected(const boost::signals2::connection& c,
                                          void (ListModelInterface::*hook)() const) const
    {
        (this->*hook)();
        return c;
    }

    mutable DataChangedSignal m_dataChanged;
    mutable ItemChangedSignal m_itemChanged;
    mutable ItemsRangeSignal m_itemsInserted;
    mutable ItemsRangeSignal m_itemsRemoved;
};

} // namespace orrery::sdk::ui::dialogs::propertybindings::models
