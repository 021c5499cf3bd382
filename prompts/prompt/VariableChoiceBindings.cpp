#include "prompts/prompt/VariableChoiceBindings.h"

#include <QComboBox>
#include "core/property/InvalidPropertyValueException.h"
#include "core/propertybindings/ComboBoxPropertyBinding.h"

namespace orrery {
namespace dialogs {
namespace prompt {

namespace pb = sdk::ui::dialogs::propertybindings;

namespace {
// Long variable lists must not be measured row by row to size the box; its
// width comes from the layout.
const int ComboMinimumContentsLength = 12;
} // namespace

VariableChoiceBindings::VariableChoiceBindings(const ModelPtr& variables, QComboBox* const (&combos)[3],
                                               const PropertyPtr (&properties)[3])
    : m_variables(variables)
{
    for (int i = 0; i < 3; ++i) {
        m_properties[i] = properties[i];
        combos[i]->setSizeAdjustPolicy(QComboBox::AdjustToMinimumContentsLengthWithIcon);
        combos[i]->setMinimumContentsLength(ComboMinimumContentsLength);
        m_bindings.push_back(new pb::ComboBoxPropertyBinding<int>(*combos[i], properties[i], variables,
                                                                  pb::BindingInterface::ModelUpdate_Immediate));
    }
    variables->connectToEveryChange([this] { keepChoicesListed(); }, m_connections);
    keepChoicesListed();
}

VariableChoiceBindings::~VariableChoiceBindings() = default;

void VariableChoiceBindings::keepChoicesListed()
{
    const int shown = m_variables->size() > 0 ? m_variables->get(0) : 0;
    for (const PropertyPtr& property : m_properties) {
        if (m_variables->indexOf(property->getValue()) >= 0)
            continue;
        try {
            property->setValue(shown);
        } catch (const InvalidPropertyValueException&) {
            // A caller's property that refuses the replacement keeps its value;
            // OK then writes what the user last chose.
        }
    }
}

} // namespace prompt
} // namespace dialogs
} // namespace orrery
