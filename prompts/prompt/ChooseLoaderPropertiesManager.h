#pragma once
#include "prompts/PromptsExport.h"
#include <memory>
#include <set>
#include <string>
#include <vector>
#include <boost/shared_ptr.hpp>
#include "platform/loaders/DataLoaderInterface.h"
#include "core/property/PropertyAbstract.h"
#include "core/propertymanager/RelevanceInterface.h"

namespace orrery {
namespace sdk {
namespace ui {
namespace dialogs {
namespace propertybindings {
namespace models {
class StringListWithHeadersModel;
}
} // namespace propertybindings
} // namespace dialogs
} // namespace ui
} // namespace sdk

namespace dialogs {
namespace prompt {

/// The list of loaders offered for a file, its selection, and the loader last
/// chosen for each file extension, kept in the application settings.
class ORRERY_PROMPTS_EXPORT ChooseLoaderPropertiesManager
{
public:
    /// A loader registered with the host.
    typedef boost::shared_ptr<sdk::DataLoaderInterface> LoaderPtr;
    /// The rows of the loader list: loader names under group headers.
    typedef sdk::ui::dialogs::propertybindings::models::StringListWithHeadersModel LoadersListModel;

    /// Takes the loaders installed now; loaders installed later need a new manager.
    ChooseLoaderPropertiesManager();
    ~ChooseLoaderPropertiesManager();

    /// The rows offered, for the dialog's list view.
    boost::shared_ptr<LoadersListModel> loadersListModel() const;
    /// The selected rows of the list.
    boost::shared_ptr<PropertyAbstract<std::vector<int>>> loadersListProperty() const;
    /// Relevant while exactly one row is selected.
    boost::shared_ptr<const sdk::ui::propertymanager::RelevanceInterface> loaderSelectedRelevance() const;
    /// Empty when no loader row is selected.
    LoaderPtr selectedLoader() const;

    /// Suggested loaders first under headers, then the others, each group by name.
    /// The selection is cleared.
    void updateLoaderList(std::vector<LoaderPtr> const& suggestedLoaders);
    /// With exactly one extension, selects the loader last used for it; a loader
    /// that is no longer listed falls back to the first selectable row.
    void selectLoaderBasedOnExtensionsHistory(std::set<std::string> const& extensions);
    /// With exactly one extension, remembers the selected loader for it.
    void saveLastLoaderUsedForExtensions(std::set<std::string> const& extensions);

private:
    struct Impl;
    std::unique_ptr<Impl> m_impl;
};

} // namespace prompt
} // namespace dialogs
} // namespace orrery
