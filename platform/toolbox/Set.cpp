#include "platform/toolbox/Set.h"
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
    m_members.insert(member);
}

void Set::remove(int member)
{
    m_members.erase(member);
}

} // namespace toolbox
} // namespace orrery
