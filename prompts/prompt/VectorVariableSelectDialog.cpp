#include "prompts/prompt/VectorVariableSelectDialog.h"

#include <functional>
#include <boost/make_shared.hpp>
#include "core/property/PropertyAbstract.h"
#include "framework/StateChangeDependentRelevance.h"
#include <QtGlobal>
#include "platform/sdk/AppLock.h"
#include "platform/sdk/DataSetQueries.h"
#include "prompts/prompt/AxisVariableSelectDialog.h"
#include "platform/sdk/HostAnswers.h"

namespace orrery {
namespace dialogs {
namespace prompt {

void VectorVariableSelectDialog::VectorVarAssignment::assignVariables(PropertyAbstract<int>& var1,
                                                                      PropertyAbstract<int>& var2,
                                                                      PropertyAbstract<int>& var3) const
{
    int u = 0, v = 0, w = 0;
    if (!sdk::getValidVectorVarCandidates(plotType, u, v, w))
        return;
    sdk::AppLock lock(sdk::AppLock::ImplicitMacroRecording_Allow);
    var1.setValue(u);
    var2.setValue(v);
    if (plotType == PlotType_ThreeD)
        var3.setValue(w);
}

VariableSelectDialog* VectorVariableSelectDialog::getInstance(QWidget& parent, PlotType_e plotType)
{
    sdk::AppLock lock(sdk::AppLock::ImplicitMacroRecording_Allow);
    const char* const root = plotType == PlotType_TwoD     ? "GlobalTwoDVector"
                             : plotType == PlotType_ThreeD ? "GlobalThreeDVector"
                                                           : nullptr;
    toolbox::StringList paths[3];
    if (root) {
        paths[0] = {root, "UVar"};
        paths[1] = {root, "VVar"};
        if (plotType == PlotType_ThreeD)
            paths[2] = {root, "WVar"};
    }
    std::vector<std::string> labels = {"&U", "&V"};
    if (plotType == PlotType_ThreeD)
        labels.push_back("&W");
    return VariableSelectDialog::getInstance(parent, paths[0], paths[1], paths[2],
                                             QT_TRANSLATE_NOOP("VariableSelectDialog", "Choose the vector variables."),
                                             labels, VectorVarAssignment(plotType));
}

boost::shared_ptr<const sdk::ui::propertymanager::RelevanceInterface> VectorVariableSelectDialog::relevance()
{
    static const std::function<PlotType_e()> plotType = sdk::HostAnswers::plotType;
    static const boost::shared_ptr<const sdk::ui::propertymanager::RelevanceInterface> relevance =
        boost::make_shared<sdk::ui::propertymanager::StateChangeDependentRelevance>(
            [] { return AxisVariableSelectDialog::frameShowsFieldPlot(plotType); });
    return relevance;
}

} // namespace prompt
} // namespace dialogs
} // namespace orrery
