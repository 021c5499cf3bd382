#pragma once
#include "prompts/PromptsExport.h"
#include <boost/scoped_ptr.hpp>
#include "framework/QtDialogAbstract.h"
#include "framework/SingleInstanceDialog.h"

namespace orrery {
namespace dialogs {
namespace prompt {

/// Edits how scatter symbols are sized and which font their letters use; in a
/// line plot it edits the symbol font only ("Symbol Font"). Edits reach the
/// style at once; a plot type change re-titles and retargets it.
class ORRERY_PROMPTS_EXPORT ScatterSizeFontDialog : public common::QtDialogAbstract,
                                                    public virtual common::DialogInterface,
                                                    public SingleInstanceDialog<ScatterSizeFontDialog>
{
    Q_OBJECT
public:
    /// The parent counts only for the first call, which builds the dialog. Later
    /// calls refresh nothing (see SingleInstanceDialog); the dialog shows the
    /// style as it is anyway.
    static ScatterSizeFontDialog* getInstance(QWidget& parent);
    /// Relevant while the current frame shows a field plot or a line plot.
    static boost::shared_ptr<const sdk::ui::propertymanager::RelevanceInterface> relevance();

    /// Builds the dialog directly, over \a parent; a host uses getInstance().
    explicit ScatterSizeFontDialog(QWidget& parent);
    ~ScatterSizeFontDialog() override;

    /// Title and help page for the current plot type.
    void setDialogForPlotType();

protected:
    /// The layout's texts, the title for the plot type and the Recalculate button in the
    /// user's language again.
    void retranslate() override;

private:
    struct Impl;
    boost::scoped_ptr<Impl> m_impl;
};

} // namespace prompt
} // namespace dialogs
} // namespace orrery
