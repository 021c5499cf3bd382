#include "prompts/prompt/ChooseLoaderPropertiesManager.h"

#include <boost/make_shared.hpp>
#include <QCoreApplication>
#include "framework/models/StringListWithHeadersModel.h"
#include "platform/loaders/DataLoaderRepository.h"
#include "platform/settings/ApplicationSettings.h"
#include "core/property/Property.h"
#include "core/propertymanager/PropertyPredicateDependentRelevance.h"

namespace orrery {
namespace dialogs {
namespace prompt {

namespace {

std::string nameOf(const ChooseLoaderPropertiesManager::LoaderPtr& loader)
{
    return loader->properties().name;
}

std::string translated(const char* text)
{
    return QCoreApplication::translate("ChooseLoader", text).toStdString();
}

// A loader as the list shows it: its name in the user's language, where the
// host translated it in this layout's context. Settings keep the name itself.
std::string shown(const std::string& name)
{
    return translated(name.c_str());
}

} // namespace

struct ChooseLoaderPropertiesManager::Impl
{
    typedef Property<std::vector<int>> SelectionProperty;

    Impl()
        : loadersListModel(boost::make_shared<LoadersListModel>()),
          loadersListProperty(boost::make_shared<SelectionProperty>()),
          loaderSelectedRelevance(boost::make_shared<sdk::ui::propertymanager::PropertyPredicateDependentRelevance>(
              loadersListProperty, [selection = loadersListProperty] { return isLoaderSelected(*selection); })),
          allLoaders(sdk::DataLoaderRepository::getInstance().dataLoaderInterfaces(false))
    {}

    static bool isLoaderSelected(const SelectionProperty& selection) { return selection.getValue().size() == 1; }

    std::string historyKey(std::set<std::string> const& extensions) const
    {
        return settingsKeyPrefix + *extensions.begin();
    }

    // The selectable row showing name, or -1.
    int rowNamed(const std::string& name) const
    {
        for (int row = 0; row < loadersListModel->size(); ++row)
            if (!loadersListModel->isHeader(row) && loadersListModel->getStr(row) == name)
                return row;
        return -1;
    }

    boost::shared_ptr<LoadersListModel> loadersListModel;
    boost::shared_ptr<SelectionProperty> loadersListProperty;
    boost::shared_ptr<sdk::ui::propertymanager::PropertyPredicateDependentRelevance> loaderSelectedRelevance;
    std::vector<LoaderPtr> allLoaders;
    const std::string settingsKeyPrefix = "LastLoaderUsedForExt_";
    // A suggestion the repository does not list (a hidden loader) is still a valid choice.
    std::vector<LoaderPtr> suggestedLoaders;
};

ChooseLoaderPropertiesManager::ChooseLoaderPropertiesManager() : m_impl(new Impl) {}

ChooseLoaderPropertiesManager::~ChooseLoaderPropertiesManager() = default;

boost::shared_ptr<ChooseLoaderPropertiesManager::LoadersListModel>
ChooseLoaderPropertiesManager::loadersListModel() const
{
    return m_impl->loadersListModel;
}

boost::shared_ptr<PropertyAbstract<std::vector<int>>> ChooseLoaderPropertiesManager::loadersListProperty() const
{
    return m_impl->loadersListProperty;
}

boost::shared_ptr<const sdk::ui::propertymanager::RelevanceInterface>
ChooseLoaderPropertiesManager::loaderSelectedRelevance() const
{
    return m_impl->loaderSelectedRelevance;
}

ChooseLoaderPropertiesManager::LoaderPtr ChooseLoaderPropertiesManager::selectedLoader() const
{
    const std::vector<int> rows = m_impl->loadersListProperty->getValue();
    if (rows.empty() || rows.front() < 0 || rows.front() >= m_impl->loadersListModel->size()
        || m_impl->loadersListModel->isHeader(rows.front()))
        return LoaderPtr();
    const std::string name = m_impl->loadersListModel->getStr(rows.front());
    for (const std::vector<LoaderPtr>* loaders : {&m_impl->allLoaders, &m_impl->suggestedLoaders})
        for (const LoaderPtr& loader : *loaders)
            if (shown(nameOf(loader)) == name)
                return loader;
    return LoaderPtr();
}

void ChooseLoaderPropertiesManager::updateLoaderList(std::vector<LoaderPtr> const& suggestedLoaders)
{
    // Row numbers are the selection's values; they mean other loaders after a rebuild.
    m_impl->loadersListProperty->setValue({});
    LoadersListModel& model = *m_impl->loadersListModel;
    model.clear();
    m_impl->suggestedLoaders.clear();
    std::set<std::string> suggestedNames;
    for (const LoaderPtr& loader : suggestedLoaders)
        if (loader) {
            suggestedNames.insert(nameOf(loader));
            m_impl->suggestedLoaders.push_back(loader);
        }
    if (!suggestedNames.empty()) {
        model.appendHeaderRow(translated(QT_TRANSLATE_NOOP("ChooseLoader", "Suggested Loaders")));
        for (const std::string& name : suggestedNames)
            model.appendRow(shown(name));
        model.appendHeaderRow("");
        model.appendHeaderRow(translated(QT_TRANSLATE_NOOP("ChooseLoader", "Other Available Loaders")));
    }
    std::set<std::string> otherNames;
    for (const LoaderPtr& loader : m_impl->allLoaders)
        if (!suggestedNames.count(nameOf(loader)))
            otherNames.insert(nameOf(loader));
    for (const std::string& name : otherNames)
        model.appendRow(shown(name));
}

void ChooseLoaderPropertiesManager::selectLoaderBasedOnExtensionsHistory(std::set<std::string> const& extensions)
{
    if (extensions.size() != 1)
        return;
    const std::string lastUsed = sdk::ApplicationSettings::getInstance().getStringValue(m_impl->historyKey(extensions));
    if (lastUsed.empty())
        return;
    int row = m_impl->rowNamed(shown(lastUsed));
    if (row < 0)
        row = m_impl->loadersListModel->isHeader(0) ? 1 : 0;
    if (row < m_impl->loadersListModel->size())
        m_impl->loadersListProperty->setValue({row});
}

void ChooseLoaderPropertiesManager::saveLastLoaderUsedForExtensions(std::set<std::string> const& extensions)
{
    if (extensions.size() != 1)
        return;
    if (const LoaderPtr loader = selectedLoader())
        sdk::ApplicationSettings::getInstance().depositValue(m_impl->historyKey(extensions), nameOf(loader));
}

} // namespace prompt
} // namespace dialogs
} // namespace orrery
