#include "prompts/prompt/EnterThreeIntValuesPropertiesManager.h"

#include <boost/make_shared.hpp>
#include "framework/DataSetExistsRelevance.h"
#include "core/property/Property.h"
#include "framework/SharedRelevance.h"

namespace orrery {
namespace dialogs {
namespace prompt {

struct EnterThreeIntValuesPropertiesManager::Impl
{
    boost::shared_ptr<Property<long>> value1;
    boost::shared_ptr<Property<long>> value2;
    boost::shared_ptr<Property<long>> value3;
};

EnterThreeIntValuesPropertiesManager::EnterThreeIntValuesPropertiesManager(long value1, long value2, long value3)
    : m_impl(new Impl{boost::make_shared<Property<long>>(value1), boost::make_shared<Property<long>>(value2),
                      boost::make_shared<Property<long>>(value3)})
{}

EnterThreeIntValuesPropertiesManager::~EnterThreeIntValuesPropertiesManager() = default;

boost::shared_ptr<PropertyAbstract<long>> EnterThreeIntValuesPropertiesManager::value1() const
{
    return m_impl->value1;
}

boost::shared_ptr<PropertyAbstract<long>> EnterThreeIntValuesPropertiesManager::value2() const
{
    return m_impl->value2;
}

boost::shared_ptr<PropertyAbstract<long>> EnterThreeIntValuesPropertiesManager::value3() const
{
    return m_impl->value3;
}

boost::shared_ptr<const sdk::ui::propertymanager::RelevanceInterface> EnterThreeIntValuesPropertiesManager::relevance()
{
    return sharedRelevance<EnterThreeIntValuesPropertiesManager, sdk::ui::propertymanager::DataSetExistsRelevance>();
}

} // namespace prompt
} // namespace dialogs
} // namespace orrery
