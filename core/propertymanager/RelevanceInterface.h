#pragma once
#include "core/CoreExport.h"
#include <boost/signals2/signal.hpp>

namespace orrery {
namespace sdk {
namespace ui {
namespace propertymanager {

/// Says whether a control (or a whole dialog) is meaningful right now, and
/// announces when the answer may have changed; listeners ask again.
class ORRERY_CORE_EXPORT RelevanceInterface
{
public:
    /// Fires when the answer may have changed.
    typedef boost::signals2::signal<void()> RelevanceChangedSignal;

    /// Whether the control is meaningful now.
    virtual bool isRelevant() const = 0;
    /// Called after each connection, so a relevance can start watching only once someone listens.
    virtual void signalRelevanceChangedConnected() const {}
    virtual ~RelevanceInterface() = default;

    /// Calls \a slot whenever the answer may have changed; ask isRelevant() then.
    boost::signals2::connection connectToRelevanceChangedSignal(const RelevanceChangedSignal::slot_type& slot) const
    {
        boost::signals2::connection c = m_relevanceChanged.connect(slot);
        signalRelevanceChangedConnected();
        return c;
    }

protected:
    /// Tells the listeners to ask again.
    void emitRelevanceChanged() const { m_relevanceChanged(); }
    /// Number of connected listeners.
    size_t relevanceListenerCount() const { return m_relevanceChanged.num_slots(); }

    /// The change signal, for subclasses that chain it.
    mutable RelevanceChangedSignal m_relevanceChanged;
};

} // namespace propertymanager
} // namespace ui
} // namespace sdk
} // namespace orrery
