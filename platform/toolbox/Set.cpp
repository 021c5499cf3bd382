#include "platform/toolbox/Set.h"
#include <algorithm>
#include <stdexcept>
#include <string>

namespace orrery {
namespace toolbox {

Set::Set(std::initializer_list<int> members)
{
    for (int member : members)
        add(member);
}

void Set::add(int member)
{
    if (member < 1)
        throw std::out_of_range("Set members start at 1, not " + std::to_string(member));
    if (m_members.empty() || m_members.back() < member) {
        m_members.push_back(member);
        return;
    }
    const auto at = std::lower_bound(m_members.begin(), m_members.end(), member);
    if (*at != member)
        m_members.insert(at, member);
}

void Set::remove(int member)
{
    const auto at = std::lower_bound(m_members.begin(), m_members.end(), member);
    if (at != m_members.end() && *at == member)
        m_members.erase(at);
}

bool Set::contains(int member) const
{
    // Members are distinct and start at 1, so the one at member - 1 is member
    // itself exactly when every smaller index is in too: the usual case of all
    // zones or variables, asked about one by one.
    if (member >= 1 && size_t(member) <= m_members.size() && m_members[size_t(member - 1)] == member)
        return true;
    return std::binary_search(m_members.begin(), m_members.end(), member);
}

} // namespace toolbox
} // namespace orrery
