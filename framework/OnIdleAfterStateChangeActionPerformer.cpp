#include "framework/OnIdleAfterStateChangeActionPerformer.h"

#include "platform/sdk/StateChangeEventObservable.h"

namespace orrery::sdk::ui::dialogs::propertybindings {

OnIdleAfterStateChangeActionPerformer::OnIdleAfterStateChangeActionPerformer(const Predicate& predicate,
                                                                             const boost::function<void()>& action)
    : m_predicate(predicate), m_performer(action)
{
    m_stateChanges = integration::StateChangeEventObservable::getInstance().signal().connect(
        [this](const integration::StateChangeEventInterface& event) { stateChanged(event); });
}

OnIdleAfterStateChangeActionPerformer::~OnIdleAfterStateChangeActionPerformer() = default;

void OnIdleAfterStateChangeActionPerformer::stateChanged(const integration::StateChangeEventInterface& event)
{
    if (m_predicate(event))
        m_performer.enableNotification();
}

} // namespace orrery::sdk::ui::dialogs::propertybindings
