#pragma once
#include "framework/FrameworkExport.h"
#include <functional>
#include <memory>
#include <QDialog>
#include <boost/shared_ptr.hpp>
#include "framework/DialogInterface.h"

class QAction;

namespace orrery {
// Declared only: a host that includes a dialog does not parse the signals behind a
// relevance, so that a dialog's header costs about what <QDialog> does.
namespace sdk::ui::propertymanager {
class RelevanceInterface;
}

namespace dialogs {
namespace common {

/// Base of the host's dialogs. While its relevance does not hold, the dialog's
/// content and its accepting buttons (OK, Yes, Apply) are disabled, but Cancel,
/// Close, Help and Escape keep working, so the user can always get out. It owns
/// the help action (F1 and a Help button), and makes the OK and Cancel buttons
/// of layouts that connect nothing end the dialog.
class ORRERY_FRAMEWORK_EXPORT QtDialogAbstract : public QDialog, public virtual DialogInterface
{
    Q_OBJECT
public:
    /// A relevance, shared; null means always relevant.
    typedef boost::shared_ptr<const sdk::ui::propertymanager::RelevanceInterface> RelevancePtr;

    /// A child window of \a parent, which owns it. An empty relevance makes the dialog
    /// relevant at all times.
    QtDialogAbstract(QWidget& parent, RelevancePtr relevance);
    ~QtDialogAbstract() override;

    /// Modal dialogs run until closed, others are shown and return. Does nothing
    /// (the result stays Rejected) while the dialog is not relevant.
    void launch() override;
    /// Closes the dialog as rejected and schedules its destruction. From then on the
    /// dialog is no single instance's any more: the next getInstance builds a new one.
    void drop() override;
    /// Whether drop() was called: the dialog only waits for its destruction.
    bool isDropped() const;

    /// Shows the dialog and returns at once, as QDialog::open() does for a modal dialog
    /// (window-modal) and show() for a modeless one; \a whenFinished is called once,
    /// with the result, when this run ends. A connection to finished() made by the
    /// caller stays for later runs of a reused single-instance dialog and fires again;
    /// this call does not. While the dialog is not relevant nothing is shown and
    /// \a whenFinished is called at once with Rejected. An exception it throws is
    /// stopped and told once, as a host fault.
    void openWith(std::function<void(int result)> whenFinished);

    /// Whether the dialog's relevance holds now.
    bool isRelevant() const;
    /// Takes ownership of the action; it is triggered by F1 and by a Help button.
    void setHelpAction(QAction* action);
    /// The help action, or null when the dialog has none.
    QAction* helpAction() const;

protected:
    /// Refuses to accept while the dialog is not relevant, and closes its help.
    void done(int result) override;
    /// Connects the layout's button boxes and applies the relevance before the dialog appears.
    void showEvent(QShowEvent* event) override;
    /// On a change of the user's language (a translator installed or removed), calls
    /// retranslate() once every widget of the dialog has heard of the change.
    void changeEvent(QEvent* event) override;
    /// Puts the dialog's texts into the user's language again, so that a dialog built
    /// before the host installed its translators follows them: a dialog runs its
    /// layout's retranslateUi and sets again the texts it sets in code (a caller's
    /// texts stay as given). The frame's own does nothing.
    virtual void retranslate();

private:
    void applyRelevance();
    void wireButtonBoxes();

    struct Impl;
    std::unique_ptr<Impl> m_impl;
};

} // namespace common
} // namespace dialogs
} // namespace orrery
