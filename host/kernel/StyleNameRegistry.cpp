#include "host/kernel/StyleNameRegistry.h"

namespace orrery {
namespace kernel {

StyleNameRegistry& StyleNameRegistry::instance()
{
    static StyleNameRegistry registry;
    return registry;
}

long StyleNameRegistry::idOf(const std::string& name)
{
    const auto [it, added] = m_ids.emplace(name, static_cast<long>(m_names.size()));
    if (added)
        m_names.push_back(name);
    return it->second;
}

const std::string* StyleNameRegistry::nameOf(long id) const
{
    if (id < 0 || id >= static_cast<long>(m_names.size()))
        return nullptr;
    return &m_names[static_cast<size_t>(id)];
}

} // namespace kernel
} // namespace orrery
