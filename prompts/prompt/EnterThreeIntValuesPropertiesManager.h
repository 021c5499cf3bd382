#pragma once
#include "prompts/PromptsExport.h"
#include <memory>
#include <boost/shared_ptr.hpp>
#include "core/property/PropertyAbstract.h"
#include "core/propertymanager/RelevanceInterface.h"

namespace orrery {
namespace dialogs {
namespace prompt {

/// The three whole numbers of the three-values prompt; any value is accepted.
class ORRERY_PROMPTS_EXPORT EnterThreeIntValuesPropertiesManager
{
public:
    /// Starts from the three values given.
    EnterThreeIntValuesPropertiesManager(long value1, long value2, long value3);
    ~EnterThreeIntValuesPropertiesManager();

    /// The first value.
    boost::shared_ptr<PropertyAbstract<long>> value1() const;
    /// The second value.
    boost::shared_ptr<PropertyAbstract<long>> value2() const;
    /// The third value.
    boost::shared_ptr<PropertyAbstract<long>> value3() const;

    /// The values only mean something while there is a data set.
    static boost::shared_ptr<const sdk::ui::propertymanager::RelevanceInterface> relevance();

private:
    struct Impl;
    std::unique_ptr<Impl> m_impl;
};

} // namespace prompt
} // namespace dialogs
} // namespace orrery
