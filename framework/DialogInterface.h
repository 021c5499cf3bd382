#pragma once
#include "framework/FrameworkExport.h"

namespace orrery {
namespace dialogs {
namespace common {

/// What the host calls on any of its dialogs. Dialogs inherit it virtually so
/// that a dialog class and its frame share one copy.
class ORRERY_FRAMEWORK_EXPORT DialogInterface
{
public:
    virtual ~DialogInterface() = default;
    /// Shows the dialog; a modal dialog returns once it has been closed.
    virtual void launch() = 0;
    /// Takes the dialog down and lets it be destroyed; the next request builds a new one.
    virtual void drop() = 0;
};

} // namespace common
} // namespace dialogs
} // namespace orrery
