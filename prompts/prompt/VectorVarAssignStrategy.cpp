#include "prompts/prompt/VectorVarAssignStrategy.h"

#include "platform/sdk/DataSetQueries.h"
#include "prompts/prompt/VectorVariableSelectDialog.h"

namespace orrery {
namespace dialogs {
namespace prompt {

bool VectorVarAssignStrategy::operator()(PlotType_e plotType) const
{
    if (plotType != PlotType_ThreeD && plotType != PlotType_TwoD)
        return false;
    if (sdk::okToTurnOnVectorLayer(plotType))
        return true;
    VariableSelectDialog* dialog = VectorVariableSelectDialog::getInstance(m_parent, plotType);
    dialog->launch();
    return dialog->result() == QDialog::Accepted;
}

} // namespace prompt
} // namespace dialogs
} // namespace orrery
