#include "platform/loaders/DataLoaderRepository.h"
#include <algorithm>
#include <boost/make_shared.hpp>
#include <QString>

namespace orrery {
namespace sdk {

DataLoaderRepository& DataLoaderRepository::getInstance()
{
    static DataLoaderRepository repository;
    return repository;
}

std::vector<DataLoaderRepository::LoaderPtr> DataLoaderRepository::dataLoaderInterfaces(bool includeHidden) const
{
    std::vector<LoaderPtr> loaders;
    std::copy_if(m_loaders.begin(), m_loaders.end(), std::back_inserter(loaders),
                 [includeHidden](const LoaderPtr& l) { return includeHidden || !l->properties().hidden; });
    return loaders;
}

void DataLoaderRepository::registerLoader(const LoaderPtr& loader)
{
    const std::string name = loader->properties().name;
    const auto same = std::find_if(m_loaders.begin(), m_loaders.end(),
                                   [&name](const LoaderPtr& l) { return l->properties().name == name; });
    if (same != m_loaders.end())
        *same = loader;
    else
        m_loaders.push_back(loader);
}

std::vector<DataLoaderRepository::LoaderPtr>
DataLoaderRepository::loadersForExtension(const std::string& extension) const
{
    QString wanted = QString::fromStdString(extension).toLower();
    if (wanted.startsWith('.'))
        wanted.remove(0, 1);
    std::vector<LoaderPtr> loaders;
    for (const LoaderPtr& loader : dataLoaderInterfaces(false)) {
        const auto extensions = loader->properties().extensions;
        if (std::find(extensions.begin(), extensions.end(), wanted.toStdString()) != extensions.end())
            loaders.push_back(loader);
    }
    return loaders;
}

DataLoaderRepository::LoaderPtr DataLoaderRepository::loaderNamed(const std::string& name) const
{
    for (const LoaderPtr& loader : m_loaders)
        if (loader->properties().name == name)
            return loader;
    return LoaderPtr();
}

} // namespace sdk
} // namespace orrery
