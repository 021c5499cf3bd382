#pragma once
#include "prompts/PromptsExport.h"
#include <memory>
#include <set>
#include <boost/shared_ptr.hpp>
#include "core/property/PropertyAbstract.h"
#include "core/propertybindings/models/ListModelInterface.h"
#include "core/propertymanager/RelevanceInterface.h"

namespace orrery {
namespace dialogs {
namespace prompt {

/// The zone prompt's values: the selected zone numbers and the list of the
/// zones enabled in the current frame.
class ORRERY_PROMPTS_EXPORT ZoneSelectPropertiesManager
{
public:
    ZoneSelectPropertiesManager();
    virtual ~ZoneSelectPropertiesManager();

    /// The zone numbers selected in the list.
    boost::shared_ptr<PropertyAbstract<std::set<int>>> selectedZones();
    /// The zones enabled in the current frame, for the list.
    boost::shared_ptr<const sdk::ui::dialogs::propertybindings::models::ListModelInterface<int>>
    enabledZonesModel() const;

    /// Relevant while a data set exists.
    static boost::shared_ptr<const sdk::ui::propertymanager::RelevanceInterface> relevance();

private:
    struct Impl;
    std::unique_ptr<Impl> m_impl;
};

} // namespace prompt
} // namespace dialogs
} // namespace orrery
