#pragma once
#include "prompts/PromptsExport.h"
#include <memory>
#include "framework/QtDialogAbstract.h"
#include "framework/SingleInstanceDialog.h"

namespace orrery {
namespace dialogs {
namespace prompt {

/// Edits the RGB colouring of a field plot: the RGB mode, the channel variables
/// and the value range mapped to the intensities. Modeless: every edit reaches
/// the style at once, and the dialog follows changes made elsewhere.
class ORRERY_PROMPTS_EXPORT RGBColorOptsDialog : public common::QtDialogAbstract,
                                                 public virtual common::DialogInterface,
                                                 public SingleInstanceDialog<RGBColorOptsDialog>
{
    Q_OBJECT
public:
    /// The parent counts only for the first call, which builds the dialog. Later
    /// calls refresh nothing (see SingleInstanceDialog); the dialog shows the
    /// style as it is anyway.
    static RGBColorOptsDialog* getInstance(QWidget& parent);
    /// Relevant while the current frame shows a field plot.
    static boost::shared_ptr<const sdk::ui::propertymanager::RelevanceInterface> relevance();

    /// Builds the dialog directly, over \a parent; a host uses getInstance().
    explicit RGBColorOptsDialog(QWidget& parent);
    ~RGBColorOptsDialog() override;

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
