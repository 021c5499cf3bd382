#include "core/propertymanager/PropertyPredicateDependentRelevance.h"
#include "platform/common/RequireArgument.h"

namespace orrery {
namespace sdk {
namespace ui {
namespace propertymanager {

PropertyPredicateDependentRelevance::PropertyPredicateDependentRelevance(
    const boost::shared_ptr<const PropertyItemInterface>& property, const boost::function<bool()>& predicate)
    : m_predicate(predicate)
{
    requireNonNull(property, "The property of a relevance");
    if (!predicate)
        throw InvalidArgumentException("The predicate of a relevance must not be empty");
    m_connections.add(property->connectToPropertyChangedSignal([this] { emitRelevanceChanged(); }));
}

PropertyPredicateDependentRelevance::~PropertyPredicateDependentRelevance() = default;

bool PropertyPredicateDependentRelevance::isRelevant() const
{
    return m_predicate();
}

} // namespace propertymanager
} // namespace ui
} // namespace sdk
} // namespace orrery
