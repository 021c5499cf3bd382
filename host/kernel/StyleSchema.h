#pragma once
#include <map>
#include <string>
#include <vector>
#include "host/kernel/StyleEntry.h"

namespace orrery {
namespace kernel {

class StyleState;

// Every style path the kernel knows, by key ("GlobalRGB/RedChannelVar"), with its
// type, default and rule.
class StyleSchema
{
public:
    StyleSchema();

    // Null for an unknown key.
    const StyleEntry* find(const std::string& key) const;
    // The value held in style, else the default. The key must be known.
    StyleDatum valueIn(const StyleState& style, const std::string& key, long member) const;
    std::vector<std::string> variableKeys() const;
    // Every key, in order.
    std::vector<std::string> keys() const;

private:
    void add(const std::string& key, const StyleEntry& entry);
    void addVariable(const std::string& key, long defaultVar);
    void addFont(const std::string& group);
    void addPlotAnnotations();

    std::map<std::string, StyleEntry> m_entries;
};

} // namespace kernel
} // namespace orrery
