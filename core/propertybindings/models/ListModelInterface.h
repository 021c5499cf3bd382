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
    /// Fires when the whole list may have changed.
    typedef boost::signals2::signal<void()> DataChangedSignal;
    /// Fires with the row whose text or value changed.
    typedef boost::signals2::signal<void(int)> ItemChangedSignal;
    /// Fires with the first and last (inclusive) rows inserted or removed.
    typedef boost::signals2::signal<void(int, int)> ItemsRangeSignal;

    /// Number of rows.
    virtual int size() const = 0;
    /// The value of \a row (0-based, below size()).
    virtual T get(int row) const = 0;
    /// The text shown for \a row, UTF-8.
    virtual std::string getStr(int row) const = 0;
    /// The text an editor starts from when the user edits \a row.
    virtual std::string getStrForEdit(int row) const = 0;
    /// Replaces the value of \a row, where the rows can be edited.
    virtual void set(T value, int row) = 0;
    /// Takes the text the user typed into \a row, where the rows can be edited.
    virtual void setEditedItem(const std::string& text, int row) const = 0;
    /// Whether the user may edit the rows in place.
    virtual bool isEditable() const = 0;
    /// Whether \a row is a header: shown, but not a choice.
    virtual bool isHeader(int row) const = 0;
    /// The row holding \a value, or -1.
    virtual int indexOf(const T& value) const = 0;
    /// Called after each connection to the data-changed signal, so a model can
    /// start watching its source only once someone listens.
    virtual void signalDataChangedConnected() const {}
    /// Called after each connection to the item-changed signal.
    virtual void signalItemChangedConnected() const {}
    /// Called after each connection to the items-inserted signal.
    virtual void signalItemsInsertedConnected() const {}
    /// Called after each connection to the items-removed signal.
    virtual void signalItemsRemovedConnected() const {}
    virtual ~ListModelInterface() = default;

    /// The whole list may have changed.
    boost::signals2::connection connectToDataChanged(const DataChangedSignal::slot_type& slot) const
    {
        return connected(m_dataChanged.connect(slot), &ListModelInterface::signalDataChangedConnected);
    }
    /// One row changed; the row is passed.
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
    /// Announces that the whole list may have changed; models call these emitters
    /// after changing their rows.
    void emitDataChanged() const { m_dataChanged(); }
    /// Announces a change of \a row.
    void emitItemChanged(int row) const { m_itemChanged(row); }
    /// Announces rows \a first..\a last (inclusive), already inserted.
    void emitItemsInserted(int first, int last) const { m_itemsInserted(first, last); }
    /// Announces rows \a first..\a last (inclusive), already removed.
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
