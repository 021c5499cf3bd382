#include "framework/ListViewPropertyBinding.h"

#include <QListView>

namespace orrery::sdk::ui::dialogs::propertybindings {

ListViewPropertyBinding::~ListViewPropertyBinding() = default;

void ListViewPropertyBinding::init(BindingInterface::ModelUpdateMode mode)
{
    if (mode == BindingInterface::ModelUpdate_DeferredWhileBusy && !m_busyDeferrer)
        m_busyDeferrer.reset(new orrery::ui::WidgetUpdateDeferrerOnBusy(&m_view));
}

void ListViewPropertyBinding::setSelectionMode(QAbstractItemView::SelectionMode mode)
{
    m_view.setSelectionMode(mode);
}

void ListViewPropertyBinding::updateWidget()
{
    m_synchronizer->updateWidgetFromProperty();
}

} // namespace orrery::sdk::ui::dialogs::propertybindings
