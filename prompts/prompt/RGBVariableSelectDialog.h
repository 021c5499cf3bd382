#pragma once
#include "prompts/PromptsExport.h"
#include "prompts/prompt/VariableSelectDialog.h"

namespace orrery {
namespace dialogs {
namespace prompt {

/// The variables of the red, green and blue channels of RGB colouring.
class ORRERY_PROMPTS_EXPORT RGBVariableSelectDialog
{
public:
    /// Starts from the host's RGB candidates, whether or not it found all three.
    class RGBVarAssignment : public virtual VariableSelectDialog::DefaultVarAssignmentInterface
    {
    public:
        /// Sets the red, green and blue candidates the host proposes.
        void assignVariables(PropertyAbstract<int>& var1, PropertyAbstract<int>& var2,
                             PropertyAbstract<int>& var3) const override;
    };

    /// The variable dialog for the three channels. Later calls refresh nothing: a
    /// live variable dialog is returned as it is, even one built for other values
    /// (see SingleInstanceDialog). It is usable while a data set exists.
    static VariableSelectDialog* getInstance(QWidget& parent);
};

} // namespace prompt
} // namespace dialogs
} // namespace orrery
