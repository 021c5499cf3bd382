#include "host/kernel/StyleSchema.h"
#include <stdexcept>
#include "host/kernel/StyleRules.h"
#include "host/kernel/StyleState.h"

namespace orrery {
namespace kernel {

namespace {
const double RGBRangeMin = 0.0;
const double RGBRangeMax = 1.0;
} // namespace

StyleSchema::StyleSchema()
{
    add("FrameLayout/PlotType",
        {StyleType::Long, long(PlotType_TwoD), rules::withinRange("Plot type", PlotType_ThreeD, PlotType_PolarLine)});

    add("GlobalRGB/RGBMode", {StyleType::Long, long(RGBMode_SpecifyRGB),
                              rules::withinRange("RGB mode", RGBMode_SpecifyRGB, RGBMode_SpecifyGB)});
    for (const char* channel : {"RedChannelVar", "GreenChannelVar", "BlueChannelVar"})
        addVariable(std::string("GlobalRGB/") + channel, 0);
    add("GlobalRGB/RangeMin", {StyleType::Double, RGBRangeMin, rules::lessThan("GlobalRGB/RangeMax", RGBRangeMax)});
    add("GlobalRGB/RangeMax", {StyleType::Double, RGBRangeMax, rules::greaterThan("GlobalRGB/RangeMin", RGBRangeMin)});

    addFont("GlobalScatter");
    addFont("GlobalLinePlot");
    addVariable("GlobalScatter/Var", 0);
    add("GlobalScatter/RelativeSizeInGridUnits", {StyleType::Bool, true, {}});
    add("GlobalScatter/RelativeSize", {StyleType::Double, 1.0, rules::greaterThanZero("relative size")});
    add("BasicSize/SymbolSizes/Medium", {StyleType::Double, 2.5, rules::percentage("medium symbol size")});

    long axisVar = 1;
    for (const char* axis : {"XDetail", "YDetail"})
        addVariable(std::string("TwoDAxis/") + axis + "/VarNum", axisVar++);
    axisVar = 1;
    for (const char* axis : {"XDetail", "YDetail", "ZDetail"})
        addVariable(std::string("ThreeDAxis/") + axis + "/VarNum", axisVar++);
    for (const char* component : {"UVar", "VVar"})
        addVariable(std::string("GlobalTwoDVector/") + component, 0);
    for (const char* component : {"UVar", "VVar", "WVar"})
        addVariable(std::string("GlobalThreeDVector/") + component, 0);

    add("FieldLayers/ShowVector", {StyleType::Bool, false, {}});

    // One field map per zone, chosen by the first offset.
    for (const char* layer : {"Mesh", "Scatter"}) {
        const std::string group = std::string("FieldMap/") + layer;
        StyleEntry show{StyleType::Bool, std::string(layer) == "Mesh", {}};
        show.perZone = true;
        add(group + "/Show", show);
        StyleEntry color{StyleType::Long, long(0), rules::colorIndex()};
        color.perZone = true;
        add(group + "/Color", color);
    }
}

const StyleEntry* StyleSchema::find(const std::string& key) const
{
    const auto it = m_entries.find(key);
    return it == m_entries.end() ? nullptr : &it->second;
}

StyleDatum StyleSchema::valueIn(const StyleState& style, const std::string& key, long member) const
{
    if (const StyleDatum* stored = style.find(key, member))
        return *stored;
    const StyleEntry* entry = find(key);
    if (!entry)
        throw std::invalid_argument("Unknown style path: " + key);
    return entry->defaultValue;
}

std::vector<std::string> StyleSchema::keys() const
{
    std::vector<std::string> all;
    for (const auto& entry : m_entries)
        all.push_back(entry.first);
    return all;
}

std::vector<std::string> StyleSchema::variableKeys() const
{
    std::vector<std::string> keys;
    for (const auto& [key, entry] : m_entries)
        if (entry.holdsVariable)
            keys.push_back(key);
    return keys;
}

void StyleSchema::add(const std::string& key, const StyleEntry& entry)
{
    m_entries.emplace(key, entry);
}

void StyleSchema::addVariable(const std::string& key, long defaultVar)
{
    StyleEntry entry{StyleType::Long, defaultVar, rules::variableNumber()};
    entry.holdsVariable = true;
    add(key, entry);
}

void StyleSchema::addFont(const std::string& group)
{
    add(group + "/BaseFontFamily", {StyleType::String, std::string("Sans Serif"), rules::notEmpty("font family")});
    add(group + "/BaseFontIsBold", {StyleType::Bool, false, {}});
    add(group + "/BaseFontIsItalic", {StyleType::Bool, false, {}});
}

} // namespace kernel
} // namespace orrery
