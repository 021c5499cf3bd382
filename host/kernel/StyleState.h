#pragma once
#include <map>
#include <string>
#include <utility>
#include "host/kernel/StyleDatum.h"

namespace orrery {
namespace kernel {

// The style values a frame holds apart from the defaults, by path key
// ("GlobalRGB/RangeMin") and collection member (0 outside collections).
class StyleState
{
public:
    const StyleDatum* find(const std::string& key, long member) const;
    void store(const std::string& key, long member, const StyleDatum& value);
    // Drops the members beyond lastMember of every collection value.
    void dropMembersAfter(long lastMember);

private:
    std::map<std::pair<std::string, long>, StyleDatum> m_values;
};

} // namespace kernel
} // namespace orrery
