#include "bench/support/BenchHost.h"
#include "examples/tiny-host/TinyHost.h"

namespace benchhost {

const char* name()
{
    return "tiny host";
}

void start()
{
    tinyhost::Host::instance().reset();
    tinyhost::registerLoaders();
}

void loadDataSet(const std::vector<std::string>& zones, const std::vector<std::string>& vars)
{
    tinyhost::Host::instance().replaceDataSet(zones, vars,
                                              std::vector<std::vector<std::vector<double>>>(
                                                  zones.size(), std::vector<std::vector<double>>(vars.size(), {1.0})));
}

std::string loaderExtension()
{
    return "tiny";
}

} // namespace benchhost
