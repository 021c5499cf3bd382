#pragma once
#include <boost/shared_ptr.hpp>
#include "core/property/PropertyAbstract.h"
#include "core/propertymanager/RelevanceInterface.h"

namespace orrery {
namespace sdk {
namespace ui {
namespace propertymanager {

/// A property that also knows whether its control should be visible and enabled.
/// Both answers come from optional relevance objects (absent: always true) and
/// their changes are relayed, so that bindings made on such a property follow them.
/// It sits in the library's core because the core bindings take it.
template <typename T>
class UIStylePropertyAbstract : public virtual PropertyAbstract<T>
{
public:
    /// Fires when visibility or sensitivity may have changed.
    typedef boost::signals2::signal<void()> RelevanceSignal;
    /// A relevance, shared; null means always true.
    typedef boost::shared_ptr<const RelevanceInterface> RelevancePtr;

    /// Whether the control is to be shown.
    bool isVisible() const { return !m_visibility || m_visibility->isRelevant(); }
    /// Whether the control is to be enabled.
    bool isSensitive() const { return !m_sensitivity || m_sensitivity->isRelevant(); }

    /// Decides visibility by \a relevance from now on (null: always visible) and announces it.
    void setVisibilityRelevance(const RelevancePtr& relevance)
    {
        relay(relevance, m_visibility, m_visibilityRelay, m_visibilityChanged);
    }
    /// Decides sensitivity by \a relevance from now on (null: always enabled) and announces it.
    void setSensitivityRelevance(const RelevancePtr& relevance)
    {
        relay(relevance, m_sensitivity, m_sensitivityRelay, m_sensitivityChanged);
    }

    /// Calls \a slot when visibility may have changed.
    boost::signals2::connection connectToVisibilityChangedSignal(const RelevanceSignal::slot_type& slot) const
    {
        return m_visibilityChanged.connect(slot);
    }
    /// Calls \a slot when sensitivity may have changed.
    boost::signals2::connection connectToSensitivityChangedSignal(const RelevanceSignal::slot_type& slot) const
    {
        return m_sensitivityChanged.connect(slot);
    }

private:
    static void relay(const RelevancePtr& relevance, RelevancePtr& kept,
                      boost::signals2::scoped_connection& relayConnection, RelevanceSignal& changed)
    {
        kept = relevance;
        relayConnection.disconnect();
        if (relevance)
            relayConnection = relevance->connectToRelevanceChangedSignal([&changed] { changed(); });
        changed();
    }

    RelevancePtr m_visibility;
    RelevancePtr m_sensitivity;
    boost::signals2::scoped_connection m_visibilityRelay;
    boost::signals2::scoped_connection m_sensitivityRelay;
    mutable RelevanceSignal m_visibilityChanged;
    mutable RelevanceSignal m_sensitivityChanged;
};

} // namespace propertymanager
} // namespace ui
} // namespace sdk
} // namespace orrery
