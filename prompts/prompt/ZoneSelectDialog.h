#pragma once
#include "prompts/PromptsExport.h"
#include <memory>
#include "framework/QtDialogAbstract.h"
#include "framework/SingleInstanceDialog.h"

namespace orrery {
namespace dialogs {
namespace prompt {

/// Lets the user pick one zone of the current frame from a list; a double
/// click on a zone picks it and closes the dialog.
class ORRERY_PROMPTS_EXPORT ZoneSelectDialog : public common::QtDialogAbstract,
                                               public virtual common::DialogInterface,
                                               public SingleInstanceDialog<ZoneSelectDialog>
{
    Q_OBJECT
public:
    /// The live dialog (built on first use) showing zone as the current choice,
    /// scrolled to it. Every call, later ones too, refreshes the zone (see
    /// SingleInstanceDialog); only the parent of the first call counts. The row is
    /// taken to be zone - 1.
    static ZoneSelectDialog* getInstance(QWidget& parent, int zone);

    /// zone is not used: getInstance applies it.
    ZoneSelectDialog(QWidget& parent, int zone);
    ~ZoneSelectDialog() override;

    /// The chosen zone number; 0 when none is selected.
    int selectedZone();

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
