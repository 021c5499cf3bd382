#include "bench/support/BenchHost.h"
#include "host/kernel/DataSet.h"
#include "host/kernel/KernelDriver.h"

namespace benchhost {

const char* name()
{
    return "stand-in";
}

void start()
{
    orrery::kernel::KernelDriver::loadSampleDataSet();
}

void loadDataSet(const std::vector<std::string>& zones, const std::vector<std::string>& vars)
{
    orrery::kernel::DataSet dataSet("Bench", vars);
    const std::vector<std::vector<double>> point(vars.size(), std::vector<double>{1.0});
    for (const std::string& zone : zones)
        dataSet.addZone(zone, point);
    orrery::kernel::KernelDriver::setDataSet(dataSet);
}

std::string loaderExtension()
{
    return "dat";
}

} // namespace benchhost
