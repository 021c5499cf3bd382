#pragma once
#include <string>
#include <vector>
#include "host/kernel/DataSet.h"

namespace orrery {
namespace kernel {

// Built-in data sets for the demo and the tests.
class SampleDataSet
{
public:
    static std::vector<std::string> names();
    // Throws std::invalid_argument for a name not in names().
    static DataSet make(const std::string& name);
};

} // namespace kernel
} // namespace orrery
