#pragma once
#include <set>
#include "core/propertymanager/PropertyDependentRelevanceAbstract.h"

namespace orrery {
namespace sdk {
namespace ui {
namespace propertymanager {

/// Relevant while the property holds one given value.
template <typename T>
class PropertyDependentRelevance : public PropertyDependentRelevanceAbstract<T>
{
public:
    /// Relevant while \a property (kept alive here) holds \a relevantValue.
    PropertyDependentRelevance(const boost::shared_ptr<PropertyAbstract<T>>& property, T relevantValue)
        : PropertyDependentRelevanceAbstract<T>(property)
    {
        m_relevantValues.insert(relevantValue);
    }

    /// Whether \a value is the relevant value.
    bool isRelevantValue(const T& value) const override { return m_relevantValues.count(value) != 0; }

private:
    std::set<T> m_relevantValues;
};

} // namespace propertymanager
} // namespace ui
} // namespace sdk
} // namespace orrery
