#pragma once
#include "prompts/PromptsExport.h"
#include <memory>
#include <set>
#include <string>
#include <vector>
#include <boost/shared_ptr.hpp>
#include "framework/QtDialogAbstract.h"
#include "platform/loaders/DataLoaderInterface.h"
#include "framework/SingleInstanceDialog.h"

namespace orrery {
namespace dialogs {
namespace prompt {

/// Lets the user pick the data loader for a file: the suggested loaders first,
/// then all others; the loader last confirmed for the file's extension is
/// preselected, and a confirmed choice is remembered for the next time.
class ORRERY_PROMPTS_EXPORT ChooseLoaderDialog : public common::QtDialogAbstract,
                                                 public virtual common::DialogInterface,
                                                 public SingleInstanceDialog<ChooseLoaderDialog>
{
    Q_OBJECT
public:
    /// A loader registered with the host.
    typedef boost::shared_ptr<sdk::DataLoaderInterface> LoaderPtr;

    /// Every call, later ones too, rebuilds the list, selection, title and prompt
    /// from the arguments (see SingleInstanceDialog); only the parent of the first
    /// call counts. Extensions are written with their dot (".csv").
    static ChooseLoaderDialog* getInstance(QWidget& parent, std::vector<LoaderPtr> const& suggestedLoaders,
                                           std::set<std::string> const& extensions);

    /// Builds an empty dialog over \a parent; getInstance() fills it, and is what a host uses.
    explicit ChooseLoaderDialog(QWidget& parent);
    ~ChooseLoaderDialog() override;

    /// Empty when no loader is selected.
    LoaderPtr selectedLoader();

public Q_SLOTS:
    /// Remembers the choice for the file's extension, then accepts.
    void accept() override;

protected:
    /// A remembered loader far down a long list is brought into sight.
    void showEvent(QShowEvent* event) override;
    /// The layout's texts, the title, the prompt and the list's captions and loader
    /// names in the user's language again; the selection stays.
    void retranslate() override;

private:
    void refresh(std::vector<LoaderPtr> const& suggestedLoaders, std::set<std::string> const& extensions);
    void showTexts();

    struct Impl;
    std::unique_ptr<Impl> m_impl;
};

} // namespace prompt
} // namespace dialogs
} // namespace orrery
