#include "prompts/prompt/EnterTextStringDialog.h"

#include <QPushButton>
#include "framework/LaunchHelpAction.h"
#include "ui_EnterTextString.h"

namespace orrery {
namespace dialogs {
namespace prompt {

// No properties here: the answer is the field's text.
struct EnterTextStringDialog::Impl
{
    Ui_EnterTextString ui;
    // The caller's texts, set again after a language change; empty: the layout's.
    QString prompt, okText;
};

EnterTextStringDialog::EnterTextStringDialog(QWidget& parent, QString const& promptText, QString const& initialText,
                                             QString const& helpPage, bool)
    : QtDialogAbstract(parent, RelevancePtr()), m_impl(new Impl)
{
    m_impl->ui.setupUi(this);
    m_impl->prompt = promptText;
    if (!promptText.isEmpty())
        m_impl->ui.EnterTextString_Label->setText(promptText);
    m_impl->ui.EnterTextString_lineEdit->setText(initialText);
    m_impl->ui.EnterTextString_lineEdit->selectAll();
    adjustSize();
    if (!helpPage.isEmpty())
        setHelpAction(new common::LaunchHelpAction(helpPage.toStdString(), *this));
    // Connected only now, so that the initial text leaves OK enabled even when empty.
    connect(m_impl->ui.EnterTextString_lineEdit, &QLineEdit::textChanged, this, &EnterTextStringDialog::textChanged);
}

EnterTextStringDialog::~EnterTextStringDialog() = default;

QString EnterTextStringDialog::text() const
{
    return m_impl->ui.EnterTextString_lineEdit->text();
}

void EnterTextStringDialog::setOkButtonText(std::string const& text)
{
    m_impl->okText = QString::fromUtf8(text.c_str());
    m_impl->ui.EnterTextString_buttonBox->button(QDialogButtonBox::Ok)->setText(m_impl->okText);
}

void EnterTextStringDialog::retranslate()
{
    m_impl->ui.retranslateUi(this);
    if (!m_impl->prompt.isEmpty())
        m_impl->ui.EnterTextString_Label->setText(m_impl->prompt);
    if (!m_impl->okText.isEmpty())
        m_impl->ui.EnterTextString_buttonBox->button(QDialogButtonBox::Ok)->setText(m_impl->okText);
}

void EnterTextStringDialog::textChanged(QString const&)
{
    m_impl->ui.EnterTextString_buttonBox->button(QDialogButtonBox::Ok)
        ->setEnabled(!m_impl->ui.EnterTextString_lineEdit->text().isEmpty());
}

} // namespace prompt
} // namespace dialogs
} // namespace orrery
