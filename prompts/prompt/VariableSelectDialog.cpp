#include "prompts/prompt/VariableSelectDialog.h"

#include "framework/DataSetExistsRelevance.h"
#include "framework/LaunchHelpAction.h"
#include "platform/kernel/OrrUtil.h"
#include "platform/sdk/AppLock.h"
#include "framework/SharedRelevance.h"
#include "prompts/prompt/VariableSelectDialogImpl.h"

namespace orrery {
namespace dialogs {
namespace prompt {

VariableSelectDialog* VariableSelectDialog::getInstance(QWidget& parent, const toolbox::StringList& var1Path,
                                                        const toolbox::StringList& var2Path,
                                                        const toolbox::StringList& var3Path,
                                                        const std::string& instructions,
                                                        const std::vector<std::string>& labels,
                                                        const DefaultVarAssignmentInterface& assignment)
{
    if (VariableSelectDialog* live = liveInstance())
        return live;
    VariableSelectDialog* dialog = obtain(parent);
    try
    {
        dialog->install(std::make_unique<VariableSelectDialogImpl>(*dialog, var1Path, var2Path, var3Path,
                                                                   instructions, labels, assignment));
    }
    catch (...)
    {
        // A dialog without its lists must not be handed out by the next call.
        delete dialog;
        throw;
    }
    return dialog;
}

VariableSelectDialog::VariableSelectDialog(QWidget& parent) : QtDialogAbstract(parent, relevance())
{
    setHelpAction(new common::LaunchHelpAction("select_variable.html", *this));
}

VariableSelectDialog::~VariableSelectDialog() = default;

void VariableSelectDialog::install(std::unique_ptr<VariableSelectDialogImpl> impl)
{
    m_impl = std::move(impl);
}

void VariableSelectDialog::setPostAssignmentAction(boost::function<void ()> action)
{
    if (m_impl)
        m_impl->postAssignmentAction = std::move(action);
}

void VariableSelectDialog::launch()
{
    if (!m_impl)
    {
        setResult(Rejected);
        return;
    }
    m_impl->showTexts();
    QtDialogAbstract::launch();
}

void VariableSelectDialog::accept()
{
    if (!m_impl || !isRelevant())
    {
        QtDialogAbstract::accept();
        return;
    }
    std::string refusal;
    {
        sdk::AppLock lock(sdk::AppLock::ImplicitMacroRecording_Allow);
        if (m_impl->applyChoices(refusal))
        {
            QtDialogAbstract::accept();
            return;
        }
    }
    // Told once the host is no longer busy; the dialog stays open for another choice.
    if (!refusal.empty())
        OrrUtilDialogMessageBox(refusal.c_str(), MessageBoxType_Error);
}

boost::shared_ptr<const sdk::ui::propertymanager::RelevanceInterface> VariableSelectDialog::relevance()
{
    return sharedRelevance<VariableSelectDialog, sdk::ui::propertymanager::DataSetExistsRelevance>();
}

} // namespace prompt
} // namespace dialogs
} // namespace orrery
