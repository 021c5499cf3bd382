#include "host/kernel/OrrUtilHost.h"
#include <cstdlib>
#include <cstring>
#include <string>
#include "host/kernel/ColorMap.h"
#include "host/kernel/Kernel.h"
#include "host/kernel/StyleNameRegistry.h"
#include "host/kernel/UnitConverter.h"

using orrery::kernel::Kernel;

namespace {

char* copyOf(const std::string& text)
{
    char* copy = static_cast<char*>(std::malloc(text.size() + 1));
    std::memcpy(copy, text.c_str(), text.size() + 1);
    return copy;
}

const orrery::kernel::Frame* frame()
{
    return Kernel::instance().currentFrame();
}

} // namespace

int OrrUtilPageGetCount(void)
{
    return Kernel::instance().pageCount();
}

int OrrUtilFrameGetCount(void)
{
    return Kernel::instance().frameCount();
}

long OrrUtilFrameGetUniqueID(void)
{
    return frame() ? frame()->uniqueID() : 0;
}

PlotType_e OrrUtilFrameGetPlotType(void)
{
    return Kernel::instance().plotType();
}

bool OrrUtilDataSetIsAvailable(void)
{
    return Kernel::instance().dataSet().isAvailable();
}

int OrrUtilDataSetGetNumZones(void)
{
    return Kernel::instance().dataSet().numZones();
}

int OrrUtilDataSetGetNumVars(void)
{
    return Kernel::instance().dataSet().numVars();
}

char* OrrUtilDataSetGetTitle(void)
{
    const auto& data = Kernel::instance().dataSet();
    return data.isAvailable() ? copyOf(data.title()) : nullptr;
}

char* OrrUtilZoneGetName(int zone)
{
    const auto& data = Kernel::instance().dataSet();
    return data.hasZone(zone) ? copyOf(data.zoneName(zone)) : nullptr;
}

char* OrrUtilVarGetName(int var)
{
    const auto& data = Kernel::instance().dataSet();
    return data.hasVar(var) ? copyOf(data.varName(var)) : nullptr;
}

bool OrrUtilZoneIsEnabled(int zone)
{
    return frame() && frame()->enabledZones.contains(zone);
}

bool OrrUtilVarIsEnabled(int var)
{
    return frame() && frame()->enabledVars.contains(var);
}

bool OrrUtilFrameZoneIsEnabled(long frameUniqueID, int zone)
{
    const orrery::kernel::Frame* f = Kernel::instance().frameByID(frameUniqueID);
    return f && f->enabledZones.contains(zone);
}

bool OrrUtilFrameVarIsEnabled(long frameUniqueID, int var)
{
    const orrery::kernel::Frame* f = Kernel::instance().frameByID(frameUniqueID);
    return f && f->enabledVars.contains(var);
}

long OrrUtilStyleNameGetID(const char* name)
{
    return orrery::kernel::StyleNameRegistry::instance().idOf(name ? name : "");
}

GetValueReturnCode_e OrrUtilStyleGetValue(ArgList_pa args)
{
    return Kernel::instance().style().get(*args);
}

SetValueReturnCode_e OrrUtilStyleSetValue(ArgList_pa args)
{
    return Kernel::instance().style().set(*args);
}

bool OrrUtilVarGetMinMax(int var, double* min, double* max)
{
    return frame() && Kernel::instance().dataSet().range(var, frame()->enabledZones, *min, *max);
}

long OrrUtilZoneGetNumPoints(int zone)
{
    const auto& data = Kernel::instance().dataSet();
    return data.hasZone(zone) ? static_cast<long>(data.pointCount(zone)) : 0;
}

const double* OrrUtilVarGetValuesInZone(int zone, int var)
{
    const auto& data = Kernel::instance().dataSet();
    return data.hasZone(zone) && data.hasVar(var) ? data.values(zone, var).data() : nullptr;
}

void OrrUtilAxisGetGridRange(double* xMin, double* yMin, double* xMax, double* yMax)
{
    Kernel::instance().axisGridRange(*xMin, *yMin, *xMax, *yMax);
}

double OrrUtilConvertUnits(int fromUnits, int toUnits, double value)
{
    double xMin, yMin, xMax, yMax;
    OrrUtilAxisGetGridRange(&xMin, &yMin, &xMax, &yMax);
    const double heightCm = frame() ? frame()->heightCm : orrery::kernel::Frame::DefaultHeightCm;
    return orrery::kernel::UnitConverter(yMax - yMin, heightCm).convert(fromUnits, toUnits, value);
}

void OrrUtilColorMapGetBasicColorRGB(int colorIndex, unsigned char* red, unsigned char* green, unsigned char* blue)
{
    orrery::kernel::ColorMap::rgb(colorIndex, *red, *green, *blue);
}

void OrrUtilUndoStateBegin(int category)
{
    OrrUtilUndoStateBeginNamed(category, nullptr);
}

void OrrUtilUndoStateBeginNamed(int category, const char* name)
{
    std::string stepName = name ? name : "";
    if (stepName.empty())
        stepName = category == UndoCategory_AssignVariables ? "Assign Variables" : "";
    Kernel& kernel = Kernel::instance();
    kernel.undoStack().begin(stepName);
    kernel.journal().beginBracket(stepName);
}

void OrrUtilUndoStateEnd(bool revert, bool record)
{
    Kernel& kernel = Kernel::instance();
    kernel.journal().endBracket(revert, record);
    kernel.style().restore(kernel.undoStack().end(revert, record), true);
}

char* OrrUtilUndoGetStepName(void)
{
    const std::string name = Kernel::instance().undoStack().undoName();
    return name.empty() ? nullptr : copyOf(name);
}

char* OrrUtilRedoGetStepName(void)
{
    const std::string name = Kernel::instance().undoStack().redoName();
    return name.empty() ? nullptr : copyOf(name);
}

bool OrrUtilUndoPerform(void)
{
    return Kernel::instance().undo();
}

bool OrrUtilRedoPerform(void)
{
    return Kernel::instance().redo();
}

char* OrrUtilStyleGetLastErrorString(void)
{
    const auto& text = Kernel::instance().lastError();
    return text ? copyOf(*text) : nullptr;
}

void OrrUtilStringDealloc(char** string)
{
    if (!string)
        return;
    std::free(*string);
    *string = nullptr;
}

int OrrUtilDialogMessageBox(const char* text, int type)
{
    return Kernel::instance().messageBoxes().show(text ? text : "", type);
}
