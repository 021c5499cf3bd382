#pragma once
#include "prompts/PromptsExport.h"
#include <memory>
#include <string>
#include <QString>
#include "framework/QtDialogAbstract.h"

namespace orrery {
namespace dialogs {
namespace prompt {

/// Asks for one line of text. The caller constructs one per question (it has no
/// getInstance, and so nothing is reused), runs and destroys it, and reads text()
/// before destroying it. It sets no modality: a host that runs it with launch()
/// and waits for the answer calls setModal(true) first.
class ORRERY_PROMPTS_EXPORT EnterTextStringDialog : public common::QtDialogAbstract,
                                                    public virtual common::DialogInterface
{
    Q_OBJECT
public:
    /// An empty promptText keeps the default prompt; an empty helpPage installs
    /// no help. The last argument is accepted for the callers that pass it.
    EnterTextStringDialog(QWidget& parent, QString const& promptText, QString const& initialText,
                          QString const& helpPage, bool);
    ~EnterTextStringDialog() override;

    /// The text in the field now.
    QString text() const;
    /// Relabels the OK button; \a text is UTF-8.
    void setOkButtonText(std::string const& text);

protected:
    /// The layout's texts in the user's language again; the caller's prompt and OK caption
    /// stay as given.
    void retranslate() override;

private Q_SLOTS:
    void textChanged(QString const&);

private:
    struct Impl;
    std::unique_ptr<Impl> m_impl;
};

} // namespace prompt
} // namespace dialogs
} // namespace orrery
