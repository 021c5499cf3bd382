#pragma once
#include "prompts/PromptsExport.h"
#include <boost/shared_ptr.hpp>
#include "platform/kernel/OrrTypes.h"
#include "prompts/prompt/VariableSelectDialog.h"

namespace orrery {
namespace dialogs {
namespace prompt {

/// The U, V (and, in 3D, W) components of the vector plot.
class ORRERY_PROMPTS_EXPORT VectorVariableSelectDialog
{
public:
    /// Starts from the host's vector candidates when it finds usable ones,
    /// otherwise from the variables the style already holds.
    class VectorVarAssignment : public virtual VariableSelectDialog::DefaultVarAssignmentInterface
    {
    public:
        /// Assigns for the vector components of \a plotType.
        explicit VectorVarAssignment(PlotType_e plotType) : plotType(plotType) {}
        /// Sets the U, V and W variables shown first.
        void assignVariables(PropertyAbstract<int>& var1, PropertyAbstract<int>& var2,
                             PropertyAbstract<int>& var3) const override;

        /// The plot type whose components are assigned (2D: no W).
        PlotType_e plotType;
    };

    /// The variable dialog for the vector components of plotType. Later calls
    /// refresh nothing: a live variable dialog is returned as it is, even one built
    /// for other values (see SingleInstanceDialog).
    static VariableSelectDialog* getInstance(QWidget& parent, PlotType_e plotType);
    /// Relevant while the current page shows a frame with a 2D or 3D field plot.
    static boost::shared_ptr<const sdk::ui::propertymanager::RelevanceInterface> relevance();
};

} // namespace prompt
} // namespace dialogs
} // namespace orrery
