#pragma once
#include "framework/FrameworkExport.h"
#include <vector>
#include <boost/shared_ptr.hpp>
#include <boost/signals2/connection.hpp>
#include <QPointer>
#include <QWidget>

#include "platform/common/OnIdleActionPerformerSingleShot.h"
#include "core/propertybindings/BindingInterface.h"
#include "core/propertymanager/RelevanceInterface.h"

namespace orrery::sdk::ui::dialogs::propertybindings {

/// Shows a relevance on widgets: enables and disables them, or shows and hides
/// them. Applied at construction and again after each relevance change, at
/// once or once on idle.
class ORRERY_FRAMEWORK_EXPORT RelevanceApplier
{
public:
    /// How relevance shows on the widgets.
    enum Manifestation_e
    {
        Manifestation_Sensitivity = 0, ///< enabled while relevant
        Manifestation_Visibility = 1   ///< visible while relevant
    };

    /// Applies \a relevance (kept alive here) to \a widgets now and after each change; a
    /// widget destroyed meanwhile is skipped.
    RelevanceApplier(const boost::shared_ptr<const propertymanager::RelevanceInterface>& relevance,
                     const std::vector<QWidget*>& widgets, Manifestation_e manifestation = Manifestation_Sensitivity,
                     BindingInterface::WidgetUpdateMode_e mode = BindingInterface::WidgetUpdateMode_Immediate);
    RelevanceApplier(const RelevanceApplier&) = delete;
    RelevanceApplier& operator=(const RelevanceApplier&) = delete;
    ~RelevanceApplier();

    /// Enables or shows the widgets when relevant, disables or hides them otherwise.
    void apply();

private:
    void relevanceChanged();

    boost::shared_ptr<const propertymanager::RelevanceInterface> m_relevance;
    std::vector<QPointer<QWidget>> m_widgets;
    const Manifestation_e m_manifestation;
    const BindingInterface::WidgetUpdateMode_e m_mode;
    common::OnIdleActionPerformerSingleShot m_idleApplier;
    boost::signals2::scoped_connection m_connection;
};

} // namespace orrery::sdk::ui::dialogs::propertybindings
