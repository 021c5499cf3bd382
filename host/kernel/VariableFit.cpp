#include "host/kernel/VariableFit.h"
#include <algorithm>
#include <map>
#include <string>
#include <vector>
#include "host/kernel/StyleSchema.h"
#include "host/kernel/StyleState.h"
#include "platform/sdk/DataSetQueries.h"

namespace orrery {
namespace kernel {

namespace {

typedef std::vector<std::string> Keys;

long valueOf(const StyleSchema& schema, const StyleState& style, const std::string& key)
{
    return std::get<long>(schema.valueIn(style, key, 0));
}

long defaultOf(const StyleSchema& schema, const std::string& key)
{
    return std::get<long>(schema.find(key)->defaultValue);
}

// 0 is "no variable" where the default is none; an axis always needs one.
bool names(long var, long defaultVar, int numVars)
{
    return (var >= 1 && var <= numVars) || (var == 0 && defaultVar == 0);
}

// Each axis that lost its variable, or shows one an earlier axis of the group
// shows (the fallback of a data set with too few variables), takes the first
// variable no axis of the group shows; without one, its own default as far as
// the data set reaches.
void fitAxes(StyleState& style, const StyleSchema& schema, int numVars, const Keys& axes)
{
    std::vector<long> vars;
    for (const std::string& key : axes)
        vars.push_back(valueOf(schema, style, key));
    for (size_t i = 0; i < axes.size(); ++i) {
        long free = 1;
        while (free <= numVars && std::count(vars.begin(), vars.end(), free))
            ++free;
        const bool shownBefore = std::count(vars.begin(), vars.begin() + long(i), vars[i]) > 0;
        if (names(vars[i], defaultOf(schema, axes[i]), numVars) && !(shownBefore && free <= numVars))
            continue;
        vars[i] = free <= numVars ? free : std::min<long>(defaultOf(schema, axes[i]), numVars);
        style.store(axes[i], 0, vars[i]);
    }
}

// Components chosen together (vector, RGB channels) are replaced together, so
// that a kept one cannot clash with a new one.
void fitGroup(StyleState& style, const StyleSchema& schema, int numVars, const Keys& keys,
              const std::vector<int>& defaults)
{
    const bool valid = std::all_of(keys.begin(), keys.end(), [&](const std::string& key) {
        return names(valueOf(schema, style, key), defaultOf(schema, key), numVars);
    });
    if (valid)
        return;
    for (size_t i = 0; i < keys.size(); ++i)
        style.store(keys[i], 0, long(i < defaults.size() ? defaults[i] : 0));
}

std::vector<int> vectorDefaults(PlotType_e plotType)
{
    int u = 0, v = 0, w = 0;
    sdk::getValidVectorVarCandidates(plotType, u, v, w);
    return {u, v, w};
}

std::vector<int> rgbDefaults(PlotType_e plotType)
{
    int r = 0, g = 0, b = 0;
    sdk::getValidRGBVarCandidates(plotType, r, g, b);
    return {r, g, b};
}

// As for the scatter size: the first variable off the axes, else the first.
std::vector<int> scatterDefault(const StyleSchema& schema, const StyleState& style, int numVars, PlotType_e plotType)
{
    const std::string axes = plotType == PlotType_ThreeD ? "ThreeDAxis/" : "TwoDAxis/";
    std::vector<long> onAxis;
    for (const char* axis : {"XDetail", "YDetail", "ZDetail"})
        if (schema.find(axes + axis + "/VarNum"))
            onAxis.push_back(valueOf(schema, style, axes + axis + "/VarNum"));
    for (int var = 1; var <= numVars; ++var)
        if (!std::count(onAxis.begin(), onAxis.end(), var))
            return {var};
    return {numVars > 0 ? 1 : 0};
}

} // namespace

void VariableFit::apply(StyleState& style, const StyleSchema& schema, int numVars, PlotType_e plotType)
{
    if (numVars == 0)
        return; // nothing to fit to; the next data set will
    // Every variable-holding key, grouped by its style group ("GlobalRGB").
    std::map<std::string, Keys> groups;
    for (const std::string& key : schema.variableKeys())
        groups[key.substr(0, key.find('/'))].push_back(key);
    // Keys sort alphabetically; the rules want the schema's own component order.
    const auto ordered = [&](const std::string& group, Keys order) {
        Keys known;
        for (std::string& key : order)
            if (std::count(groups[group].begin(), groups[group].end(), group + "/" + key))
                known.push_back(group + "/" + key);
        groups.erase(group);
        return known;
    };
    fitAxes(style, schema, numVars, ordered("TwoDAxis", {"XDetail/VarNum", "YDetail/VarNum"}));
    fitAxes(style, schema, numVars, ordered("ThreeDAxis", {"XDetail/VarNum", "YDetail/VarNum", "ZDetail/VarNum"}));
    fitGroup(style, schema, numVars, ordered("GlobalTwoDVector", {"UVar", "VVar"}), vectorDefaults(PlotType_TwoD));
    fitGroup(style, schema, numVars, ordered("GlobalThreeDVector", {"UVar", "VVar", "WVar"}),
             vectorDefaults(PlotType_ThreeD));
    fitGroup(style, schema, numVars, ordered("GlobalRGB", {"RedChannelVar", "GreenChannelVar", "BlueChannelVar"}),
             rgbDefaults(plotType));
    // The scatter variable and any group the rules above do not know.
    const std::vector<int> single = scatterDefault(schema, style, numVars, plotType);
    for (const auto& [group, keys] : groups)
        for (const std::string& key : keys)
            fitGroup(style, schema, numVars, {key}, single);
}

} // namespace kernel
} // namespace orrery
