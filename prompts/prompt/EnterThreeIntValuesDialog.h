#pragma once
#include "prompts/PromptsExport.h"
#include <memory>
#include <string>
#include "framework/QtDialogAbstract.h"
#include "framework/SingleInstanceDialog.h"

namespace orrery {
namespace dialogs {
namespace prompt {

/// Asks for three whole numbers side by side (by default a begin, an end and a
/// skip), with captions, title and lower limits chosen by the caller.
class ORRERY_PROMPTS_EXPORT EnterThreeIntValuesDialog : public common::QtDialogAbstract,
                                                        public virtual common::DialogInterface,
                                                        public SingleInstanceDialog<EnterThreeIntValuesDialog>
{
    Q_OBJECT
public:
    /// The first call fixes everything. Later calls refresh nothing: a live dialog
    /// is returned as the user left it (see SingleInstanceDialog). \a title and the
    /// labels are UTF-8. An empty \a helpPage opens the prompt's own page.
    static EnterThreeIntValuesDialog* getInstance(QWidget& parent, long value1, long value2, long value3,
                                                  std::string const& title, std::string const& helpPage,
                                                  std::string label1, std::string label2, std::string label3,
                                                  long minimum1, long minimum2, long minimum3);

    /// A lower limit of 0 or below leaves the spin box's own lower end in place.
    EnterThreeIntValuesDialog(QWidget& parent, std::string const& title, std::string const& helpPage, long value1,
                              long value2, long value3, std::string label1, std::string label2, std::string label3,
                              long minimum1, long minimum2, long minimum3);
    ~EnterThreeIntValuesDialog() override;

    /// The first value as the user left it.
    long value1() const;
    /// The second value as the user left it.
    long value2() const;
    /// The third value as the user left it.
    long value3() const;

    /// Relevant while a data set exists.
    static boost::shared_ptr<const sdk::ui::propertymanager::RelevanceInterface> relevance();

protected:
    /// The layout's texts in the user's language again; the caller's title and captions stay as given.
    void retranslate() override;

private:
    struct Impl;
    std::unique_ptr<Impl> m_impl;
};

} // namespace prompt
} // namespace dialogs
} // namespace orrery
