#include "prompts/prompt/EnterTextStringDialog.h"

#include <QCoreApplication>
#include <QDialogButtonBox>
#include <QGridLayout>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QSpacerItem>
#include "framework/LaunchHelpAction.h"

namespace orrery {
namespace dialogs {
namespace prompt {

// The layout is small enough to be built here rather than by a designer file.
struct EnterTextStringDialog::Layout
{
    QGridLayout* gridLayout = nullptr;
    QLabel* label = nullptr;
    QLineEdit* lineEdit = nullptr;
    QSpacerItem* spacer = nullptr;
    QDialogButtonBox* buttonBox = nullptr;

    void setupUi(QDialog& dialog)
    {
        if (dialog.objectName().isEmpty())
            dialog.setObjectName("EnterTextString");
        dialog.resize(278, 137);
        gridLayout = new QGridLayout(&dialog);
        gridLayout->setObjectName("_2");

        label = new QLabel(&dialog);
        label->setObjectName("EnterTextString_Label");
        label->setWordWrap(true);
        QSizePolicy labelPolicy(QSizePolicy::Preferred, QSizePolicy::Minimum);
        labelPolicy.setHeightForWidth(label->sizePolicy().hasHeightForWidth());
        label->setSizePolicy(labelPolicy);
        gridLayout->addWidget(label, 0, 0, 1, 2);

        lineEdit = new QLineEdit(&dialog);
        lineEdit->setObjectName("EnterTextString_lineEdit");
        QSizePolicy editPolicy(QSizePolicy::Expanding, QSizePolicy::Minimum);
        editPolicy.setHeightForWidth(lineEdit->sizePolicy().hasHeightForWidth());
        lineEdit->setSizePolicy(editPolicy);
        // Column 0 of this row stays empty on purpose.
        gridLayout->addWidget(lineEdit, 1, 1, 1, 1);

        spacer = new QSpacerItem(0, 0, QSizePolicy::Minimum, QSizePolicy::Expanding);
        gridLayout->addItem(spacer, 2, 0, 1, 2);

        buttonBox = new QDialogButtonBox(&dialog);
        buttonBox->setObjectName("EnterTextString_buttonBox");
        buttonBox->setStandardButtons(QDialogButtonBox::Ok | QDialogButtonBox::Cancel);
        gridLayout->addWidget(buttonBox, 3, 0, 1, 2);
        gridLayout->setRowStretch(2, 1);

        label->setBuddy(lineEdit);
        QWidget::setTabOrder(lineEdit, buttonBox);
        retranslateUi(dialog);
        QMetaObject::connectSlotsByName(&dialog);
    }

    void retranslateUi(QDialog& dialog)
    {
        dialog.setWindowTitle(QCoreApplication::translate("EnterTextString", "Prompt for text string"));
        label->setText(QCoreApplication::translate("EnterTextString", "&Enter your input string:"));
    }
};

EnterTextStringDialog::EnterTextStringDialog(QWidget& parent, QString const& promptText,
                                             QString const& initialText, QString const& helpPage, bool)
    : QtDialogAbstract(parent, RelevancePtr()), m_ui(new Layout)
{
    m_ui->setupUi(*this);
    if (!promptText.isEmpty())
        m_ui->label->setText(promptText);
    m_ui->lineEdit->setText(initialText);
    m_ui->lineEdit->selectAll();
    adjustSize();
    if (!helpPage.isEmpty())
        setHelpAction(new common::LaunchHelpAction(helpPage.toStdString(), *this));
    // Connected only now, so that the initial text leaves OK enabled even when empty.
    connect(m_ui->lineEdit, &QLineEdit::textChanged, this, &EnterTextStringDialog::textChanged);
}

EnterTextStringDialog::~EnterTextStringDialog() = default;

QString EnterTextStringDialog::text() const
{
    return m_ui->lineEdit->text();
}

void EnterTextStringDialog::setOkButtonText(std::string const& text)
{
    m_ui->buttonBox->button(QDialogButtonBox::Ok)->setText(QString::fromLatin1(text.c_str()));
}

void EnterTextStringDialog::textChanged(QString const&)
{
    m_ui->buttonBox->button(QDialogButtonBox::Ok)->setEnabled(!m_ui->lineEdit->text().isEmpty());
}

} // namespace prompt
} // namespace dialogs
} // namespace orrery
