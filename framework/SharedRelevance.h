#pragma once
#include "framework/FrameworkExport.h"
#include <boost/make_shared.hpp>
#include <boost/shared_ptr.hpp>
#include "core/propertymanager/RelevanceInterface.h"

namespace orrery {
namespace dialogs {
namespace prompt {

/// The relevance object of Owner: made on first use and kept until the library
/// is unloaded, so every dialog of that class shares it.
/// Exported, so that every library and program shares the one object.
template <typename Owner, typename Relevance>
ORRERY_FRAMEWORK_EXPORT boost::shared_ptr<const sdk::ui::propertymanager::RelevanceInterface> sharedRelevance()
{
    static const boost::shared_ptr<const sdk::ui::propertymanager::RelevanceInterface> relevance =
        boost::make_shared<Relevance>();
    return relevance;
}

} // namespace prompt
} // namespace dialogs
} // namespace orrery
