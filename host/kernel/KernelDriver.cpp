#include "platform/kernel/KernelTestSupport.h"
#include <stdexcept>
#include "platform/kernel/Kernel.h"
#include "platform/kernel/SampleDataSet.h"

namespace orrery {
namespace kernel {
namespace testing {

namespace {

std::vector<KernelTestSupport::CapturedMessageBox>& captured()
{
    static std::vector<KernelTestSupport::CapturedMessageBox> messages;
    return messages;
}

Kernel& kernel()
{
    return Kernel::instance();
}

} // namespace

void KernelTestSupport::resetKernel()
{
    captured().clear();
    kernel().reset();
}

void KernelTestSupport::loadSampleDataSet(const std::string& name)
{
    kernel().setDataSet(SampleDataSet::make(name));
}

void KernelTestSupport::setDataSet(const DataSet& dataSet)
{
    kernel().setDataSet(dataSet);
}

void KernelTestSupport::clearDataSet()
{
    kernel().setDataSet(DataSet());
}

void KernelTestSupport::setPageCount(int pages)
{
    kernel().setPageCount(pages);
}

void KernelTestSupport::setFrameCount(int frames)
{
    kernel().setFrameCount(frames);
}

void KernelTestSupport::setPlotType(PlotType_e plotType)
{
    if (setStyle({"FrameLayout", "PlotType"}, long(plotType)) != SetValue_Ok)
        throw std::invalid_argument("The kernel refused plot type " + std::to_string(plotType));
}

void KernelTestSupport::setEnabledZones(const toolbox::Set& zones)
{
    kernel().setEnabledZones(zones);
}

void KernelTestSupport::setEnabledVars(const toolbox::Set& vars)
{
    kernel().setEnabledVars(vars);
}

int KernelTestSupport::styleWriteCount()
{
    return kernel().style().writeCount();
}

int KernelTestSupport::styleWriteCount(const toolbox::StringList& path)
{
    return kernel().style().writeCount(path.join("/"));
}

SetValueReturnCode_e KernelTestSupport::setStyle(const toolbox::StringList& path,
                                                 const StyleDatum& value, long member)
{
    return kernel().style().write(path, nullptr, member, AssignOp_Equals, value);
}

StyleDatum KernelTestSupport::styleValue(const toolbox::StringList& path, long member)
{
    StyleDatum value;
    if (kernel().style().read(path, member, value) != GetValue_Ok)
        throw std::invalid_argument("Cannot read style path " + path.join("/"));
    return value;
}

void KernelTestSupport::refuseNextWrite(const std::string& errorText)
{
    kernel().style().forceNextVerdict(WriteVerdict::refuse(errorText));
}

void KernelTestSupport::declineNextWrite()
{
    kernel().style().forceNextVerdict(WriteVerdict::decline());
}

void KernelTestSupport::captureMessageBoxes(int answer)
{
    kernel().messageBoxes().setHandler([answer](const std::string& text, int type) {
        captured().push_back({text, type});
        return answer;
    });
}

std::vector<KernelTestSupport::CapturedMessageBox> KernelTestSupport::capturedMessageBoxes()
{
    return captured();
}

void KernelTestSupport::fireStateChange(StateChange_e code, const toolbox::StringList& stylePath)
{
    kernel().announce(code, stylePath);
}

} // namespace testing
} // namespace kernel
} // namespace orrery
