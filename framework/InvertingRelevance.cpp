#include "framework/InvertingRelevance.h"
#include "platform/common/RequireArgument.h"

namespace orrery::sdk::ui::propertymanager {

InvertingRelevance::InvertingRelevance(const boost::shared_ptr<const RelevanceInterface>& inverted)
    : m_inverted(requireNonNull(inverted, "The relevance to invert"))
{
    m_relay = inverted->connectToRelevanceChangedSignal([this] { emitRelevanceChanged(); });
}

InvertingRelevance::~InvertingRelevance() = default;

bool InvertingRelevance::isRelevant() const
{
    return !m_inverted->isRelevant();
}

} // namespace orrery::sdk::ui::propertymanager
