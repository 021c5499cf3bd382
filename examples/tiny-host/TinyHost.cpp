#include "TinyHost.h"
#include <algorithm>
#include <boost/make_shared.hpp>
#include <cmath>
#include <cstdlib>
#include <cstring>
#include <fstream>
#include <sstream>
#include <stdexcept>
#include "platform/kernel/OrrUtil.h"
#include "platform/loaders/DataLoaderRepository.h"
#include "platform/sdk/StateChangeEvent.h"
#include "platform/sdk/StateChangeEventObservable.h"
#include "platform/settings/ApplicationSettings.h"
#include "platform/toolbox/ArgList.h"

namespace tinyhost {

namespace {

const long FrameID = 1;

std::vector<std::string>& styleNames()
{
    static std::vector<std::string> names;
    return names;
}

// Every operation starts here: counted when the host's tests ask, and thrown
// from when they made it faulty.
void enter(const char* operation)
{
    Host& host = Host::instance();
    if (host.countAsked)
        ++host.asked[operation];
    if (!host.faults.throwing.empty() && host.faults.throwing.count(operation))
        throw std::runtime_error(std::string(operation) + " lost its table");
}

char* copyOf(const std::string& text)
{
    char* copy = static_cast<char*>(std::malloc(text.size() + 1));
    std::memcpy(copy, text.c_str(), text.size() + 1);
    return copy;
}

// The names of the path the identifiers give; empty for an unknown identifier.
orrery::toolbox::StringList pathOf(const orrery::toolbox::ArgList& args)
{
    orrery::toolbox::StringList path;
    const auto* ids = args.find<std::vector<long>>("IDs");
    for (size_t i = 0; ids && i < ids->size() && (*ids)[i] >= 0; ++i) {
        if ((*ids)[i] >= long(styleNames().size()))
            return orrery::toolbox::StringList();
        path.append(styleNames()[size_t((*ids)[i])]);
    }
    return path;
}

bool namesVariable(const std::string& path)
{
    for (const char* suffix : {"VarNum", "ChannelVar", "UVar", "VVar", "WVar"}) {
        const size_t n = std::strlen(suffix);
        if (path.size() >= n && path.compare(path.size() - n, n, suffix) == 0)
            return true;
    }
    return false;
}

bool validVar(int var)
{
    return var >= 1 && var <= int(Host::instance().vars.size());
}
bool validZone(int zone)
{
    return zone >= 1 && zone <= int(Host::instance().zones.size());
}

void announce(StateChange_e code, const orrery::toolbox::StringList& stylePath = {})
{
    orrery::sdk::integration::StateChangeEventObservable::getInstance().emitStateChange(
        orrery::sdk::integration::StateChangeEvent(code, stylePath));
}

// Reads a whitespace-separated table: a header row of names, then one row of
// numbers per point. Everything lands in one zone named after the file.
class TinyTableLoader : public orrery::sdk::DataLoaderInterface
{
public:
    Properties properties() const override { return {"Tiny table", "Numbers under a row of names", {"tiny"}}; }

    bool load(const std::string& path, std::string& error) override
    {
        std::ifstream file(path);
        std::string line;
        if (!file || !std::getline(file, line)) {
            error = "Cannot read " + path + ".";
            return false;
        }
        std::vector<std::string> names;
        std::istringstream header(line);
        for (std::string name; header >> name;)
            names.push_back(name);
        std::vector<std::vector<double>> columns(names.size());
        for (int row = 2; std::getline(file, line); ++row) {
            std::istringstream cells(line);
            std::vector<double> numbers;
            for (double number; cells >> number;)
                numbers.push_back(number);
            if (!cells.eof() || numbers.size() != names.size()) {
                error =
                    path + ", line " + std::to_string(row) + ": expected " + std::to_string(names.size()) + " numbers.";
                return false;
            }
            for (size_t c = 0; c < names.size(); ++c)
                columns[c].push_back(numbers[c]);
        }
        if (names.empty() || columns[0].empty()) {
            error = path + " holds no data.";
            return false;
        }
        const size_t slash = path.find_last_of('/');
        Host::instance().replaceDataSet({path.substr(slash == std::string::npos ? 0 : slash + 1)}, names, {columns});
        return true;
    }
};

} // namespace

Host& Host::instance()
{
    static Host host;
    return host;
}

void Host::reset()
{
    zones = {"Left block", "Right block"};
    vars = {"x", "y", "Density", "Speed", "Energy"};
    refusals.clear();
    faults = Faults();
    countAsked = false;
    asked.clear();
    values = {{{0, 1, 2}, {0, 1, 0}, {1, 2, 3}, {5, 6, 7}, {0.1, 0.2, 0.3}},
              {{3, 4}, {1, 0}, {4, 5}, {8, 9}, {0.4, 0.5}}};
    style = {{"TwoDAxis/XDetail/VarNum", 1L},
             {"TwoDAxis/YDetail/VarNum", 2L},
             {"GlobalRGB/RGBMode", long(RGBMode_SpecifyRGB)},
             {"GlobalRGB/RedChannelVar", 3L},
             {"GlobalRGB/GreenChannelVar", 4L},
             {"GlobalRGB/BlueChannelVar", 5L},
             {"GlobalRGB/RangeMin", 0.0},
             {"GlobalRGB/RangeMax", 1.0},
             {"GlobalTwoDVector/UVar", 3L},
             {"GlobalTwoDVector/VVar", 4L}};
    lastError.clear();
    messages.clear();
    steps.clear();
    bracketDepth = 0;
}

//! [announce]
void Host::replaceDataSet(std::vector<std::string> zoneNames, std::vector<std::string> varNames,
                          std::vector<std::vector<std::vector<double>>> zoneValues)
{
    zones = std::move(zoneNames);
    vars = std::move(varNames);
    values = std::move(zoneValues);
    // The dialogs drop or replace whatever named a variable or zone that went.
    announce(StateChange_DataSetReset);
}

void registerLoaders()
{
    orrery::sdk::DataLoaderRepository::getInstance().registerLoader(boost::make_shared<TinyTableLoader>());
}
//! [announce]

} // namespace tinyhost

using tinyhost::Host;

int OrrUtilPageGetCount(void)
{
    tinyhost::enter("PageGetCount");
    return 1;
}
int OrrUtilFrameGetCount(void)
{
    tinyhost::enter("FrameGetCount");
    return 1;
}
long OrrUtilFrameGetUniqueID(void)
{
    tinyhost::enter("FrameGetUniqueID");
    return tinyhost::FrameID;
}
PlotType_e OrrUtilFrameGetPlotType(void)
{
    tinyhost::enter("FrameGetPlotType");
    return PlotType_TwoD;
}

bool OrrUtilDataSetIsAvailable(void)
{
    tinyhost::enter("DataSetIsAvailable");
    return !Host::instance().vars.empty();
}
int OrrUtilDataSetGetNumZones(void)
{
    tinyhost::enter("DataSetGetNumZones");
    return int(Host::instance().zones.size());
}
int OrrUtilDataSetGetNumVars(void)
{
    tinyhost::enter("DataSetGetNumVars");
    return int(Host::instance().vars.size());
}

//! [names]
char* OrrUtilZoneGetName(int zone)
{
    tinyhost::enter("ZoneGetName");
    return tinyhost::validZone(zone) && !Host::instance().faults.nullNames
               ? tinyhost::copyOf(Host::instance().zones[size_t(zone - 1)])
               : nullptr;
}

char* OrrUtilVarGetName(int var)
{
    tinyhost::enter("VarGetName");
    return tinyhost::validVar(var) && !Host::instance().faults.nullNames
               ? tinyhost::copyOf(Host::instance().vars[size_t(var - 1)])
               : nullptr;
}
//! [names]

bool OrrUtilFrameZoneIsEnabled(long frameUniqueID, int zone)
{
    tinyhost::enter("FrameZoneIsEnabled");
    return frameUniqueID == tinyhost::FrameID && tinyhost::validZone(zone);
}

bool OrrUtilFrameVarIsEnabled(long frameUniqueID, int var)
{
    tinyhost::enter("FrameVarIsEnabled");
    return frameUniqueID == tinyhost::FrameID && tinyhost::validVar(var);
}

bool OrrUtilVarGetMinMax(int var, double* min, double* max)
{
    tinyhost::enter("VarGetMinMax");
    if (!tinyhost::validVar(var))
        return false;
    *min = INFINITY;
    *max = -INFINITY;
    for (const auto& zone : Host::instance().values) {
        const auto& v = zone[size_t(var - 1)];
        *min = std::min(*min, *std::min_element(v.begin(), v.end()));
        *max = std::max(*max, *std::max_element(v.begin(), v.end()));
    }
    return true;
}

void OrrUtilAxisGetGridRange(double* xMin, double* yMin, double* xMax, double* yMax)
{
    tinyhost::enter("AxisGetGridRange");
    *xMin = *yMin = 0;
    *xMax = *yMax = 1;
    OrrUtilVarGetMinMax(int(std::get<long>(Host::instance().style["TwoDAxis/XDetail/VarNum"])), xMin, xMax);
    OrrUtilVarGetMinMax(int(std::get<long>(Host::instance().style["TwoDAxis/YDetail/VarNum"])), yMin, yMax);
}

// No frame size to measure by: every unit is the same length here.
double OrrUtilConvertUnits(int, int, double value)
{
    tinyhost::enter("ConvertUnits");
    return value;
}

void OrrUtilColorMapGetBasicColorRGB(int colorIndex, unsigned char* red, unsigned char* green, unsigned char* blue)
{
    tinyhost::enter("ColorMapGetBasicColorRGB");
    static const unsigned char Basic[8][3] = {{0, 0, 0},     {255, 0, 0},   {0, 255, 0},   {0, 0, 255},
                                              {0, 255, 255}, {255, 255, 0}, {255, 0, 255}, {255, 255, 255}};
    const bool basic = colorIndex >= 0 && colorIndex < 8;
    *red = basic ? Basic[colorIndex][0] : 0;
    *green = basic ? Basic[colorIndex][1] : 0;
    *blue = basic ? Basic[colorIndex][2] : 0;
}

//! [undo]
void OrrUtilUndoStateBegin(int category)
{
    tinyhost::enter("UndoStateBegin");
    Host& host = Host::instance();
    if (host.bracketDepth++ == 0) {
        host.bracketStart = host.style;
        host.bracketName = category == UndoCategory_AssignVariables ? "Assign Variables" : "Style change";
    }
}

void OrrUtilUndoStateEnd(bool revert, bool record)
{
    tinyhost::enter("UndoStateEnd");
    Host& host = Host::instance();
    if (host.bracketDepth == 0 || --host.bracketDepth > 0)
        return;
    if (revert)
        host.style = host.bracketStart;
    else if (record)
        host.steps.push_back(host.bracketName);
}
//! [undo]

long OrrUtilStyleNameGetID(const char* name)
{
    tinyhost::enter("StyleNameGetID");
    std::vector<std::string>& names = tinyhost::styleNames();
    const auto it = std::find(names.begin(), names.end(), name ? name : "");
    if (it != names.end())
        return long(it - names.begin());
    names.push_back(name ? name : "");
    return long(names.size() - 1);
}

GetValueReturnCode_e OrrUtilStyleGetValue(ArgList_pa args)
{
    tinyhost::enter("StyleGetValue");
    const auto it = Host::instance().style.find(tinyhost::pathOf(*args).join("/"));
    if (it == Host::instance().style.end())
        return GetValue_UnknownPath;
    if (const long* value = std::get_if<long>(&it->second)) {
        if (long* const* out = args->find<long*>("IValue"))
            return **out = *value, GetValue_Ok;
    } else if (const double* value = std::get_if<double>(&it->second)) {
        if (double* const* out = args->find<double*>("DValue"))
            return **out = *value, GetValue_Ok;
    } else if (std::string* const* out = args->find<std::string*>("SValue")) {
        return **out = std::get<std::string>(it->second), GetValue_Ok;
    }
    return GetValue_TypeMismatch;
}

//! [style write]
SetValueReturnCode_e OrrUtilStyleSetValue(ArgList_pa args)
{
    tinyhost::enter("StyleSetValue");
    Host& host = Host::instance();
    host.lastError.clear();
    const orrery::toolbox::StringList stylePath = tinyhost::pathOf(*args);
    const std::string path = stylePath.join("/");
    const auto it = host.style.find(path);
    if (it == host.style.end())
        return SetValue_UnknownPath;
    const orrery::toolbox::Set* const* members = args->find<const orrery::toolbox::Set*>("Set");
    if (args->longOr("Offset1", -1) > 0 || (members && *members))
        return SetValue_InvalidOffset;
    if (args->longOr("AssignOp", AssignOp_Equals) != AssignOp_Equals)
        return SetValue_InvalidOperator;
    tinyhost::Value value;
    if (const long* integer = args->find<long>("IValue"))
        value = *integer;
    else if (const double* number = args->find<double>("DValue"))
        value = *number;
    else if (const std::string* text = args->find<std::string>("SValue"))
        value = *text;
    if (value.index() != it->second.index())
        return SetValue_TypeMismatch;
    if (host.refusals.count(path)) {
        host.lastError = host.refusals[path];
        return SetValue_InvalidValue;
    }
    if (tinyhost::namesVariable(path) && !tinyhost::validVar(int(std::get<long>(value)))) {
        host.lastError = "There is no variable " + std::to_string(std::get<long>(value)) + ".";
        return SetValue_InvalidValue;
    }
    if (path == "GlobalRGB/RangeMin" && std::get<double>(value) >= std::get<double>(host.style["GlobalRGB/RangeMax"])) {
        host.lastError = "The minimum must stay below the maximum.";
        return SetValue_InvalidValue;
    }
    it->second = value;
    tinyhost::announce(StateChange_Style, stylePath);
    return SetValue_Ok;
}

char* OrrUtilStyleGetLastErrorString(void)
{
    tinyhost::enter("StyleGetLastErrorString");
    return Host::instance().lastError.empty() ? nullptr : tinyhost::copyOf(Host::instance().lastError);
}

void OrrUtilStringDealloc(char** string)
{
    tinyhost::enter("StringDealloc");
    std::free(*string);
    *string = nullptr;
}
//! [style write]

int OrrUtilDialogMessageBox(const char* text, int)
{
    tinyhost::enter("DialogMessageBox");
    Host::instance().messages.push_back(text ? text : "");
    return 1;
}

//! [settings]
namespace {

// Settings that last as long as the process; a real host keeps them across runs.
struct MemorySettings : orrery::sdk::ApplicationSettings
{
    std::string getStringValue(const std::string& key) const override
    {
        const auto it = values.find(key);
        return it == values.end() ? std::string() : it->second;
    }
    void depositValue(const std::string& key, const std::string& value) override { values[key] = value; }
    std::map<std::string, std::string> values;
};

} // namespace

orrery::sdk::ApplicationSettings& orrery::sdk::ApplicationSettings::getInstance()
{
    static MemorySettings settings;
    return settings;
}
//! [settings]
