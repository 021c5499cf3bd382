#pragma once
#include "core/CoreExport.h"
#include <boost/function.hpp>
#include <boost/shared_ptr.hpp>
#include "platform/common/PropertyItemInterface.h"
#include "platform/common/SignalConnectionCollection.h"
#include "core/propertymanager/RelevanceInterface.h"

namespace orrery {
namespace sdk {
namespace ui {
namespace propertymanager {

/// Relevance given by a predicate, asked again whenever a property changes.
class ORRERY_CORE_EXPORT PropertyPredicateDependentRelevance : public virtual RelevanceInterface
{
public:
    /// Asks \a predicate, and announces a possible change whenever \a property changes.
    PropertyPredicateDependentRelevance(const boost::shared_ptr<const PropertyItemInterface>& property,
                                        const boost::function<bool()>& predicate);
    ~PropertyPredicateDependentRelevance() override;

    /// The predicate's answer now.
    bool isRelevant() const override;

private:
    boost::function<bool()> m_predicate;
    SignalConnectionCollection m_connections;
};

} // namespace propertymanager
} // namespace ui
} // namespace sdk
} // namespace orrery
