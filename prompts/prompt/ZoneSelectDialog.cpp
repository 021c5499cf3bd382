#include "prompts/prompt/ZoneSelectDialog.h"

#include <boost/ptr_container/ptr_vector.hpp>
#include "framework/LaunchHelpAction.h"
#include "framework/ListViewPropertyBinding.h"
#include "prompts/prompt/ZoneSelectPropertiesManager.h"
#include "ui_ZoneSelect.h"

namespace orrery {
namespace dialogs {
namespace prompt {

namespace pb = sdk::ui::dialogs::propertybindings;

struct ZoneSelectDialog::Impl
{
    explicit Impl(QDialog& dialog)
    {
        ui.setupUi(&dialog);
        bindPropertiesToControls();
    }

    void bindPropertiesToControls()
    {
        // Deferred: zones enabled or disabled while the dialog is open update the
        // list and drop a selected zone that went, once the host is idle.
        auto* binding =
            new pb::ListViewPropertyBinding(*ui.Zone_Source_MList, manager.selectedZones(), manager.enabledZonesModel(),
                                            pb::BindingInterface::WidgetUpdateMode_OnIdle);
        bindings.push_back(binding);
        binding->init(pb::BindingInterface::ModelUpdate_Immediate);
        binding->setSelectionMode(QAbstractItemView::SingleSelection);
    }

    Ui_ZoneSelect ui;
    ZoneSelectPropertiesManager manager;
    boost::ptr_vector<pb::PropertyBindingInterface> bindings;
};

ZoneSelectDialog* ZoneSelectDialog::getInstance(QWidget& parent, int zone)
{
    ZoneSelectDialog* dialog = obtain(parent, zone);
    dialog->m_impl->manager.selectedZones()->setValue({zone});
    QListView* list = dialog->m_impl->ui.Zone_Source_MList;
    list->scrollTo(list->model()->index(zone - 1, 0, QModelIndex()), QAbstractItemView::EnsureVisible);
    return dialog;
}

ZoneSelectDialog::ZoneSelectDialog(QWidget& parent, int)
    : QtDialogAbstract(parent, relevance()), m_impl(new Impl(*this))
{
    connect(m_impl->ui.Zone_Source_MList, &QListView::doubleClicked, this, &QDialog::accept);
    setHelpAction(new common::LaunchHelpAction("select_mapping_zone.html", *this));
}

ZoneSelectDialog::~ZoneSelectDialog() = default;

int ZoneSelectDialog::selectedZone()
{
    const std::set<int> zones = m_impl->manager.selectedZones()->getValue();
    return zones.empty() ? 0 : *zones.begin();
}

boost::shared_ptr<const sdk::ui::propertymanager::RelevanceInterface> ZoneSelectDialog::relevance()
{
    return ZoneSelectPropertiesManager::relevance();
}

void ZoneSelectDialog::retranslate()
{
    m_impl->ui.retranslateUi(this);
}

} // namespace prompt
} // namespace dialogs
} // namespace orrery
