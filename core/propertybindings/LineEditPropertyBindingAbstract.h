#pragma once
#include "core/CoreExport.h"
#include <memory>
#include <QString>

#include "platform/qwidgetobservable/QTextFieldObservable.h"
#include "core/propertybindings/UIPropertyBindingAbstract.h"

class QLineEdit;

namespace orrery::sdk::ui::dialogs::propertybindings {

/// A line edit whose text is written to the property when the user commits it
/// (Return, or leaving an edited field), never on each keystroke. A refused text
/// is answered by restoring the field and giving it the focus again.
/// Instantiated for double, std::string, int and RGBMode_e.
template <typename T>
class ORRERY_CORE_EXPORT LineEditPropertyBindingAbstract : public UIPropertyBindingAbstract<T>
{
public:
    /// Binds \a field, which must outlive the binding; \a mode says when property
    /// changes are shown.
    LineEditPropertyBindingAbstract(QLineEdit* field, const boost::shared_ptr<PropertyAbstract<T>>& property,
                                    BindingInterface::WidgetUpdateMode_e mode);

    /// Commits the field's text. True when the value was stored or already held,
    /// and when the field still shows what the binding put there: a value the
    /// user did not edit is never rewritten from its display form (which may
    /// round it, or be a text such as "inf" that no edit could produce).
    bool editingFinished();

protected:
    /// Installs the default validator for T unless the dialog installed its own.
    class ValidationInstaller
    {
    public:
        /// Gives \a field a validator of C-locale numbers when T is double or int,
        /// replacing one an earlier binding installed; a dialog's own stays.
        static void install(QLineEdit& field);
        /// Object name of the validators that bindings install, so that a later
        /// binding replaces them but leaves a dialog's own validator alone.
        static const QString m_installedValidatorMarker;
    };

    /// The bound field.
    QLineEdit* lineEdit() const { return m_field; }
    /// Shows a value; a commit of this very text is no edit.
    void showText(const QString& text);

private:
    bool validateText(QString& text) const;
    void restoreField();

    std::unique_ptr<qwidgetobservable::QTextFieldObservable> m_observable;
    QLineEdit* m_field;
    QString m_shownText;
};

} // namespace orrery::sdk::ui::dialogs::propertybindings
