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
    typedef boost::signals2::signal<void()> RelevanceSignal;
    typedef boost::shared_ptr<const RelevanceInterface> RelevancePtr;

    bool isVisible() const { return !m_visibility || m_visibility->isRelevant(); }
    bool isSensitive() const { return !m_sensitivity || m_sensitivity->isRelevant(); }

    void setVisibilityRelevance(const RelevancePtr& relevance)
    {
        relay(relevance, m_visibility, m_visibilityRelay, m_visibilityChanged);
    }
    void setSensitivityRelevance(const RelevancePtr& relevance)
    {
        relay(relevance, m_sensitivity, m_sensitivityRelay, m_sensitivityChanged);
    }

    boost::signals2::connection connectToVisibilityChangedSignal(const RelevanceSignal::slot_type& slot) const
    {
        return m_visibilityChanged.connect(slot);
    }
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
