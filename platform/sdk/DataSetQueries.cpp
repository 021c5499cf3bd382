#include "platform/sdk/DataSetQueries.h"
#include <algorithm>
#include <cassert>
#include <cstring>
#include <initializer_list>
#include <string>
#include <vector>
#include "platform/common/HostCall.h"
#include "platform/kernel/OrrUtil.h"
#include "platform/toolbox/ArgList.h"
#include "platform/toolbox/StyleValue.h"
#include "platform/sdk/HostAnswers.h"

namespace orrery {
namespace sdk {

namespace {

bool isFieldPlot(PlotType_e plotType)
{
    return plotType == PlotType_ThreeD || plotType == PlotType_TwoD;
}

int styleVar(const toolbox::StringList& path)
{
    const toolbox::StyleValue value(path);
    toolbox::ArgList args;
    long var = 0;
    value.setupGetValueArgList(value.macroIDs(), -1, -1, args);
    args.appendArbParamPtr("IValue", &var);
    return ORRERY_HOST_CALL(GetValue_BadArguments, OrrUtilStyleGetValue(&args)) == GetValue_Ok ? static_cast<int>(var)
                                                                                               : 0;
}

toolbox::Set enabledVars()
{
    return HostAnswers::enabledVars(HostAnswers::frameUniqueID());
}

std::vector<int> axisVars(PlotType_e plotType)
{
    std::vector<int> vars;
    if (plotType == PlotType_ThreeD)
        for (const char* axis : {"XDetail", "YDetail", "ZDetail"})
            vars.push_back(styleVar({"ThreeDAxis", axis, "VarNum"}));
    else if (plotType == PlotType_TwoD)
        for (const char* axis : {"XDetail", "YDetail"})
            vars.push_back(styleVar({"TwoDAxis", axis, "VarNum"}));
    return vars;
}

// Enabled variables that are not on an axis, then (when wanted) the axis ones.
std::vector<int> candidates(PlotType_e plotType, bool withAxisVars)
{
    const std::vector<int> axes = axisVars(plotType);
    std::vector<int> free;
    std::vector<int> onAxis;
    for (int var : enabledVars())
        (std::count(axes.begin(), axes.end(), var) ? onAxis : free).push_back(var);
    if (withAxisVars)
        free.insert(free.end(), onAxis.begin(), onAxis.end());
    return free;
}

// The dialogs that check a variable list them all as well: one question per variable.
bool isEnabledVar(int var)
{
    return enabledVars().contains(var);
}

// Velocity components as writers name them, lower case and without separators
// (velocity_X, vel_x, Vx, velocityX all match).
const std::initializer_list<const char*> VelocityNames[3] = {
    {"velocityx", "velx", "vx"}, {"velocityy", "vely", "vy"}, {"velocityz", "velz", "vz"}};

bool isConstant(int var)
{
    double min = 0, max = 0;
    return !ORRERY_HOST_CALL(false, OrrUtilVarGetMinMax(var, &min, &max)) || min == max;
}

// The longest a wanted name can be.
const size_t LongestWanted = 9;

// The name as it is matched: lower case, without the separators _, - and blank
// (velocity_X, vel_x, Vx, velocityX). False for a name longer than longest once
// matched, which can be none of the wanted ones; data sets hold thousands of
// variables with long names. Only ASCII letters are lowered: the wanted names
// are ASCII, and a byte of a UTF-8 sequence must stay what it is.
bool matchedForm(const std::string& name, size_t longest, char (&form)[LongestWanted + 1])
{
    size_t length = 0;
    for (const char c : name) {
        if (c == '_' || c == ' ' || c == '-')
            continue;
        if (length == longest)
            return false;
        form[length++] = c >= 'A' && c <= 'Z' ? char(c - 'A' + 'a') : c;
    }
    form[length] = '\0';
    return true;
}

// One enabled variable per component, the first whose name is one of the
// component's (lower-case) names; empty unless every component was found and no
// variable serves two. The names are read in one pass, each asked of the host once.
std::vector<int> varsNamed(std::initializer_list<std::initializer_list<const char*>> components)
{
    size_t longest = 0;
    for (const auto& names : components)
        for (const char* wanted : names)
            longest = std::max(longest, std::strlen(wanted));
    assert(longest <= LongestWanted);
    std::vector<int> vars(components.size(), 0);
    char form[LongestWanted + 1];
    for (int var : enabledVars()) {
        if (!matchedForm(HostAnswers::keptVarName(var), longest, form))
            continue;
        size_t component = 0;
        for (const auto& names : components) {
            if (vars[component] == 0 && std::any_of(names.begin(), names.end(), [&form](const char* wanted) {
                    return std::strcmp(wanted, form) == 0;
                }))
                vars[component] = var;
            ++component;
        }
    }
    std::vector<int> distinct = vars;
    std::sort(distinct.begin(), distinct.end());
    if (distinct.front() == 0 || std::adjacent_find(distinct.begin(), distinct.end()) != distinct.end())
        return {};
    return vars;
}

} // namespace

toolbox::Set getEnabledZonesForFrame(long frameUniqueID)
{
    return HostAnswers::enabledZones(frameUniqueID);
}

toolbox::Set getEnabledVarsForFrame(long frameUniqueID)
{
    return HostAnswers::enabledVars(frameUniqueID);
}

bool getValidVectorVarCandidates(PlotType_e plotType, int& u, int& v, int& w)
{
    u = v = w = 0;
    if (!isFieldPlot(plotType))
        return false;
    const size_t needed = plotType == PlotType_ThreeD ? 3 : 2;
    std::vector<int> vars = needed == 3 ? varsNamed({{"u"}, {"v"}, {"w"}}) : varsNamed({{"u"}, {"v"}});
    if (vars.empty())
        vars = needed == 3 ? varsNamed({VelocityNames[0], VelocityNames[1], VelocityNames[2]})
                           : varsNamed({VelocityNames[0], VelocityNames[1]});
    if (vars.empty()) {
        // A constant variable would draw every arrow alike: it is no component.
        for (int var : candidates(plotType, false))
            if (!isConstant(var))
                vars.push_back(var);
    }
    if (vars.size() < needed)
        return false;
    u = vars[0];
    v = vars[1];
    w = needed == 3 ? vars[2] : 0;
    return true;
}

bool getValidRGBVarCandidates(PlotType_e plotType, int& r, int& g, int& b)
{
    std::vector<int> vars = varsNamed({{"r", "red"}, {"g", "green"}, {"b", "blue"}});
    if (vars.empty())
        vars = candidates(plotType, true);
    int* channels[] = {&r, &g, &b};
    for (size_t i = 0; i < 3; ++i)
        *channels[i] = i < vars.size() ? vars[i] : 0;
    return vars.size() >= 3;
}

bool okToTurnOnVectorLayer(PlotType_e plotType)
{
    if (!isFieldPlot(plotType) || HostAnswers::plotType() != plotType)
        return false;
    std::vector<int> vars;
    if (plotType == PlotType_ThreeD)
        for (const char* component : {"UVar", "VVar", "WVar"})
            vars.push_back(styleVar({"GlobalThreeDVector", component}));
    else
        for (const char* component : {"UVar", "VVar"})
            vars.push_back(styleVar({"GlobalTwoDVector", component}));
    std::vector<int> distinct = vars;
    std::sort(distinct.begin(), distinct.end());
    return std::all_of(vars.begin(), vars.end(), isEnabledVar)
           && std::unique(distinct.begin(), distinct.end()) == distinct.end();
}

bool checkRGBChannelVars(int red, int green, int blue)
{
    return isEnabledVar(red) && isEnabledVar(green) && isEnabledVar(blue);
}

bool checkRGBChannelVars(const toolbox::StyleValue& rgbGroup)
{
    int channels[3] = {0, 0, 0};
    const char* names[] = {"RedChannelVar", "GreenChannelVar", "BlueChannelVar"};
    for (int i = 0; i < 3; ++i) {
        toolbox::StringList path = rgbGroup.names();
        path.append(names[i]);
        channels[i] = styleVar(path);
    }
    return checkRGBChannelVars(channels[0], channels[1], channels[2]);
}

void autoAssignScatterVariable()
{
    const toolbox::StringList path{"GlobalScatter", "Var"};
    if (isEnabledVar(styleVar(path)))
        return;
    const std::vector<int> vars = candidates(HostAnswers::plotType(), true);
    if (vars.empty())
        return;
    const toolbox::StyleValue value(path);
    toolbox::ArgList args;
    value.setupSetValueArgList(value.macroIDs(), nullptr, -1, -1, AssignOp_Equals, args);
    args.appendArbParam("IValue", long(vars.front()));
    ORRERY_HOST_CALL(SetValue_BadArguments, OrrUtilStyleSetValue(&args));
}

} // namespace sdk
} // namespace orrery
