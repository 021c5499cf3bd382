#pragma once
#include <cmath>
#include <string>
#include <vector>
#include "platform/toolbox/Set.h"

namespace orrery {
namespace kernel {

// Zones of points, each point carrying one value per variable. A data set
// without variables counts as absent. A point may lack a value: it holds NaN,
// which ranges leave out. A category variable holds the numbers 1..k of its
// category names.
class DataSet
{
public:
    DataSet() = default;
    DataSet(const std::string& title, const std::vector<std::string>& varNames);

    // values[v] holds the zone's points of variable v + 1. Throws
    // std::invalid_argument unless there is one equally long row per variable.
    void addZone(const std::string& name, std::vector<std::vector<double>> values);
    // Makes var a category variable; its values are 1-based numbers into names.
    void setCategories(int var, std::vector<std::string> names);

    bool isAvailable() const { return !m_varNames.empty(); }
    const std::string& title() const { return m_title; }
    void setTitle(const std::string& title) { m_title = title; }
    int numZones() const { return static_cast<int>(m_zones.size()); }
    int numVars() const { return static_cast<int>(m_varNames.size()); }
    bool hasZone(int zone) const { return zone >= 1 && zone <= numZones(); }
    bool hasVar(int var) const { return var >= 1 && var <= numVars(); }
    // Names and values by 1-based numbers; throw std::out_of_range for bad ones.
    const std::string& zoneName(int zone) const;
    const std::string& varName(int var) const;
    size_t pointCount(int zone) const;
    const std::vector<double>& values(int zone, int var) const;
    // Empty unless var is a category variable.
    const std::vector<std::string>& categories(int var) const;
    size_t missingCount(int zone, int var) const;

    static double missingValue();
    static bool isMissing(double value) { return std::isnan(value); }

    // Range of var over the given zones, missing values left out; false when
    // none of them has a value.
    bool range(int var, const toolbox::Set& zones, double& min, double& max) const;
    toolbox::Set allZones() const;
    toolbox::Set allVars() const;

private:
    struct Zone
    {
        std::string name;
        std::vector<std::vector<double>> values;
    };
    const Zone& zone(int zone) const;

    std::string m_title;
    std::vector<std::string> m_varNames;
    std::vector<std::vector<std::string>> m_categories;
    std::vector<Zone> m_zones;
};

} // namespace kernel
} // namespace orrery
