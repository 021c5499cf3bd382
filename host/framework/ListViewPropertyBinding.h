#pragma once
#include <memory>
#include <boost/shared_ptr.hpp>
#include <QAbstractItemView>

#include "platform/ui/WidgetUpdateDeferrerOnBusy.h"
#include "propertybindings/ListViewPropertySynchronizer.h"
#include "propertybindings/PropertyBindingInterface.h"

class QListView;

namespace orrery::sdk::ui::dialogs::propertybindings {

// A list view whose selected rows edit a property of the selected rows' values
// (std::vector<int> or std::set<int>), through a ListViewPropertySynchronizer.
// Its enabled state and visibility are a RelevanceApplier's business.
class ListViewPropertyBinding : public PropertyBindingInterface
{
public:
    template <typename C>
    ListViewPropertyBinding(QListView& view, const boost::shared_ptr<PropertyAbstract<C>>& property,
                            const typename ListViewPropertySynchronizer<C>::ListModelPtr& rows,
                            BindingInterface::WidgetUpdateMode_e mode = BindingInterface::WidgetUpdateMode_OnIdle)
        : m_view(view), m_synchronizer(new ListViewPropertySynchronizer<C>(view, property, rows, mode))
    {
    }
    ~ListViewPropertyBinding() override;

    void init(BindingInterface::ModelUpdateMode mode);
    void setSelectionMode(QAbstractItemView::SelectionMode mode);

    void updateWidget() override;
    void updateVisibility() override {}
    void updateSensitivity() override {}

private:
    QListView& m_view;
    std::unique_ptr<WidgetPropertySynchronizerInterface> m_synchronizer;
    std::unique_ptr<orrery::ui::WidgetUpdateDeferrerOnBusy> m_busyDeferrer;
};

} // namespace orrery::sdk::ui::dialogs::propertybindings
