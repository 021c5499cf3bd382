#pragma once
#include "platform/PlatformExport.h"
#include "platform/kernel/OrrTypes.h"
#include "platform/toolbox/Set.h"

namespace orrery {
namespace toolbox {
class StyleValue;
}
namespace sdk {

// Data-set helpers over the current data set. Frames are named by the number of
// OrrUtilFrameGetUniqueID(); an unknown frame has no zones and no variables.
ORRERY_PLATFORM_EXPORT toolbox::Set getEnabledZonesForFrame(long frameUniqueID);
ORRERY_PLATFORM_EXPORT toolbox::Set getEnabledVarsForFrame(long frameUniqueID);

// Vector components for a field plot (u, v and, for 3D, w; w is 0 for 2D):
//   1. enabled variables named U, V (and W), ignoring case, when all are there;
//   2. else velocity components (velocity_x, vel_x, vx ... ignoring case and
//      separators), when all are there;
//   3. otherwise the first enabled variables that are not on an axis of that
//      plot type and not constant, in variable order.
// False, with all three 0, when neither rule gives enough variables or the
// plot type is not a field plot.
ORRERY_PLATFORM_EXPORT bool getValidVectorVarCandidates(PlotType_e plotType, int& u, int& v, int& w);
// Red, green and blue channel variables:
//   1. enabled variables named R, G, B (or Red, Green, Blue), ignoring case,
//      when all three are there;
//   2. otherwise the first three enabled variables that are not on an axis of
//      that plot type, followed by the axis variables.
// Unfound channels are 0; true only when all three were found.
ORRERY_PLATFORM_EXPORT bool getValidRGBVarCandidates(PlotType_e plotType, int& r, int& g, int& b);
// True when the frame shows a field plot of that type and the vector variables
// already in its style are distinct enabled variables.
ORRERY_PLATFORM_EXPORT bool okToTurnOnVectorLayer(PlotType_e plotType);
// True when the three channel variables are enabled variables of the data set.
ORRERY_PLATFORM_EXPORT bool checkRGBChannelVars(int red, int green, int blue);
// The same check on the channel variables held under the given style group
// (normally "GlobalRGB").
ORRERY_PLATFORM_EXPORT bool checkRGBChannelVars(const toolbox::StyleValue& rgbGroup);
// Gives the scatter size a variable when it has none or an invalid one: the
// first enabled variable that is not an axis variable (else the first enabled).
ORRERY_PLATFORM_EXPORT void autoAssignScatterVariable();

} // namespace sdk
} // namespace orrery
