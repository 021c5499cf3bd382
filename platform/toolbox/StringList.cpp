#include "platform/toolbox/StringList.h"

namespace orrery {
namespace toolbox {

StringList::StringList(std::initializer_list<std::string> strings) : m_strings(strings) {}

void StringList::append(const std::string& string)
{
    m_strings.push_back(string);
}

void StringList::append(const StringList& other)
{
    m_strings.insert(m_strings.end(), other.m_strings.begin(), other.m_strings.end());
}

const std::string& StringList::operator[](size_t index) const
{
    return m_strings.at(index);
}

const std::string& StringList::getString(size_t index) const
{
    return m_strings.at(index);
}

std::string StringList::join(const std::string& separator) const
{
    std::string joined;
    for (size_t i = 0; i < m_strings.size(); ++i)
        joined += (i ? separator : std::string()) + m_strings[i];
    return joined;
}

} // namespace toolbox
} // namespace orrery
