#include "prompts/prompt/VariableSelectDialog.h"

#include <stdexcept>
#include <boost/make_shared.hpp>
#include <QCoreApplication>
#include "core/property/InvalidPropertyValueException.h"
#include "core/propertymanager/KernelPropertyDeferred.h"
#include "platform/toolbox/StyleValue.h"
#include "prompts/prompt/VariableChoiceBindings.h"
#include "ui_VariableSelectDialog.h"
#include "framework/DataSetExistsRelevance.h"
#include "framework/LaunchHelpAction.h"
#include "platform/common/HostCall.h"
#include "platform/kernel/OrrUtil.h"
#include "platform/sdk/AppLock.h"
#include "framework/SharedRelevance.h"

namespace orrery {
namespace dialogs {
namespace prompt {

namespace {
// The host's undo category for style values chosen in a dialog.
const int UndoCategoryDialogStyle = 11;

// Instructions and labels (UTF-8) come from the opening dialog class (or an
// add-on); those the library knows are translated in this layout's context.
QString shown(const std::string& text)
{
    return QCoreApplication::translate("VariableSelectDialog", text.c_str());
}

// Closes the undo bracket on every way out, so that the host's undo state stays
// balanced. All or nothing: unless the step is kept, the host takes back every
// write of it and records nothing, so a refusal half-way leaves the host as it was.
class UndoStep
{
public:
    explicit UndoStep(int category)
    {
        HostCall::run("OrrUtilUndoStateBegin", [&] { OrrUtilUndoStateBegin(category); });
    }
    ~UndoStep()
    {
        HostCall::run("OrrUtilUndoStateEnd", [&] { OrrUtilUndoStateEnd(!m_kept, m_kept); });
    }
    void keep() { m_kept = true; }
    UndoStep(const UndoStep&) = delete;
    UndoStep& operator=(const UndoStep&) = delete;

private:
    bool m_kept = false;
};
} // namespace

// What the dialog shows and writes: the texts, the list of variables, the
// three pending choices and their bindings.
struct VariableSelectDialog::Impl
{
    typedef sdk::styleproperties::KernelPropertyDeferred<int> VarProperty;

    // Builds the layout on dialog. Throws what the assignment throws.
    Impl(QDialog& dialog, const toolbox::StringList& var1Path, const toolbox::StringList& var2Path,
         const toolbox::StringList& var3Path, const std::string& instructions, const std::vector<std::string>& labels,
         const DefaultVarAssignmentInterface& assignment);

    // Puts the texts into the labels and hides the third row of a two-variable
    // dialog. A missing label leaves its caption empty.
    void showTexts();
    // Throws std::out_of_range when labels are missing.
    void checkLabels() const;
    // Writes the pending choices that differ from the kernel's values and runs
    // the post-assignment action, as one undo step. On a refusal every write of
    // the step is taken back, and refusal holds the reason.
    bool applyChoices(std::string& refusal);
    void setupPropertyBindings();

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
    boost::function<void()> postAssignmentAction;
};

VariableSelectDialog::Impl::Impl(QDialog& dialog, const toolbox::StringList& var1Path,
                                 const toolbox::StringList& var2Path, const toolbox::StringList& var3Path,
                                 const std::string& instructions, const std::vector<std::string>& labels,
                                 const DefaultVarAssignmentInterface& assignment)
    : instructions(instructions), labels(labels), hasThirdVariable(var3Path.count() > 0),
      hasStyleValues(var1Path.count() > 0 && var2Path.count() > 0),
      variablesModel(boost::make_shared<VariableChoiceBindings::ModelPtr::element_type>())
{
    ui.setupUi(&dialog);
    var1 = boost::make_shared<VarProperty>(toolbox::StyleValue(var1Path));
    var2 = boost::make_shared<VarProperty>(toolbox::StyleValue(var2Path));
    // A two-variable dialog's hidden third list mirrors the second style value;
    // it is never written.
    var3 = boost::make_shared<VarProperty>(toolbox::StyleValue(hasThirdVariable ? var3Path : var2Path));
    assignment.assignVariables(*var1, *var2, *var3);
    setupPropertyBindings();
    // Here rather than in launch(), so that exec(), open() and show() show them too.
    showTexts();
}

void VariableSelectDialog::Impl::setupPropertyBindings()
{
    bindings.reset(new VariableChoiceBindings(variablesModel, {ui.var1_comboBox, ui.var2_comboBox, ui.var3_comboBox},
                                              {var1, var2, var3}));
}

void VariableSelectDialog::Impl::showTexts()
{
    ui.instructions_label->setText(shown(instructions));
    QLabel* const captions[] = {ui.var1_label, ui.var2_label, ui.var3_label};
    for (size_t row = 0; row < 3; ++row)
        captions[row]->setText(row < labels.size() ? shown(labels[row]) : QString());
    ui.var3_label->setVisible(hasThirdVariable);
    ui.var3_comboBox->setVisible(hasThirdVariable);
}

void VariableSelectDialog::Impl::checkLabels() const
{
    if (labels.size() < (hasThirdVariable ? 3u : 2u))
        throw std::out_of_range("The variable dialog needs a label for each of its rows.");
}

bool VariableSelectDialog::Impl::applyChoices(std::string& refusal)
{
    UndoStep step(UndoCategoryDialogStyle);
    try {
        if (hasStyleValues) {
            var1->apply();
            var2->apply();
        }
        if (hasThirdVariable)
            var3->apply();
        if (postAssignmentAction)
            postAssignmentAction();
        step.keep();
        return true;
    } catch (const InvalidPropertyValueException& e) {
        refusal = e.what();
    } catch (const std::exception& e) {
        refusal = e.what();
    }
    return false;
}

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
    try {
        dialog->install(
            std::make_unique<Impl>(*dialog, var1Path, var2Path, var3Path, instructions, labels, assignment));
    } catch (...) {
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

void VariableSelectDialog::install(std::unique_ptr<Impl> impl)
{
    m_impl = std::move(impl);
}

void VariableSelectDialog::setPostAssignmentAction(boost::function<void()> action)
{
    if (m_impl)
        m_impl->postAssignmentAction = std::move(action);
}

void VariableSelectDialog::launch()
{
    if (!m_impl) {
        setResult(Rejected);
        return;
    }
    m_impl->checkLabels();
    QtDialogAbstract::launch();
}

void VariableSelectDialog::retranslate()
{
    if (!m_impl)
        return;
    m_impl->ui.retranslateUi(this);
    m_impl->showTexts();
}

void VariableSelectDialog::accept()
{
    if (!m_impl || !isRelevant()) {
        QtDialogAbstract::accept();
        return;
    }
    std::string refusal;
    {
        sdk::AppLock lock(sdk::AppLock::ImplicitMacroRecording_Allow);
        if (m_impl->applyChoices(refusal)) {
            QtDialogAbstract::accept();
            return;
        }
    }
    // Told once the host is no longer busy; the dialog stays open for another choice.
    if (!refusal.empty())
        ORRERY_HOST_CALL(0, OrrUtilDialogMessageBox(refusal.c_str(), MessageBoxType_Error));
}

boost::shared_ptr<const sdk::ui::propertymanager::RelevanceInterface> VariableSelectDialog::relevance()
{
    return sharedRelevance<VariableSelectDialog, sdk::ui::propertymanager::DataSetExistsRelevance>();
}

} // namespace prompt
} // namespace dialogs
} // namespace orrery
