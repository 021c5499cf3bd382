#include "prompts/prompt/EnterASCIICharacterDialog.h"

#include <boost/ptr_container/ptr_vector.hpp>
#include "framework/LaunchHelpAction.h"
#include "prompts/prompt/EnterASCIICharacterPropertiesManager.h"
#include "core/propertybindings/RadioButtonPropertyBinding.h"
#include "core/propertybindings/TextFieldPropertyBinding.h"
#include "ui_EnterASCIICharacter.h"

namespace orrery {
namespace dialogs {
namespace prompt {

namespace pb = sdk::ui::dialogs::propertybindings;

namespace {
// No override: the plot's base font applies.
const Font_e BaseFont = Font_Invalid;
} // namespace

struct EnterASCIICharacterDialog::Impl
{
    Impl(QDialog& dialog, std::string const& initialChar, Font_e font) : manager(initialChar, font)
    {
        ui.setupUi(&dialog);
        const std::pair<QRadioButton*, Font_e> fontButtons[] = {{ui.useBaseFont_RadioButton, BaseFont},
                                                                {ui.useGreekFont_RadioButton, Font_Greek},
                                                                {ui.useMathFont_RadioButton, Font_Math},
                                                                {ui.useUserDefFont_RadioButton, Font_UserDefined}};
        for (const auto& [button, value] : fontButtons)
            bindings.push_back(new pb::RadioButtonPropertyBinding<Font_e>(button, manager.typeFaceOverride(), value));
        bindings.push_back(
            new pb::TextFieldPropertyBinding<std::string>(ui.selectedCharacter_lineEdit, manager.selectedChar()));
    }

    Ui_EnterASCIICharacter ui;
    EnterASCIICharacterPropertiesManager manager;
    boost::ptr_vector<pb::BindingInterface> bindings;
};

EnterASCIICharacterDialog* EnterASCIICharacterDialog::getInstance(QWidget& parent, std::string initialChar,
                                                                  bool useBaseFont, Font_e font)
{
    return obtain(parent, initialChar, useBaseFont ? BaseFont : font);
}

EnterASCIICharacterDialog::EnterASCIICharacterDialog(QWidget& parent, std::string initialChar, Font_e font)
    : QtDialogAbstract(parent, relevance())
{
    setHelpAction(new common::LaunchHelpAction("enter_ascii_character.html", *this));
    m_impl.reset(new Impl(*this, initialChar, font));
}

EnterASCIICharacterDialog::~EnterASCIICharacterDialog() = default;

std::string EnterASCIICharacterDialog::selectedChar() const
{
    return m_impl->manager.selectedChar()->getValue();
}

bool EnterASCIICharacterDialog::useBaseFont() const
{
    return typeFaceOverride() == BaseFont;
}

Font_e EnterASCIICharacterDialog::typeFaceOverride() const
{
    return m_impl->manager.typeFaceOverride()->getValue();
}

boost::shared_ptr<const sdk::ui::propertymanager::RelevanceInterface> EnterASCIICharacterDialog::relevance()
{
    return EnterASCIICharacterPropertiesManager::relevance();
}

void EnterASCIICharacterDialog::retranslate()
{
    m_impl->ui.retranslateUi(this);
}

} // namespace prompt
} // namespace dialogs
} // namespace orrery
