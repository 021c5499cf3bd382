#pragma once
// What a session leaves in the kernel, as text to compare: every style value of
// the current frame (per-zone values for each zone) and the whole data set.
#include <sstream>
#include <string>
#include "host/kernel/Journal.h"
#include "host/kernel/Kernel.h"

namespace testsupport {

inline std::string kernelSnapshot()
{
    const orrery::kernel::Kernel& kernel = orrery::kernel::Kernel::instance();
    const orrery::kernel::DataSet& data = kernel.dataSet();
    std::ostringstream out;
    for (const std::string& key : kernel.schema().keys()) {
        const bool perZone = kernel.schema().find(key)->perZone;
        for (long member = perZone ? 1 : 0; member <= (perZone ? data.numZones() : 0); ++member)
            out << key << "[" << member << "] " << orrery::kernel::Journal::format(kernel.currentStyle(key, member))
                << "\n";
    }
    out << "data " << data.title() << "\n";
    for (int var = 1; var <= data.numVars(); ++var)
        out << "var " << data.varName(var) << "\n";
    for (int zone = 1; zone <= data.numZones(); ++zone)
        for (int var = 1; var <= data.numVars(); ++var) {
            out << "zone " << data.zoneName(zone) << " var " << var << ":";
            for (double value : data.values(zone, var))
                out << " " << value;
            out << "\n";
        }
    return out.str();
}

} // namespace testsupport
