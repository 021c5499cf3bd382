#pragma once
#include "framework/FrameworkExport.h"
#include <boost/shared_ptr.hpp>
#include <boost/signals2/connection.hpp>
#include "core/propertymanager/RelevanceInterface.h"

namespace orrery::sdk::ui::propertymanager {

/// Relevant exactly when the wrapped relevance is not; relays its changes.
class ORRERY_FRAMEWORK_EXPORT InvertingRelevance : public virtual RelevanceInterface
{
public:
    /// Inverts \a inverted, which the relevance keeps alive.
    explicit InvertingRelevance(const boost::shared_ptr<const RelevanceInterface>& inverted);
    ~InvertingRelevance() override;

    /// True while the wrapped relevance is false.
    bool isRelevant() const override;

private:
    boost::shared_ptr<const RelevanceInterface> m_inverted;
    boost::signals2::scoped_connection m_relay;
};

} // namespace orrery::sdk::ui::propertymanager
