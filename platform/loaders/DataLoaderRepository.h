#pragma once
#include "platform/PlatformExport.h"
#include <string>
#include <vector>
#include <boost/shared_ptr.hpp>
#include "platform/loaders/DataLoaderInterface.h"

namespace orrery {
namespace sdk {

// Every data loader installed in the host, in registration order. The host
// registers its own loaders at its start; plug-ins may add more.
class ORRERY_PLATFORM_EXPORT DataLoaderRepository
{
public:
    typedef boost::shared_ptr<DataLoaderInterface> LoaderPtr;

    static DataLoaderRepository& getInstance();

    std::vector<LoaderPtr> dataLoaderInterfaces(bool includeHidden) const;
    // A loader whose name is already taken replaces the earlier one.
    void registerLoader(const LoaderPtr& loader);
    // Visible loaders reading files with that extension (any case, with or
    // without the leading dot).
    std::vector<LoaderPtr> loadersForExtension(const std::string& extension) const;
    // Null for an unknown name.
    LoaderPtr loaderNamed(const std::string& name) const;

private:
    DataLoaderRepository() = default;

    std::vector<LoaderPtr> m_loaders;
};

} // namespace sdk
} // namespace orrery
