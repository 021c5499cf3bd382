#include "framework/StateChangeDependentRelevance.h"

#include "platform/sdk/StateChangeEventObservable.h"

namespace orrery::sdk::ui::propertymanager {

StateChangeDependentRelevance::StateChangeDependentRelevance(const boost::function<bool()>& predicate)
    : m_predicate(predicate)
{
    m_stateChanges = integration::StateChangeEventObservable::getInstance().signal().connect(
        [this](const integration::StateChangeEventInterface&) { emitRelevanceChanged(); });
}

StateChangeDependentRelevance::~StateChangeDependentRelevance() = default;

bool StateChangeDependentRelevance::isRelevant() const
{
    return m_predicate();
}

} // namespace orrery::sdk::ui::propertymanager
