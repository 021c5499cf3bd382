#pragma once
#include "prompts/PromptsExport.h"
#include <memory>
#include <string>
#include <vector>
#include <boost/function.hpp>
#include "framework/QtDialogAbstract.h"
#include "platform/toolbox/StringList.h"
#include "framework/SingleInstanceDialog.h"

namespace orrery {
template <typename T>
class PropertyAbstract;

namespace dialogs {
namespace prompt {

/// Asks for two or three variables of the data set, one per drop-down list, and
/// writes each to the style value the caller names when the user presses OK.
/// Nothing reaches the kernel before OK; OK is one undoable step.
class ORRERY_PROMPTS_EXPORT VariableSelectDialog : public common::QtDialogAbstract,
                                                   public virtual common::DialogInterface,
                                                   public SingleInstanceDialog<VariableSelectDialog>
{
    Q_OBJECT
public:
    /// Chooses the variables the dialog shows first.
    class DefaultVarAssignmentInterface
    {
    public:
        virtual ~DefaultVarAssignmentInterface() = default;
        /// Sets the variables shown first; each property starts from its style value.
        /// In a two-variable dialog \a var3 is hidden and never written.
        virtual void assignVariables(PropertyAbstract<int>& var1, PropertyAbstract<int>& var2,
                                     PropertyAbstract<int>& var3) const = 0;
    };

    /// The first call builds the dialog for these paths and texts, which it shows
    /// however it is run (launch(), exec(), open(), show()). Later calls refresh
    /// nothing: a live dialog is returned with its old paths, texts and choices
    /// (see SingleInstanceDialog). An empty var3Path makes a two-variable dialog.
    /// labels needs two texts, three with a third variable: launch() checks that,
    /// while the other ways show an empty caption. Throws what the assignment
    /// throws, and then leaves no dialog behind.
    static VariableSelectDialog* getInstance(QWidget& parent, const toolbox::StringList& var1Path,
                                             const toolbox::StringList& var2Path, const toolbox::StringList& var3Path,
                                             const std::string& instructions, const std::vector<std::string>& labels,
                                             const DefaultVarAssignmentInterface& assignment);

    /// Builds an empty dialog over \a parent; getInstance() sets it up, and is what a
    /// host uses.
    explicit VariableSelectDialog(QWidget& parent);
    ~VariableSelectDialog() override;

    /// Run after the values are written, inside the same undo step. Replaces
    /// the action set before.
    void setPostAssignmentAction(boost::function<void()> action);

    /// Throws std::out_of_range, before showing anything, when labels are missing.
    void launch() override;

    /// Relevant while a data set exists.
    static boost::shared_ptr<const sdk::ui::propertymanager::RelevanceInterface> relevance();

protected:
    /// The layout's texts, the instructions and the labels in the user's language again.
    void retranslate() override;

public Q_SLOTS:
    /// Writes the choices under the application lock as one undo step, runs the
    /// post-assignment action and closes. A value the kernel refuses is shown
    /// to the user and the dialog stays open.
    void accept() override;

private:
    struct Impl;
    void install(std::unique_ptr<Impl> impl);

    std::unique_ptr<Impl> m_impl;
};

} // namespace prompt
} // namespace dialogs
} // namespace orrery
