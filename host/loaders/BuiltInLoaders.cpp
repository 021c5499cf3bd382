#include "host/loaders/BuiltInLoaders.h"
#include <boost/make_shared.hpp>
#include "host/loaders/CsvDataLoader.h"
#include "host/loaders/TextTableDataLoader.h"
#include "host/loaders/VtkLegacyDataLoader.h"
#include "host/loaders/ZoneBlockDataLoader.h"
#include "platform/loaders/DataLoaderRepository.h"

namespace orrery {
namespace host {

void installBuiltInLoaders()
{
    sdk::DataLoaderRepository& repository = sdk::DataLoaderRepository::getInstance();
    repository.registerLoader(boost::make_shared<sdk::CsvDataLoader>());
    repository.registerLoader(boost::make_shared<sdk::TextTableDataLoader>());
    repository.registerLoader(boost::make_shared<sdk::ZoneBlockDataLoader>());
    repository.registerLoader(boost::make_shared<sdk::VtkLegacyDataLoader>());
}

namespace {
// Loaded with the stand-in host, before any of its programs' code asks for a loader.
const bool installedAtLoad = (installBuiltInLoaders(), true);
} // namespace

} // namespace host
} // namespace orrery
