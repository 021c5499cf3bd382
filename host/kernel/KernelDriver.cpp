#include "host/kernel/KernelDriver.h"
#include <stdexcept>
#include "host/kernel/Kernel.h"
#include "host/kernel/SampleDataSet.h"

namespace orrery {
namespace kernel {

namespace {

std::vector<KernelDriver::CapturedMessageBox>& captured()
{
    static std::vector<KernelDriver::CapturedMessageBox> messages;
    return messages;
}

Kernel& kernel()
{
    return Kernel::instance();
}

} // namespace

void KernelDriver::resetKernel()
{
    captured().clear();
    kernel().reset();
}

void KernelDriver::loadSampleDataSet(const std::string& name, const std::string& title)
{
    DataSet sample = SampleDataSet::make(name);
    if (!title.empty())
        sample.setTitle(title);
    kernel().setDataSet(std::move(sample));
}

void KernelDriver::setDataSet(const DataSet& dataSet)
{
    kernel().setDataSet(dataSet);
}

void KernelDriver::clearDataSet()
{
    kernel().setDataSet(DataSet());
}

void KernelDriver::setPageCount(int pages)
{
    kernel().setPageCount(pages);
}

void KernelDriver::setFrameCount(int frames)
{
    kernel().setFrameCount(frames);
}

void KernelDriver::setPlotType(PlotType_e plotType)
{
    if (setStyle({"FrameLayout", "PlotType"}, long(plotType)) != SetValue_Ok)
        throw std::invalid_argument("The kernel refused plot type " + std::to_string(plotType));
}

void KernelDriver::setEnabledZones(const toolbox::Set& zones)
{
    kernel().setEnabledZones(zones);
}

void KernelDriver::setEnabledVars(const toolbox::Set& vars)
{
    kernel().setEnabledVars(vars);
}

int KernelDriver::styleWriteCount()
{
    return kernel().style().writeCount();
}

int KernelDriver::styleWriteCount(const toolbox::StringList& path)
{
    return kernel().style().writeCount(path.join("/"));
}

SetValueReturnCode_e KernelDriver::setStyle(const toolbox::StringList& path, const StyleDatum& value, long member)
{
    return kernel().style().write(path, nullptr, member, AssignOp_Equals, value);
}

StyleDatum KernelDriver::styleValue(const toolbox::StringList& path, long member)
{
    StyleDatum value;
    if (kernel().style().read(path, member, value) != GetValue_Ok)
        throw std::invalid_argument("Cannot read style path " + path.join("/"));
    return value;
}

void KernelDriver::refuseNextWrite(const std::string& errorText)
{
    kernel().style().forceNextVerdict(WriteVerdict::refuse(errorText));
}

void KernelDriver::declineNextWrite()
{
    kernel().style().forceNextVerdict(WriteVerdict::decline());
}

void KernelDriver::captureMessageBoxes(int answer)
{
    kernel().messageBoxes().setHandler([answer](const std::string& text, int type) {
        captured().push_back({text, type});
        return answer;
    });
}

std::vector<KernelDriver::CapturedMessageBox> KernelDriver::capturedMessageBoxes()
{
    return captured();
}

void KernelDriver::fireStateChange(StateChange_e code, const toolbox::StringList& stylePath)
{
    kernel().announce(code, stylePath);
}

} // namespace kernel
} // namespace orrery
