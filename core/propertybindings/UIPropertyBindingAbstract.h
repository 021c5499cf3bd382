#pragma once
#include <boost/scoped_ptr.hpp>
#include <boost/shared_ptr.hpp>

#include "platform/common/OnIdleActionPerformerSingleShot.h"
#include "platform/common/SignalConnectionCollection.h"
#include "core/property/PropertyAbstract.h"
#include "core/propertybindings/PropertyBindingInterface.h"
#include "core/propertybindings/intern/PropertyWrite.h"
#include "core/propertybindings/intern/RejectedValueMessage.h"
#include "core/propertymanager/UIStylePropertyAbstract.h"

namespace orrery::sdk::ui::dialogs::propertybindings {

/// Common property side of a binding: hears the property (and, for a style
/// property, its relevance) and refreshes the widget at once or once on idle.
/// Writing the property is left to the concrete binding's widget handler.
template <typename T>
class UIPropertyBindingAbstract : public virtual PropertyBindingInterface
{
public:
    /// A style property, which also carries a visibility and a sensitivity.
    typedef propertymanager::UIStylePropertyAbstract<T> StyleProperty;

    /// Binds a plain property (not null), kept alive by the binding.
    UIPropertyBindingAbstract(const boost::shared_ptr<PropertyAbstract<T>>& property, WidgetUpdateMode_e mode)
        : m_mode(mode), m_styleProperty(nullptr), m_property(*requireNonNull(property, "The property of a binding")),
          m_propertyKeeper(property), m_valueUpdater([this] { updateWidget(); })
    {
        startListeningToProperty();
    }

    /// The properties manager owns a style property; it must outlive the binding.
    UIPropertyBindingAbstract(StyleProperty& property, WidgetUpdateMode_e mode)
        : m_mode(mode), m_styleProperty(&property), m_property(property), m_valueUpdater([this] { updateWidget(); })
    {
        startListeningToProperty();
    }

    UIPropertyBindingAbstract(const UIPropertyBindingAbstract&) = delete;
    UIPropertyBindingAbstract& operator=(const UIPropertyBindingAbstract&) = delete;

    /// Has the widget refreshed once on idle, whatever the update mode.
    virtual void updateValueOnIdle() { m_valueUpdater.enableNotification(); }

    /// When property changes reach the widget.
    WidgetUpdateMode_e widgetUpdateMode() const { return m_mode; }

protected:
    /// The bound property.
    PropertyAbstract<T>& property() const { return m_property; }

    /// Relevance of the style property; a plain property is always shown and enabled
    /// (its widget is driven by a RelevanceApplier instead).
    bool isPropertyVisible() const { return !m_styleProperty || m_styleProperty->isVisible(); }
    /// Whether the widget is to be enabled; always for a plain property.
    bool isPropertySensitive() const { return !m_styleProperty || m_styleProperty->isSensitive(); }

    /// Validates and stores \a candidate; true when the property changed. Throws
    /// InvalidPropertyValueException when the value is refused.
    bool writeProperty(const T& candidate) { return intern::writeProperty(m_property, candidate); }

    /// The write of a widget handler that cannot leave an exception to Qt: a
    /// refused value is reported, the property keeps its value, and the widget is
    /// shown the property's value again on idle.
    bool writePropertyReportingRejection(const T& candidate)
    {
        try {
            return writeProperty(candidate);
        } catch (const InvalidPropertyValueException& rejection) {
            intern::showRejectedValueMessage(rejection);
            updateValueOnIdle();
            return false;
        }
    }

    /// Connections that end with the binding; derived bindings add theirs here.
    SignalConnectionCollection& connections() { return m_connections; }

private:
    void startListeningToProperty()
    {
        m_connections.add(m_property.connectToValueChangedSignal([this](const T&) { valueChanged(); }));
        if (!m_styleProperty)
            return;
        if (m_mode != WidgetUpdateMode_Immediate) {
            m_visibilityUpdater.reset(new common::OnIdleActionPerformerSingleShot([this] { updateVisibility(); }));
            m_sensitivityUpdater.reset(new common::OnIdleActionPerformerSingleShot([this] { updateSensitivity(); }));
        }
        m_connections.add(m_styleProperty->connectToVisibilityChangedSignal([this] { visibilityChanged(); }));
        m_connections.add(m_styleProperty->connectToSensitivityChangedSignal([this] { sensitivityChanged(); }));
    }

    void valueChanged()
    {
        if (m_mode == WidgetUpdateMode_Immediate)
            updateWidget();
        else
            m_valueUpdater.enableNotification();
    }
    void visibilityChanged()
    {
        if (m_mode == WidgetUpdateMode_Immediate)
            updateVisibility();
        else
            m_visibilityUpdater->enableNotification();
    }
    void sensitivityChanged()
    {
        if (m_mode == WidgetUpdateMode_Immediate)
            updateSensitivity();
        else
            m_sensitivityUpdater->enableNotification();
    }

    const WidgetUpdateMode_e m_mode;
    StyleProperty* const m_styleProperty;
    PropertyAbstract<T>& m_property;
    const boost::shared_ptr<PropertyAbstract<T>> m_propertyKeeper;
    common::OnIdleActionPerformerSingleShot m_valueUpdater;
    boost::scoped_ptr<common::OnIdleActionPerformerSingleShot> m_visibilityUpdater;
    boost::scoped_ptr<common::OnIdleActionPerformerSingleShot> m_sensitivityUpdater;
    /// Last, so that it disconnects first on destruction.
    SignalConnectionCollection m_connections;
};

} // namespace orrery::sdk::ui::dialogs::propertybindings
