#pragma once
#include <memory>
#include <type_traits>
#include <boost/make_shared.hpp>
#include <boost/ptr_container/ptr_vector.hpp>
#include <boost/shared_ptr.hpp>
#include <QDialog>
#include "core/propertybindings/BindingInterface.h"
#include "framework/RelevanceApplier.h"
#include "platform/toolbox/StringList.h"

namespace orrery {
namespace dialogs {
namespace prompt {

/// What a style dialog's Impl is made of: its layout, the generated style set it
/// edits, the properties manager on that set, and the bindings and relevance
/// appliers that tie them to the widgets (declared last, so destroyed first).
/// The set takes the dialog's modality: a modeless dialog writes every edit to
/// the style at once and so follows changes made elsewhere.
template <typename Ui, typename Generated, typename Manager>
struct StyleSetDialogParts
{
    /// Sets up the layout on \a dialog and builds the set, modal when the dialog is, and
    /// its manager.
    explicit StyleSetDialogParts(QDialog& dialog)
    {
        ui.setupUi(&dialog);
        generated = boost::make_shared<Generated>(dialog.windowModality() != Qt::NonModal, toolbox::StringList());
        // Some managers share the set, others only look at it.
        if constexpr (std::is_constructible_v<Manager, const boost::shared_ptr<Generated>&>)
            manager.reset(new Manager(generated));
        else
            manager.reset(new Manager(*generated));
    }

    /// The dialog's layout.
    Ui ui;
    /// The style properties the dialog edits.
    boost::shared_ptr<Generated> generated;
    /// The properties manager on the set.
    std::unique_ptr<Manager> manager;
    /// The bindings of the dialog's widgets, owned here.
    boost::ptr_vector<sdk::ui::dialogs::propertybindings::BindingInterface> bindings;
    /// The relevance appliers of the dialog's widgets, owned here.
    boost::ptr_vector<sdk::ui::dialogs::propertybindings::RelevanceApplier> appliers;
};

} // namespace prompt
} // namespace dialogs
} // namespace orrery
