#include "framework/RelevanceApplier.h"
#include "platform/common/RequireArgument.h"

namespace orrery::sdk::ui::dialogs::propertybindings {

RelevanceApplier::RelevanceApplier(const boost::shared_ptr<const propertymanager::RelevanceInterface>& relevance,
                                   const std::vector<QWidget*>& widgets, Manifestation_e manifestation,
                                   BindingInterface::WidgetUpdateMode_e mode)
    : m_relevance(requireNonNull(relevance, "The relevance to apply")), m_widgets(widgets.begin(), widgets.end()),
      m_manifestation(manifestation), m_mode(mode), m_idleApplier([this] { apply(); })
{
    m_connection = relevance->connectToRelevanceChangedSignal([this] { relevanceChanged(); });
    apply();
}

RelevanceApplier::~RelevanceApplier() = default;

void RelevanceApplier::apply()
{
    const bool relevant = m_relevance->isRelevant();
    for (const QPointer<QWidget>& widget : m_widgets) {
        if (!widget)
            continue;
        if (m_manifestation == Manifestation_Visibility)
            widget->setVisible(relevant);
        else
            widget->setEnabled(relevant);
    }
}

void RelevanceApplier::relevanceChanged()
{
    if (m_mode == BindingInterface::WidgetUpdateMode_Immediate)
        apply();
    else
        m_idleApplier.enableNotification();
}

} // namespace orrery::sdk::ui::dialogs::propertybindings
