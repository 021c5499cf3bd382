#include "prompts/prompt/RGBVariableSelectDialog.h"

#include <QtGlobal>
#include "core/property/PropertyAbstract.h"
#include "platform/sdk/DataSetQueries.h"
#include "platform/sdk/HostAnswers.h"

namespace orrery {
namespace dialogs {
namespace prompt {

void RGBVariableSelectDialog::RGBVarAssignment::assignVariables(PropertyAbstract<int>& var1,
                                                                PropertyAbstract<int>& var2,
                                                                PropertyAbstract<int>& var3) const
{
    int r = 0, g = 0, b = 0;
    // Channels without a candidate get 0, which the lists then replace by a
    // listed variable.
    sdk::getValidRGBVarCandidates(sdk::HostAnswers::plotType(), r, g, b);
    var1.setValue(r);
    var2.setValue(g);
    var3.setValue(b);
}

VariableSelectDialog* RGBVariableSelectDialog::getInstance(QWidget& parent)
{
    return VariableSelectDialog::getInstance(
        parent, {"GlobalRGB", "RedChannelVar"}, {"GlobalRGB", "GreenChannelVar"}, {"GlobalRGB", "BlueChannelVar"},
        QT_TRANSLATE_NOOP("VariableSelectDialog", "Choose the variables to assign to the R, G, and B channels."),
        {"&R", "&G", "&B"}, RGBVarAssignment());
}

} // namespace prompt
} // namespace dialogs
} // namespace orrery
