#pragma once
#include "core/CoreExport.h"
#include <boost/function.hpp>

#include "platform/common/OnIdleActionPerformerSingleShot.h"
#include "platform/common/SignalConnectionCollection.h"
#include "core/property/PropertyAbstract.h"

namespace orrery::sdk::ui::dialogs::propertybindings {

/// Runs an action once on idle after one or more changes of a property.
class ORRERY_CORE_EXPORT OnIdleAfterPropertyChangeActionPerformer
{
public:
    /// Runs \a action on idle after changes of \a property, which must outlive this object.
    template <typename T>
    OnIdleAfterPropertyChangeActionPerformer(const PropertyAbstract<T>& property, const boost::function<void()>& action)
        : m_performer(action)
    {
        m_connections.add(property.connectToValueChangedSignal([this](const T&) { valueChanged(); }));
    }

    /// Schedules the action, unless disabled; the property's changes call it.
    void valueChanged();
    /// Off: changes are ignored (used while the owner writes the property itself).
    void enable(bool enabled) { m_enabled = enabled; }
    /// Whether changes schedule the action.
    bool isEnabled() const { return m_enabled; }

private:
    common::OnIdleActionPerformerSingleShot m_performer;
    bool m_enabled = true;
    SignalConnectionCollection m_connections;
};

} // namespace orrery::sdk::ui::dialogs::propertybindings
