#include "host/kernel/StyleState.h"

namespace orrery {
namespace kernel {

const StyleDatum* StyleState::find(const std::string& key, long member) const
{
    const auto it = m_values.find(std::make_pair(key, member));
    return it == m_values.end() ? nullptr : &it->second;
}

void StyleState::store(const std::string& key, long member, const StyleDatum& value)
{
    m_values[std::make_pair(key, member)] = value;
}

void StyleState::dropMembersAfter(long lastMember)
{
    for (auto it = m_values.begin(); it != m_values.end();)
        it = it->first.second > lastMember ? m_values.erase(it) : std::next(it);
}

} // namespace kernel
} // namespace orrery
