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
    typedef boost::signals2::signal<void()> RelevanceChangedSignal;

    virtual bool isRelevant() const = 0;
    virtual void signalRelevanceChangedConnected() const {}
    virtual ~RelevanceInterface() = default;

    boost::signals2::connection connectToRelevanceChangedSignal(const RelevanceChangedSignal::slot_type& slot) const
    {
        boost::signals2::connection c = m_relevanceChanged.connect(slot);
        signalRelevanceChangedConnected();
        return c;
    }

protected:
    void emitRelevanceChanged() const { m_relevanceChanged(); }
    size_t relevanceListenerCount() const { return m_relevanceChanged.num_slots(); }

    mutable RelevanceChangedSignal m_relevanceChanged;
};

} // namespace propertymanager
} // namespace ui
} // namespace sdk
} // namespace orrery
