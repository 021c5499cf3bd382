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
    addPlotAnnotations();
}

// What a plot shows beyond the data: its title, the variable and map that
// colour it, the zone picked out, the part of each zone drawn, the scatter
// symbol, logarithmic axes, the axes' titles and the further lines of an XY plot.
void StyleSchema::addPlotAnnotations()
{
    add("FrameLayout/Title", {StyleType::String, std::string(), {}}); // empty: the data set's title
    add("FrameLayout/TitleAnchor",
        {StyleType::Long, long(AnchorAlignment_TopCenter),
         rules::withinRange("Anchor alignment", AnchorAlignment_TopLeft, AnchorAlignment_BottomRight)});
    add("FrameLayout/ActiveZone", {StyleType::Long, long(0), rules::zoneNumber()}); // 0: none
    addVariable("GlobalContour/Var", 0); // 0: the first variable not on an axis
    add("GlobalContour/ColorMap", {StyleType::Long, long(0), rules::withinRange("Colour map", 0, 2)});
    add("IndexRange/Begin", {StyleType::Long, long(1), rules::atLeast("first index", 1)});
    add("IndexRange/End", {StyleType::Long, long(0), rules::atLeast("last index", 0)}); // 0: the last
    add("IndexRange/Skip", {StyleType::Long, long(1), rules::atLeast("index skip", 1)});
    add("GlobalScatter/Symbol", {StyleType::String, std::string(), {}}); // empty: a disc
    for (const char* axis : {"XDetail", "YDetail"})
        add(std::string("TwoDAxis/") + axis + "/IsLog", {StyleType::Bool, false, {}});
    // Axis titles, a unit and all; empty: the variable's name.
    for (const char* axis : {"XDetail", "YDetail"})
        add(std::string("TwoDAxis/") + axis + "/Title", {StyleType::String, std::string(), {}});
    for (const char* axis : {"XDetail", "YDetail", "ZDetail"})
        add(std::string("ThreeDAxis/") + axis + "/Title", {StyleType::String, std::string(), {}});
    // Further variables an XY line plot draws against X, each a line of its own ("4 5").
    add("TwoDAxis/YDetail/MoreVarNums", {StyleType::String, std::string(), rules::variableNumbers()});
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
