#include "prompts/prompt/AxisVariableSelectDialog.h"

#include <boost/make_shared.hpp>
#include "framework/StateChangeDependentRelevance.h"
#include <QtGlobal>
#include "platform/sdk/AppLock.h"
#include "platform/sdk/HostAnswers.h"

namespace orrery {
namespace dialogs {
namespace prompt {

void AxisVariableSelectDialog::AxisVarAssignment::assignVariables(PropertyAbstract<int>&, PropertyAbstract<int>&,
                                                                  PropertyAbstract<int>&) const
{}

VariableSelectDialog* AxisVariableSelectDialog::getInstance(QWidget& parent)
{
    sdk::AppLock lock(sdk::AppLock::ImplicitMacroRecording_Allow);
    const PlotType_e plotType = sdk::HostAnswers::plotType();
    const char* const root = plotType == PlotType_TwoD     ? "TwoDAxis"
                             : plotType == PlotType_ThreeD ? "ThreeDAxis"
                                                           : nullptr;
    toolbox::StringList paths[3];
    if (root) {
        paths[0] = {root, "XDetail", "VarNum"};
        paths[1] = {root, "YDetail", "VarNum"};
        if (plotType == PlotType_ThreeD)
            paths[2] = {root, "ZDetail", "VarNum"};
    }
    std::vector<std::string> labels = {"&X", "&Y"};
    if (plotType == PlotType_ThreeD)
        labels.push_back("&Z");
    return VariableSelectDialog::getInstance(
        parent, paths[0], paths[1], paths[2],
        QT_TRANSLATE_NOOP("VariableSelectDialog", "Choose the variables to assign to the axes."), labels,
        AxisVarAssignment());
}

bool AxisVariableSelectDialog::frameShowsFieldPlot(const std::function<PlotType_e()>& plotType)
{
    if (sdk::HostAnswers::pageCount() < 1 || sdk::HostAnswers::frameCount() < 1)
        return false;
    const PlotType_e type = plotType();
    return type == PlotType_TwoD || type == PlotType_ThreeD;
}

boost::shared_ptr<const sdk::ui::propertymanager::RelevanceInterface> AxisVariableSelectDialog::relevance()
{
    static const boost::shared_ptr<const sdk::ui::propertymanager::RelevanceInterface> relevance =
        boost::make_shared<sdk::ui::propertymanager::StateChangeDependentRelevance>(
            [] { return frameShowsFieldPlot(sdk::HostAnswers::plotType); });
    return relevance;
}

} // namespace prompt
} // namespace dialogs
} // namespace orrery
