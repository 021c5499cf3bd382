#pragma once
#include <string>
#include <vector>
#include "host/kernel/DataSet.h"
#include "platform/kernel/OrrTypes.h"
#include "host/kernel/StyleDatum.h"
#include "platform/toolbox/Set.h"
#include "platform/toolbox/StringList.h"

namespace orrery {
namespace kernel {

// Drives the stand-in kernel from the demo, examples and tests: what a user or another
// part of the host would do to it. Every change is announced as the kernel
// announces its own changes.
class KernelDriver
{
public:
    struct CapturedMessageBox
    {
        std::string text;
        int type;
    };

    // One page with one 2D frame, no data set, default style, empty undo
    // history, no forced refusals, counters at zero, message boxes not captured.
    static void resetKernel();

    // Sample data sets: "Sample" (3 zones; X, Y, Z, Pressure, Temperature) and
    // "Small" (1 zone; X, Y). Throws std::invalid_argument for another name.
    // A title (in the user's language, say) replaces the sample's own.
    static void loadSampleDataSet(const std::string& name = "Sample", const std::string& title = std::string());
    static void setDataSet(const DataSet& dataSet);
    static void clearDataSet();

    static void setPageCount(int pages);
    // New frames are 2D and become current; removing frames keeps the first ones.
    static void setFrameCount(int frames);
    static void setPlotType(PlotType_e plotType);
    static void setEnabledZones(const toolbox::Set& zones);
    static void setEnabledVars(const toolbox::Set& vars);

    // Style writes that reached the kernel (accepted or not) since the reset.
    static int styleWriteCount();
    static int styleWriteCount(const toolbox::StringList& path);

    // A write by another part of the host, with the kernel's rules; member is the
    // collection member (-1: none). Announced like any other style write.
    static SetValueReturnCode_e setStyle(const toolbox::StringList& path, const StyleDatum& value, long member = -1);
    // The current value; throws std::invalid_argument for an unreadable path.
    static StyleDatum styleValue(const toolbox::StringList& path, long member = -1);

    // The next style write is refused with this text (code SetValue_InvalidValue)
    // or declined (code 15), whatever its value. An empty text leaves no last error.
    static void refuseNextWrite(const std::string& errorText);
    static void declineNextWrite();

    // Message boxes are recorded instead of shown and answered with answer.
    static void captureMessageBoxes(int answer = 1);
    static std::vector<CapturedMessageBox> capturedMessageBoxes();

    static void fireStateChange(StateChange_e code, const toolbox::StringList& stylePath = {});
};

} // namespace kernel
} // namespace orrery
