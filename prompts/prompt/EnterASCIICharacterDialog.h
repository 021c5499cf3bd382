#pragma once
#include "prompts/PromptsExport.h"
#include <memory>
#include <string>
#include "framework/QtDialogAbstract.h"
#include "platform/kernel/OrrTypes.h"
#include "framework/SingleInstanceDialog.h"

namespace orrery {
namespace dialogs {
namespace prompt {

/// Asks for one character to draw as a plot symbol, and its font: the base font
/// or the Greek, Math or user-defined symbol font.
class ORRERY_PROMPTS_EXPORT EnterASCIICharacterDialog : public common::QtDialogAbstract,
                                                        public virtual common::DialogInterface,
                                                        public SingleInstanceDialog<EnterASCIICharacterDialog>
{
    Q_OBJECT
public:
    /// The first call fixes the initial character and font. Later calls refresh
    /// nothing: a live dialog is returned as the user left it (see SingleInstanceDialog).
    static EnterASCIICharacterDialog* getInstance(QWidget& parent, std::string initialChar, bool useBaseFont,
                                                  Font_e font);

    /// Builds the dialog directly, over \a parent; a host uses getInstance().
    EnterASCIICharacterDialog(QWidget& parent, std::string initialChar, Font_e font);
    ~EnterASCIICharacterDialog() override;

    /// The character entered, never empty.
    std::string selectedChar() const;
    /// Derived from the font: 255 is the single encoding of the base font.
    bool useBaseFont() const;
    /// The font chosen for the character; 255 for the base font.
    Font_e typeFaceOverride() const;

    /// Relevant while a data set exists.
    static boost::shared_ptr<const sdk::ui::propertymanager::RelevanceInterface> relevance();

protected:
    /// The layout's texts in the user's language again.
    void retranslate() override;

private:
    struct Impl;
    std::unique_ptr<Impl> m_impl;
};

} // namespace prompt
} // namespace dialogs
} // namespace orrery
