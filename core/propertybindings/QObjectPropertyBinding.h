#pragma once
#include <memory>
#include <QObject>

#include "core/propertybindings/UIPropertyBindingAbstract.h"

namespace orrery::sdk::ui::dialogs::propertybindings {

/// Base of a binding that must itself be a QObject to own Qt slots. The property
/// side is delegated to an updater, which calls back into the three update
/// operations overridden by the derived class.
template <typename T>
class QObjectPropertyBinding : public QObject, public virtual BindingInterface
{
public:
    /// Binds a plain property, kept alive by the binding.
    QObjectPropertyBinding(const boost::shared_ptr<PropertyAbstract<T>>& property, WidgetUpdateMode_e mode)
        : QObject(nullptr), m_updater(new PropertyBindingUpdater(property, mode, *this))
    {}
    /// The properties manager owns a style property; it must outlive the binding.
    QObjectPropertyBinding(typename UIPropertyBindingAbstract<T>::StyleProperty& property, WidgetUpdateMode_e mode)
        : QObject(nullptr), m_updater(new PropertyBindingUpdater(property, mode, *this))
    {}

protected:
    /// The bound property.
    PropertyAbstract<T>& property() const { return m_updater->boundProperty(); }
    /// Stores \a candidate as UIPropertyBindingAbstract::writeProperty does.
    bool writeProperty(const T& candidate) { return m_updater->write(candidate); }
    /// For Qt slots, which must not let a refusal escape: see UIPropertyBindingAbstract.
    bool writePropertyReportingRejection(const T& candidate) { return m_updater->writeReporting(candidate); }
    /// Has the widget refreshed once on idle.
    void updateValueOnIdle() { m_updater->updateValueOnIdle(); }
    /// Whether the widget is to be shown now.
    bool isPropertyVisible() const { return m_updater->visible(); }
    /// Whether the widget is to be enabled now.
    bool isPropertySensitive() const { return m_updater->sensitive(); }

private:
    class PropertyBindingUpdater : public UIPropertyBindingAbstract<T>
    {
    public:
        PropertyBindingUpdater(const boost::shared_ptr<PropertyAbstract<T>>& property, WidgetUpdateMode_e mode,
                               QObjectPropertyBinding& owner)
            : UIPropertyBindingAbstract<T>(property, mode), m_owner(owner)
        {}
        PropertyBindingUpdater(typename UIPropertyBindingAbstract<T>::StyleProperty& property, WidgetUpdateMode_e mode,
                               QObjectPropertyBinding& owner)
            : UIPropertyBindingAbstract<T>(property, mode), m_owner(owner)
        {}
        void updateWidget() override { m_owner.updateWidget(); }
        void updateVisibility() override { m_owner.updateVisibility(); }
        void updateSensitivity() override { m_owner.updateSensitivity(); }

        PropertyAbstract<T>& boundProperty() const { return this->property(); }
        bool write(const T& candidate) { return this->writeProperty(candidate); }
        bool writeReporting(const T& candidate) { return this->writePropertyReportingRejection(candidate); }
        bool visible() const { return this->isPropertyVisible(); }
        bool sensitive() const { return this->isPropertySensitive(); }

    private:
        QObjectPropertyBinding& m_owner;
    };

    std::unique_ptr<PropertyBindingUpdater> m_updater;
};

} // namespace orrery::sdk::ui::dialogs::propertybindings
