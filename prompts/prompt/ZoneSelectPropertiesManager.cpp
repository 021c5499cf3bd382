#include "prompts/prompt/ZoneSelectPropertiesManager.h"

#include <boost/make_shared.hpp>
#include "core/property/Property.h"
#include "framework/DataSetExistsRelevance.h"
#include "framework/models/ZoneListModel.h"
#include "platform/sdk/DataSetQueries.h"
#include "framework/SharedRelevance.h"

namespace orrery {
namespace dialogs {
namespace prompt {

namespace models = sdk::ui::dialogs::propertybindings::models;

struct ZoneSelectPropertiesManager::Impl
{
    boost::shared_ptr<Property<std::set<int>>> selectedZones =
        boost::make_shared<Property<std::set<int>>>(std::set<int>());
    boost::shared_ptr<models::ZoneListModel> enabledZonesModel =
        boost::make_shared<models::ZoneListModel>(sdk::getEnabledZonesForFrame, false);
};

ZoneSelectPropertiesManager::ZoneSelectPropertiesManager() : m_impl(new Impl) {}

ZoneSelectPropertiesManager::~ZoneSelectPropertiesManager() = default;

boost::shared_ptr<PropertyAbstract<std::set<int>>> ZoneSelectPropertiesManager::selectedZones()
{
    return m_impl->selectedZones;
}

boost::shared_ptr<const models::ListModelInterface<int>> ZoneSelectPropertiesManager::enabledZonesModel() const
{
    return m_impl->enabledZonesModel;
}

boost::shared_ptr<const sdk::ui::propertymanager::RelevanceInterface> ZoneSelectPropertiesManager::relevance()
{
    return sharedRelevance<ZoneSelectPropertiesManager, sdk::ui::propertymanager::DataSetExistsRelevance>();
}

} // namespace prompt
} // namespace dialogs
} // namespace orrery
