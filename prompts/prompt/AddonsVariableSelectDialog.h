#pragma once
#include "prompts/PromptsExport.h"
#include <memory>
#include <string>
#include <vector>
#include <boost/shared_ptr.hpp>
#include "framework/QtDialogAbstract.h"
#include "framework/SingleInstanceDialog.h"

namespace orrery {
template <typename T>
class PropertyAbstract;

namespace dialogs {
namespace prompt {

/// Up to three variables for an add-on, chosen straight into properties that
/// the add-on supplies; the add-on reads them after the dialog closes.
class ORRERY_PROMPTS_EXPORT AddonsVariableSelectDialog : public common::QtDialogAbstract,
                                                         public virtual common::DialogInterface,
                                                         public SingleInstanceDialog<AddonsVariableSelectDialog>
{
    Q_OBJECT
public:
    /// A property holding a variable number, supplied by the add-on.
    typedef boost::shared_ptr<PropertyAbstract<int>> VarPropertyPtr;

    /// Texts are UTF-8. A null label is skipped, so the labels after it move up one row; rows
    /// without a label are hidden, their properties still bound. Later calls
    /// refresh nothing: a live dialog is returned unchanged (see
    /// SingleInstanceDialog). Throws
    /// std::out_of_range without any label and std::invalid_argument for null
    /// instructions or properties.
    static AddonsVariableSelectDialog* getInstance(QWidget& parent, const char* instructions, const char* label1,
                                                   const char* label2, const char* label3, VarPropertyPtr var1,
                                                   VarPropertyPtr var2, VarPropertyPtr var3);

    /// Builds the dialog directly, over \a parent; a host uses getInstance(). \a labels
    /// holds one text per shown row, at most three. Throws std::invalid_argument when
    /// a property is null.
    AddonsVariableSelectDialog(QWidget& parent, VarPropertyPtr var1, VarPropertyPtr var2, VarPropertyPtr var3,
                               const std::string& instructions, const std::vector<std::string>& labels);
    ~AddonsVariableSelectDialog() override;

    /// Relevant while a data set exists.
    static boost::shared_ptr<const sdk::ui::propertymanager::RelevanceInterface> relevance();

protected:
    /// The layout's texts in the user's language again; the add-on's own texts stay as given.
    void retranslate() override;

private:
    class Impl;
    std::unique_ptr<Impl> m_impl;
};

} // namespace prompt
} // namespace dialogs
} // namespace orrery
