#include "host/kernel/DataSet.h"
#include <algorithm>
#include <limits>
#include <stdexcept>

namespace orrery {
namespace kernel {

DataSet::DataSet(const std::string& title, const std::vector<std::string>& varNames)
    : m_title(title), m_varNames(varNames), m_categories(varNames.size())
{}

double DataSet::missingValue()
{
    return std::numeric_limits<double>::quiet_NaN();
}

void DataSet::addZone(const std::string& name, std::vector<std::vector<double>> values)
{
    if (values.size() != m_varNames.size())
        throw std::invalid_argument("Zone " + name + " needs one row of values per variable.");
    for (const auto& row : values)
        if (row.size() != values.front().size())
            throw std::invalid_argument("Zone " + name + " has rows of different lengths.");
    m_zones.push_back({name, std::move(values)});
}

const DataSet::Zone& DataSet::zone(int zone) const
{
    if (!hasZone(zone))
        throw std::out_of_range("No zone " + std::to_string(zone));
    return m_zones[zone - 1];
}

const std::string& DataSet::zoneName(int zone) const
{
    return this->zone(zone).name;
}

const std::string& DataSet::varName(int var) const
{
    if (!hasVar(var))
        throw std::out_of_range("No variable " + std::to_string(var));
    return m_varNames[var - 1];
}

size_t DataSet::pointCount(int zone) const
{
    const Zone& z = this->zone(zone);
    return z.values.empty() ? 0 : z.values.front().size();
}

const std::vector<double>& DataSet::values(int zone, int var) const
{
    varName(var);
    return this->zone(zone).values[var - 1];
}

void DataSet::setCategories(int var, std::vector<std::string> names)
{
    varName(var);
    m_categories[var - 1] = std::move(names);
}

const std::vector<std::string>& DataSet::categories(int var) const
{
    varName(var);
    return m_categories[var - 1];
}

size_t DataSet::missingCount(int zone, int var) const
{
    const std::vector<double>& v = values(zone, var);
    return static_cast<size_t>(std::count_if(v.begin(), v.end(), isMissing));
}

bool DataSet::range(int var, const toolbox::Set& zones, double& min, double& max) const
{
    if (!hasVar(var))
        return false;
    bool found = false;
    for (int z : zones) {
        if (!hasZone(z))
            continue;
        for (double value : values(z, var)) {
            if (isMissing(value))
                continue;
            min = found ? std::min(min, value) : value;
            max = found ? std::max(max, value) : value;
            found = true;
        }
    }
    return found;
}

toolbox::Set DataSet::allZones() const
{
    toolbox::Set zones;
    for (int z = 1; z <= numZones(); ++z)
        zones.add(z);
    return zones;
}

toolbox::Set DataSet::allVars() const
{
    toolbox::Set vars;
    for (int v = 1; v <= numVars(); ++v)
        vars.add(v);
    return vars;
}

} // namespace kernel
} // namespace orrery
