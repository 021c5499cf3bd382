#pragma once
#include <memory>
#include <string>
#include <vector>
#include <boost/function.hpp>
#include <boost/shared_ptr.hpp>
#include "core/propertymanager/KernelPropertyDeferred.h"
#include "prompts/prompt/VariableChoiceBindings.h"
#include "prompts/prompt/VariableSelectDialog.h"
#include "ui_VariableSelectDialog.h"

namespace orrery {
namespace dialogs {
namespace prompt {

// What a VariableSelectDialog shows and writes: the texts, the list of
// variables, the three pending choices and their bindings.
class VariableSelectDialogImpl
{
public:
    typedef sdk::styleproperties::KernelPropertyDeferred<int> VarProperty;

    // Builds the layout on dialog. Throws what the assignment throws.
    VariableSelectDialogImpl(QDialog& dialog, const toolbox::StringList& var1Path,
                             const toolbox::StringList& var2Path, const toolbox::StringList& var3Path,
                             const std::string& instructions, const std::vector<std::string>& labels,
                             const VariableSelectDialog::DefaultVarAssignmentInterface& assignment);
    ~VariableSelectDialogImpl();

    // Puts the texts into the labels; hides the third row of a two-variable
    // dialog. Throws std::out_of_range when labels are missing.
    void showTexts();
    // Writes the pending choices that differ from the kernel's values and runs
    // the post-assignment action, as one undo step. On a refusal the step is
    // closed with what was written so far, and refusal holds the reason.
    bool applyChoices(std::string& refusal);

    std::string instructions;
    std::vector<std::string> labels;
    bool hasThirdVariable;
    // False when built for a plot without these style values (empty paths):
    // there is nothing to write then.
    bool hasStyleValues;
    VariableChoiceBindings::ModelPtr variablesModel;
    Ui_VariableSelectDialog ui;
    boost::shared_ptr<VarProperty> var1, var2, var3;
    std::unique_ptr<VariableChoiceBindings> bindings;
    boost::function<void ()> postAssignmentAction;

private:
    void setupPropertyBindings();
};

} // namespace prompt
} // namespace dialogs
} // namespace orrery
