#pragma once
#include "framework/FrameworkExport.h"
#include <memory>
#include <boost/shared_ptr.hpp>
#include <QAbstractItemView>

#include "platform/ui/WidgetUpdateDeferrerOnBusy.h"
#include "core/propertybindings/ListViewPropertySynchronizer.h"
#include "core/propertybindings/PropertyBindingInterface.h"

class QListView;

namespace orrery::sdk::ui::dialogs::propertybindings {

/// A list view whose selected rows edit a property of the selected rows' values
/// (std::vector<int> or std::set<int>), through a ListViewPropertySynchronizer.
/// Its enabled state and visibility are a RelevanceApplier's business.
class ORRERY_FRAMEWORK_EXPORT ListViewPropertyBinding : public PropertyBindingInterface
{
public:
    /// Any property of std::vector<int> or std::set<int>.
    template <typename Property>
    ListViewPropertyBinding(QListView& view, const boost::shared_ptr<Property>& property,
                            const boost::shared_ptr<const models::ListModelInterface<int>>& rows,
                            BindingInterface::WidgetUpdateMode_e mode = BindingInterface::WidgetUpdateMode_OnIdle)
        : m_view(view),
          m_synchronizer(new ListViewPropertySynchronizer<typename Property::ValueType>(view, property, rows, mode))
    {}
    ~ListViewPropertyBinding() override;

    /// With ModelUpdate_DeferredWhileBusy, holds the view's repaints back while the host is busy.
    void init(BindingInterface::ModelUpdateMode mode);
    /// Sets the view's selection mode (single or multiple choice).
    void setSelectionMode(QAbstractItemView::SelectionMode mode);

    /// Selects the rows of the property's values.
    void updateWidget() override;
    /// Nothing: a RelevanceApplier shows and hides the view.
    void updateVisibility() override {}
    /// Nothing: a RelevanceApplier enables and disables the view.
    void updateSensitivity() override {}

private:
    QListView& m_view;
    std::unique_ptr<WidgetPropertySynchronizerInterface> m_synchronizer;
    std::unique_ptr<orrery::ui::WidgetUpdateDeferrerOnBusy> m_busyDeferrer;
};

} // namespace orrery::sdk::ui::dialogs::propertybindings
