#include "host/kernel/SampleDataSet.h"
#include <cmath>
#include <stdexcept>

namespace orrery {
namespace kernel {

namespace {

// A heated plate in three blocks: pressure falls and temperature rises along x.
DataSet heatedPlate()
{
    DataSet data("Heated plate", {"X", "Y", "Z", "Pressure", "Temperature"});
    const char* blocks[] = {"Inlet", "Channel", "Outlet"};
    for (int block = 0; block < 3; ++block) {
        std::vector<std::vector<double>> values(5);
        for (int i = 0; i < 4; ++i)
            for (int j = 0; j < 3; ++j) {
                const double x = block * 3.0 + i;
                const double y = j * 0.5;
                const double z = 0.1 * std::sin(x) * y;
                values[0].push_back(x);
                values[1].push_back(y);
                values[2].push_back(z);
                values[3].push_back(101325.0 - 150.0 * x + 20.0 * y);
                values[4].push_back(293.15 + 4.5 * x + 2.0 * z);
            }
        data.addZone(blocks[block], values);
    }
    return data;
}

DataSet smallLine()
{
    DataSet data("Small line", {"X", "Y"});
    data.addZone("Line", {{0.0, 1.0, 2.0, 3.0}, {0.0, 1.0, 4.0, 9.0}});
    return data;
}

} // namespace

std::vector<std::string> SampleDataSet::names()
{
    return {"Sample", "Small"};
}

DataSet SampleDataSet::make(const std::string& name)
{
    if (name == "Sample")
        return heatedPlate();
    if (name == "Small")
        return smallLine();
    throw std::invalid_argument("No sample data set named " + name);
}

} // namespace kernel
} // namespace orrery
