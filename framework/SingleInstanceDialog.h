#pragma once
#include "framework/FrameworkExport.h"
#include <utility>

namespace orrery {
namespace dialogs {
namespace prompt {

/// The one live dialog of class D (a CRTP base). The instance is registered only
/// once its constructor has returned, and forgotten when it is destroyed, so a
/// failed construction leaves nothing behind and a destroyed dialog is rebuilt.
/// Exported, so that every library and program shares one live dialog per class.
template <typename D>
class ORRERY_FRAMEWORK_EXPORT SingleInstanceDialog
{
public:
    /// Null while there is no live dialog.
    static D* liveInstance() { return m_dialogInstance; }

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
        if (!m_dialogInstance) {
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
