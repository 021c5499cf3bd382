#pragma once
#include <boost/shared_ptr.hpp>
#include "platform/common/RequireArgument.h"
#include "core/property/PropertyAbstract.h"
#include "core/propertymanager/RelevanceInterface.h"

namespace orrery {
namespace sdk {
namespace ui {
namespace propertymanager {

/// Relevance decided by the value of one property; every real change of the
/// property is announced, whether or not the answer changed.
template <typename T>
class PropertyDependentRelevanceAbstract : public virtual RelevanceInterface
{
public:
    /// Follows \a property (not null), which the relevance keeps alive.
    explicit PropertyDependentRelevanceAbstract(const boost::shared_ptr<const PropertyAbstract<T>>& property)
        : m_property(requireNonNull(property, "The property of a relevance"))
    {
        m_connection = m_property->connectToValueChangedSignal([this](const T&) { emitRelevanceChanged(); });
    }

    /// The answer for the property's current value.
    bool isRelevant() const override { return isRelevantValue(m_property->retrieveValue()); }
    /// Whether the property holding \a value makes the control relevant.
    virtual bool isRelevantValue(const T& value) const = 0;

private:
    boost::shared_ptr<const PropertyAbstract<T>> m_property;
    boost::signals2::scoped_connection m_connection;
};

} // namespace propertymanager
} // namespace ui
} // namespace sdk
} // namespace orrery
