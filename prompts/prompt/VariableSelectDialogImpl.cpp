#include "prompts/prompt/VariableSelectDialogImpl.h"

#include <boost/make_shared.hpp>
#include <QCoreApplication>
#include "core/property/InvalidPropertyValueException.h"
#include "platform/kernel/OrrUtil.h"
#include "platform/toolbox/StyleValue.h"

namespace orrery {
namespace dialogs {
namespace prompt {

namespace {
// The host's undo category for style values chosen in a dialog.
const int UndoCategoryDialogStyle = 11;

// Instructions and labels come from the opening dialog class (or an add-on)
// in English; those the library knows are translated in this layout's context.
QString ascii(const std::string& text)
{
    const QString translated = QCoreApplication::translate("VariableSelectDialog", text.c_str());
    // Untranslated texts keep their Latin-1 reading.
    return translated == QString::fromUtf8(text.c_str()) ? QString::fromLatin1(text.c_str()) : translated;
}

// Closes the undo bracket on every way out, so that the host's undo state stays
// balanced even when a write is refused half-way.
class UndoStep
{
public:
    explicit UndoStep(int category) { OrrUtilUndoStateBegin(category); }
    ~UndoStep() { OrrUtilUndoStateEnd(false, true); }
    UndoStep(const UndoStep&) = delete;
    UndoStep& operator=(const UndoStep&) = delete;
};
} // namespace

VariableSelectDialogImpl::VariableSelectDialogImpl(QDialog& dialog, const toolbox::StringList& var1Path,
                                                   const toolbox::StringList& var2Path,
                                                   const toolbox::StringList& var3Path,
                                                   const std::string& instructions,
                                                   const std::vector<std::string>& labels,
                                                   const VariableSelectDialog::DefaultVarAssignmentInterface& assignment)
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
}

VariableSelectDialogImpl::~VariableSelectDialogImpl() = default;

void VariableSelectDialogImpl::setupPropertyBindings()
{
    bindings.reset(new VariableChoiceBindings(variablesModel, {ui.var1_comboBox, ui.var2_comboBox, ui.var3_comboBox},
                                              {var1, var2, var3}));
}

void VariableSelectDialogImpl::showTexts()
{
    const QString first = ascii(labels.at(0));
    const QString second = ascii(labels.at(1));
    const QString third = hasThirdVariable ? ascii(labels.at(2)) : QString();
    ui.instructions_label->setText(ascii(instructions));
    ui.var1_label->setText(first);
    ui.var2_label->setText(second);
    if (hasThirdVariable)
    {
        ui.var3_label->setText(third);
    }
    else
    {
        ui.var3_label->setVisible(false);
        ui.var3_comboBox->setVisible(false);
    }
}

bool VariableSelectDialogImpl::applyChoices(std::string& refusal)
{
    UndoStep step(UndoCategoryDialogStyle);
    try
    {
        if (hasStyleValues)
        {
            var1->apply();
            var2->apply();
        }
        if (hasThirdVariable)
            var3->apply();
        if (postAssignmentAction)
            postAssignmentAction();
        return true;
    }
    catch (const InvalidPropertyValueException& e)
    {
        refusal = e.what();
    }
    catch (const std::exception& e)
    {
        refusal = e.what();
    }
    return false;
}

} // namespace prompt
} // namespace dialogs
} // namespace orrery
