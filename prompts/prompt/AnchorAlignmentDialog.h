#pragma once
#include "prompts/PromptsExport.h"
#include <memory>
#include "framework/QtDialogAbstract.h"
#include "platform/kernel/OrrTypes.h"
#include "framework/SingleInstanceDialog.h"

class Ui_AnchorAlignment;

namespace orrery {
namespace dialogs {
namespace prompt {

/// Picks one of the nine anchor points of a box. Cancel falls back to the
/// alignment the caller passed most recently.
class ORRERY_PROMPTS_EXPORT AnchorAlignmentDialog : public common::QtDialogAbstract,
                                                    public virtual common::DialogInterface,
                                                    public SingleInstanceDialog<AnchorAlignmentDialog>
{
    Q_OBJECT
public:
    /// Later calls refresh only the alignment that Cancel restores: a live dialog
    /// keeps its buttons and answer (see SingleInstanceDialog).
    static AnchorAlignmentDialog* getInstance(AnchorAlignment_e initial, QWidget& parent);

    /// Builds the dialog directly, over \a parent, with \a initial checked; a host uses
    /// getInstance().
    AnchorAlignmentDialog(AnchorAlignment_e initial, QWidget& parent);
    ~AnchorAlignmentDialog() override;

    /// Shows the alignment in the buttons without changing the answer; values
    /// outside the table check the top left button.
    void setSelectedAlignmentButton(AnchorAlignment_e alignment);
    /// The alignment checked last; after Cancel, the one the caller passed.
    AnchorAlignment_e selectedAlignment() const { return m_selectedAlignment; }

public Q_SLOTS:
    /// Restores the alignment the caller passed, then closes.
    void reject() override;

protected:
    /// The layout's texts in the user's language again.
    void retranslate() override;

private Q_SLOTS:
    /// Connected by object name, one per button. The button losing its check
    /// reports first, so the last write is always the newly checked button; the
    /// flag can be ignored.
    void on_anchorAlignment_TopLeft_RadioButton_toggled(bool) { m_selectedAlignment = AnchorAlignment_TopLeft; }
    void on_anchorAlignment_TopCenter_RadioButton_toggled(bool) { m_selectedAlignment = AnchorAlignment_TopCenter; }
    void on_anchorAlignment_TopRight_RadioButton_toggled(bool) { m_selectedAlignment = AnchorAlignment_TopRight; }
    void on_anchorAlignment_MiddleLeft_RadioButton_toggled(bool) { m_selectedAlignment = AnchorAlignment_MiddleLeft; }
    void on_anchorAlignment_MiddleCenter_RadioButton_toggled(bool)
    {
        m_selectedAlignment = AnchorAlignment_MiddleCenter;
    }
    void on_anchorAlignment_MiddleRight_RadioButton_toggled(bool) { m_selectedAlignment = AnchorAlignment_MiddleRight; }
    void on_anchorAlignment_BottomLeft_RadioButton_toggled(bool) { m_selectedAlignment = AnchorAlignment_BottomLeft; }
    void on_anchorAlignment_BottomCenter_RadioButton_toggled(bool)
    {
        m_selectedAlignment = AnchorAlignment_BottomCenter;
    }
    void on_anchorAlignment_BottomRight_RadioButton_toggled(bool) { m_selectedAlignment = AnchorAlignment_BottomRight; }

private:
    std::unique_ptr<Ui_AnchorAlignment> m_ui;
    AnchorAlignment_e m_selectedAlignment;
    AnchorAlignment_e m_initialAlignment;
};

} // namespace prompt
} // namespace dialogs
} // namespace orrery
