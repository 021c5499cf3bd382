#include "platform/sdk/HostAnswers.h"
#include <algorithm>
#include <map>
#include <optional>
#include <vector>
#include "platform/common/HostCall.h"
#include "platform/kernel/OrrUtil.h"

namespace orrery {
namespace sdk {

namespace {

struct Answers
{
    std::optional<long> frameUniqueID;
    std::optional<PlotType_e> plotType;
    std::optional<bool> dataSetAvailable;
    std::optional<int> pageCount, frameCount, numZones, numVars;
    std::map<long, toolbox::Set> enabledZones, enabledVars;
    std::vector<std::optional<std::string>> zoneNames, varNames; // by number - 1
};

Answers& answers()
{
    static Answers kept;
    return kept;
}

template <typename T, typename Ask>
T kept(std::optional<T>& answer, Ask&& ask)
{
    if (!answer)
        answer = ask();
    return *answer;
}

const toolbox::Set& enabled(std::map<long, toolbox::Set>& kept, long frameUniqueID, int count,
                            bool (*isEnabled)(long, int), const char* operation)
{
    const auto known = kept.find(frameUniqueID);
    if (known != kept.end())
        return known->second;
    toolbox::Set set;
    for (int i = 1; i <= count; ++i)
        if (HostCall::value(operation, false, [&] { return isEnabled(frameUniqueID, i); }))
            set.add(i);
    return kept.emplace(frameUniqueID, std::move(set)).first->second;
}

// Sized by the count once, so that going through every name asks no count. A
// number out of range is asked every time, and not kept.
template <typename Ask>
const std::string& name(std::vector<std::optional<std::string>>& kept, int number, int (*count)(), Ask&& ask)
{
    if (kept.empty())
        kept.resize(size_t(std::max(count(), 0)));
    if (number < 1 || size_t(number) > kept.size()) {
        static std::string unkept;
        unkept = ask();
        return unkept;
    }
    std::optional<std::string>& slot = kept[size_t(number - 1)];
    if (!slot)
        slot = ask();
    return *slot;
}

} // namespace

long HostAnswers::frameUniqueID()
{
    return kept(answers().frameUniqueID, [] { return ORRERY_HOST_CALL(0L, OrrUtilFrameGetUniqueID()); });
}

PlotType_e HostAnswers::plotType()
{
    return kept(answers().plotType, [] { return ORRERY_HOST_CALL(PlotType_Sketch, OrrUtilFrameGetPlotType()); });
}

bool HostAnswers::dataSetAvailable()
{
    return kept(answers().dataSetAvailable, [] { return ORRERY_HOST_CALL(false, OrrUtilDataSetIsAvailable()); });
}

int HostAnswers::pageCount()
{
    return kept(answers().pageCount, [] { return ORRERY_HOST_CALL(0, OrrUtilPageGetCount()); });
}

int HostAnswers::frameCount()
{
    return kept(answers().frameCount, [] { return ORRERY_HOST_CALL(0, OrrUtilFrameGetCount()); });
}

int HostAnswers::numZones()
{
    return kept(answers().numZones, [] { return ORRERY_HOST_CALL(0, OrrUtilDataSetGetNumZones()); });
}

int HostAnswers::numVars()
{
    return kept(answers().numVars, [] { return ORRERY_HOST_CALL(0, OrrUtilDataSetGetNumVars()); });
}

toolbox::Set HostAnswers::enabledZones(long frameUniqueID)
{
    return enabled(answers().enabledZones, frameUniqueID, numZones(), OrrUtilFrameZoneIsEnabled,
                   "OrrUtilFrameZoneIsEnabled");
}

toolbox::Set HostAnswers::enabledVars(long frameUniqueID)
{
    return enabled(answers().enabledVars, frameUniqueID, numVars(), OrrUtilFrameVarIsEnabled,
                   "OrrUtilFrameVarIsEnabled");
}

std::string HostAnswers::zoneName(int zone)
{
    return name(answers().zoneNames, zone, numZones,
                [zone] { return ORRERY_HOST_TEXT(Fault, OrrUtilZoneGetName(zone)); });
}

std::string HostAnswers::varName(int var)
{
    return keptVarName(var);
}

const std::string& HostAnswers::keptVarName(int var)
{
    return name(answers().varNames, var, numVars, [var] { return ORRERY_HOST_TEXT(Fault, OrrUtilVarGetName(var)); });
}

void HostAnswers::forget()
{
    answers() = Answers();
}

} // namespace sdk
} // namespace orrery
