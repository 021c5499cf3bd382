#include "prompts/prompt/ChooseLoaderDialog.h"

#include <boost/ptr_container/ptr_vector.hpp>
#include <QCoreApplication>
#include <QPushButton>
#include "framework/LaunchHelpAction.h"
#include "framework/ListHeaderItemDelegate.h"
#include "framework/ListViewPropertyBinding.h"
#include "framework/RelevanceApplier.h"
#include "framework/models/StringListWithHeadersModel.h"
#include "prompts/prompt/ChooseLoaderPropertiesManager.h"
#include "ui_ChooseLoader.h"

namespace orrery {
namespace dialogs {
namespace prompt {

namespace pb = sdk::ui::dialogs::propertybindings;

struct ChooseLoaderDialog::Impl
{
    explicit Impl(QDialog& dialog)
    {
        ui.setupUi(&dialog);
        ui.LoadersList->setItemDelegate(new sdk::ui::dialogs::ListHeaderItemDelegate(ui.LoadersList));
        auto* list =
            new pb::ListViewPropertyBinding(*ui.LoadersList, manager.loadersListProperty(), manager.loadersListModel());
        bindings.push_back(list);
        list->setSelectionMode(QAbstractItemView::SingleSelection);
        appliers.push_back(
            new pb::RelevanceApplier(manager.loaderSelectedRelevance(), {ui.buttonBox->button(QDialogButtonBox::Ok)}));
    }

    Ui_ChooseLoader ui;
    ChooseLoaderPropertiesManager manager;
    boost::ptr_vector<pb::BindingInterface> bindings;
    boost::ptr_vector<pb::RelevanceApplier> appliers;
    std::vector<LoaderPtr> suggestedLoaders;
    std::set<std::string> extensions;
};

ChooseLoaderDialog* ChooseLoaderDialog::getInstance(QWidget& parent, std::vector<LoaderPtr> const& suggestedLoaders,
                                                    std::set<std::string> const& extensions)
{
    ChooseLoaderDialog* dialog = obtain(parent);
    dialog->refresh(suggestedLoaders, extensions);
    return dialog;
}

ChooseLoaderDialog::ChooseLoaderDialog(QWidget& parent) : QtDialogAbstract(parent, RelevancePtr())
{
    setHelpAction(new common::LaunchHelpAction("choose_loader.html", *this));
    m_impl.reset(new Impl(*this));
    // A double-click on a loader confirms it; header rows are captions, not choices.
    connect(m_impl->ui.LoadersList, &QListView::doubleClicked, this, [this](const QModelIndex& index) {
        if (index.flags() & Qt::ItemIsEnabled)
            accept();
    });
}

ChooseLoaderDialog::~ChooseLoaderDialog() = default;

ChooseLoaderDialog::LoaderPtr ChooseLoaderDialog::selectedLoader()
{
    return m_impl->manager.selectedLoader();
}

void ChooseLoaderDialog::accept()
{
    // OK is enabled only with one loader selected; Return or a double-click must obey the same rule.
    if (!m_impl->manager.loaderSelectedRelevance()->isRelevant())
        return;
    m_impl->manager.saveLastLoaderUsedForExtensions(m_impl->extensions);
    QtDialogAbstract::accept();
}

void ChooseLoaderDialog::showEvent(QShowEvent* event)
{
    QtDialogAbstract::showEvent(event);
    QListView* list = m_impl->ui.LoadersList;
    if (list->currentIndex().isValid())
        list->scrollTo(list->currentIndex());
}

void ChooseLoaderDialog::refresh(std::vector<LoaderPtr> const& suggestedLoaders,
                                 std::set<std::string> const& extensions)
{
    m_impl->suggestedLoaders = suggestedLoaders;
    m_impl->extensions = extensions;
    m_impl->manager.updateLoaderList(suggestedLoaders);
    m_impl->manager.selectLoaderBasedOnExtensionsHistory(extensions);
    showTexts();
}

void ChooseLoaderDialog::retranslate()
{
    m_impl->ui.retranslateUi(this);
    showTexts();
    // The same rows in the new language: the user's selection holds.
    const std::vector<int> selected = m_impl->manager.loadersListProperty()->getValue();
    m_impl->manager.updateLoaderList(m_impl->suggestedLoaders);
    m_impl->manager.loadersListProperty()->setValue(selected);
}

void ChooseLoaderDialog::showTexts()
{
    const std::set<std::string>& extensions = m_impl->extensions;
    QString title = QCoreApplication::translate("ChooseLoader", "Choose Loader ");
    if (!extensions.empty()) {
        title += "(";
        for (const std::string& extension : extensions)
            title += "*" + QString::fromUtf8(extension.c_str()) + " ";
        title[title.size() - 1] = ')';
    }
    setWindowTitle(title);
    m_impl->ui.label->setText(
        m_impl->suggestedLoaders.empty()
            ? QCoreApplication::translate(
                "ChooseLoader",
                "A loader could not be found for this file type.\nPlease choose which loader you would like to use.")
            : QCoreApplication::translate(
                "ChooseLoader",
                "Multiple loaders support this kind of file.\nPlease choose which loader you would like to use."));
}

} // namespace prompt
} // namespace dialogs
} // namespace orrery
