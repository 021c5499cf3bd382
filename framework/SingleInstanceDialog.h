#pragma once
#include "framework/FrameworkExport.h"
#include <utility>

namespace orrery {
namespace dialogs {
namespace prompt {

/// The one live dialog of class D (a CRTP base). The instance is registered only
/// once its constructor has returned, and forgotten when it is destroyed or
/// dropped, so a failed construction leaves nothing behind and a destroyed or
/// dropped dialog is rebuilt. Exported, so that every library and program shares
/// one live dialog per class.
///
/// What a later getInstance refreshes, the same rule for every dialog: the first
/// call builds the dialog from its arguments; while it lives, a later call returns
/// it as the user left it and applies only the arguments that describe the
/// occasion of this call, never those that make up the question. The occasion is,
/// per dialog: the zone current now (ZoneSelectDialog), the loaders and file
/// extensions of this file (ChooseLoaderDialog), the window to stay over and
/// whether colouring by variable is possible (ColorChooserDialog), and the
/// alignment Cancel returns to (AnchorAlignmentDialog); every other dialog has
/// none. Titles, captions, instructions, initial values, limits, style paths and
/// help pages stay those of the first call. To ask another question, drop() the
/// dialog (or delete it) first: the next getInstance builds it afresh.
template <typename D>
class ORRERY_FRAMEWORK_EXPORT SingleInstanceDialog
{
public:
    /// Null while there is no live dialog; a dropped dialog is not live.
    static D* liveInstance()
    {
        if (m_dialogInstance && m_dialogInstance->isDropped()) {
            // It only waits for its deletion, and must not be handed out again.
            m_registered = nullptr;
            m_dialogInstance = nullptr;
        }
        return m_dialogInstance;
    }

protected:
    SingleInstanceDialog() = default;
    SingleInstanceDialog(const SingleInstanceDialog&) = delete;
    SingleInstanceDialog& operator=(const SingleInstanceDialog&) = delete;
    ~SingleInstanceDialog()
    {
        // A dialog constructed directly, beside the live one, must not unregister it.
        if (m_registered == this) {
            m_registered = nullptr;
            m_dialogInstance = nullptr;
        }
    }

    /// The live dialog, constructed from args when there is none.
    template <typename... Args>
    static D* obtain(Args&&... args)
    {
        if (!liveInstance()) {
            D* dialog = new D(std::forward<Args>(args)...);
            m_registered = dialog;
            m_dialogInstance = dialog;
        }
        return m_dialogInstance;
    }

private:
    static inline D* m_dialogInstance = nullptr;
    static inline SingleInstanceDialog* m_registered = nullptr;
};

} // namespace prompt
} // namespace dialogs
} // namespace orrery
