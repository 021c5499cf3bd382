#include "core/propertybindings/OnIdleAfterPropertyChangeActionPerformer.h"

namespace orrery::sdk::ui::dialogs::propertybindings {

void OnIdleAfterPropertyChangeActionPerformer::valueChanged()
{
    if (m_enabled)
        m_performer.enableNotification();
}

} // namespace orrery::sdk::ui::dialogs::propertybindings
