#pragma once
#include "prompts/PromptsExport.h"
#include <functional>
#include <boost/shared_ptr.hpp>
#include "platform/kernel/OrrTypes.h"
#include "prompts/prompt/VariableSelectDialog.h"

namespace orrery {
namespace dialogs {
namespace prompt {

/// The variables on the X, Y (and, in 3D, Z) axes of the current frame.
class ORRERY_PROMPTS_EXPORT AxisVariableSelectDialog
{
public:
    /// Starts from the variables the axes already use.
    class AxisVarAssignment : public virtual VariableSelectDialog::DefaultVarAssignmentInterface
    {
    public:
        /// Leaves the properties as they are: they already hold the axes' variables.
        void assignVariables(PropertyAbstract<int>& var1, PropertyAbstract<int>& var2,
                             PropertyAbstract<int>& var3) const override;
    };

    /// The variable dialog for the axes of the current frame's plot type. Later
    /// calls refresh nothing: a live variable dialog is returned as it is, even
    /// one built for other values (see SingleInstanceDialog).
    static VariableSelectDialog* getInstance(QWidget& parent);
    /// Relevant while the current page shows a frame with a 2D or 3D field plot.
    static boost::shared_ptr<const sdk::ui::propertymanager::RelevanceInterface> relevance();

    /// True when there is a page and a frame, and plotType() names a 2D or 3D
    /// field plot; shared with the vector dialog.
    static bool frameShowsFieldPlot(const std::function<PlotType_e()>& plotType);
};

} // namespace prompt
} // namespace dialogs
} // namespace orrery
