#pragma once
#include <map>
#include <string>
#include <vector>

namespace orrery {
namespace kernel {

// Gives every name used in style paths a stable identifier for the life of the
// process, so paths travel to the kernel as identifier lists.
class StyleNameRegistry
{
public:
    static StyleNameRegistry& instance();

    // Registers the name on first use.
    long idOf(const std::string& name);
    // Null for an identifier never given out.
    const std::string* nameOf(long id) const;

private:
    StyleNameRegistry() = default;

    std::map<std::string, long> m_ids;
    std::vector<std::string> m_names;
};

} // namespace kernel
} // namespace orrery
