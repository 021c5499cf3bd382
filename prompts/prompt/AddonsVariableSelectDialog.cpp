#include "prompts/prompt/AddonsVariableSelectDialog.h"

#include <stdexcept>
#include <boost/make_shared.hpp>
#include "framework/DataSetExistsRelevance.h"
#include "framework/LaunchHelpAction.h"
#include "framework/SharedRelevance.h"
#include "prompts/prompt/VariableChoiceBindings.h"
#include "ui_VariableSelectDialog.h"

namespace orrery {
namespace dialogs {
namespace prompt {

class AddonsVariableSelectDialog::Impl
{
public:
    Impl(AddonsVariableSelectDialog& dialog, const VarPropertyPtr (&vars)[3], const std::string& instructions,
         const std::vector<std::string>& labels)
        : instructions(instructions), labels(labels),
          variablesModel(boost::make_shared<VariableChoiceBindings::ModelPtr::element_type>()), vars{vars[0], vars[1],
                                                                                                     vars[2]}
    {
        ui.setupUi(&dialog);
        setupDialog(dialog);
        setupPropertyBindings();
    }

    void setupDialog(AddonsVariableSelectDialog&)
    {
        ui.instructions_label->setText(QString::fromUtf8(instructions.c_str()));
        ui.var1_label->setText(QString::fromUtf8(labels.at(0).c_str()));
        QLabel* const rowLabels[] = {ui.var2_label, ui.var3_label};
        QComboBox* const rowCombos[] = {ui.var2_comboBox, ui.var3_comboBox};
        for (size_t row = 1; row < 3; ++row) {
            if (labels.size() > row) {
                rowLabels[row - 1]->setText(QString::fromUtf8(labels[row].c_str()));
            } else {
                rowLabels[row - 1]->setVisible(false);
                rowCombos[row - 1]->setVisible(false);
            }
        }
    }

    void setupPropertyBindings()
    {
        bindings.reset(
            new VariableChoiceBindings(variablesModel, {ui.var1_comboBox, ui.var2_comboBox, ui.var3_comboBox}, vars));
    }

    std::string instructions;
    std::vector<std::string> labels;
    VariableChoiceBindings::ModelPtr variablesModel;
    Ui_VariableSelectDialog ui;
    VarPropertyPtr vars[3];
    std::unique_ptr<VariableChoiceBindings> bindings;
};

namespace {
std::vector<std::string> presentLabels(std::initializer_list<const char*> labels)
{
    std::vector<std::string> present;
    for (const char* label : labels)
        if (label)
            present.push_back(label);
    return present;
}
} // namespace

AddonsVariableSelectDialog* AddonsVariableSelectDialog::getInstance(QWidget& parent, const char* instructions,
                                                                    const char* label1, const char* label2,
                                                                    const char* label3, VarPropertyPtr var1,
                                                                    VarPropertyPtr var2, VarPropertyPtr var3)
{
    if (AddonsVariableSelectDialog* live = liveInstance())
        return live;
    if (!instructions)
        throw std::invalid_argument("The add-on variable dialog needs instructions.");
    return obtain(parent, var1, var2, var3, std::string(instructions), presentLabels({label1, label2, label3}));
}

AddonsVariableSelectDialog::AddonsVariableSelectDialog(QWidget& parent, VarPropertyPtr var1, VarPropertyPtr var2,
                                                       VarPropertyPtr var3, const std::string& instructions,
                                                       const std::vector<std::string>& labels)
    : QtDialogAbstract(parent, relevance())
{
    if (!var1 || !var2 || !var3)
        throw std::invalid_argument("The add-on variable dialog needs three properties.");
    m_impl.reset(new Impl(*this, {var1, var2, var3}, instructions, labels));
    setHelpAction(new common::LaunchHelpAction("select_variable.html", *this));
}

AddonsVariableSelectDialog::~AddonsVariableSelectDialog() = default;

void AddonsVariableSelectDialog::retranslate()
{
    m_impl->ui.retranslateUi(this);
    m_impl->setupDialog(*this);
}

boost::shared_ptr<const sdk::ui::propertymanager::RelevanceInterface> AddonsVariableSelectDialog::relevance()
{
    return sharedRelevance<AddonsVariableSelectDialog, sdk::ui::propertymanager::DataSetExistsRelevance>();
}

} // namespace prompt
} // namespace dialogs
} // namespace orrery
