#include "prompts/prompt/AnchorAlignmentDialog.h"

#include <iterator>
#include <vector>
#include <QSignalBlocker>
#include "framework/LaunchHelpAction.h"
#include "ui_AnchorAlignment.h"

namespace orrery {
namespace dialogs {
namespace prompt {

AnchorAlignmentDialog* AnchorAlignmentDialog::getInstance(AnchorAlignment_e initial, QWidget& parent)
{
    if (AnchorAlignmentDialog* live = liveInstance()) {
        live->m_initialAlignment = initial;
        return live;
    }
    return obtain(initial, parent);
}

AnchorAlignmentDialog::AnchorAlignmentDialog(AnchorAlignment_e initial, QWidget& parent)
    : QtDialogAbstract(parent, RelevancePtr()), m_selectedAlignment(initial), m_initialAlignment(initial)
{
    setHelpAction(new common::LaunchHelpAction("anchor_alignment.html", *this));
    m_ui.reset(new Ui_AnchorAlignment());
    m_ui->setupUi(this);
    m_selectedAlignment = m_initialAlignment;
    setSelectedAlignmentButton(m_selectedAlignment);
}

AnchorAlignmentDialog::~AnchorAlignmentDialog() = default;

void AnchorAlignmentDialog::setSelectedAlignmentButton(AnchorAlignment_e alignment)
{
    QRadioButton* const buttons[] = {
        m_ui->anchorAlignment_TopLeft_RadioButton,      m_ui->anchorAlignment_TopCenter_RadioButton,
        m_ui->anchorAlignment_TopRight_RadioButton,     m_ui->anchorAlignment_MiddleLeft_RadioButton,
        m_ui->anchorAlignment_MiddleCenter_RadioButton, m_ui->anchorAlignment_MiddleRight_RadioButton,
        m_ui->anchorAlignment_BottomLeft_RadioButton,   m_ui->anchorAlignment_BottomCenter_RadioButton,
        m_ui->anchorAlignment_BottomRight_RadioButton};
    // Only the display changes: the answer keeps whatever the caller gave,
    // even a value that no button stands for.
    std::vector<QSignalBlocker> blockers;
    blockers.reserve(std::size(buttons));
    for (QRadioButton* button : buttons)
        blockers.emplace_back(button);
    const bool known = alignment >= AnchorAlignment_TopCenter && alignment <= AnchorAlignment_BottomRight;
    buttons[known ? alignment : AnchorAlignment_TopLeft]->setChecked(true);
}

void AnchorAlignmentDialog::reject()
{
    m_selectedAlignment = m_initialAlignment;
    QtDialogAbstract::reject();
}

void AnchorAlignmentDialog::retranslate()
{
    m_ui->retranslateUi(this);
}

} // namespace prompt
} // namespace dialogs
} // namespace orrery
