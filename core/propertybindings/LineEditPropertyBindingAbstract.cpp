#include "core/propertybindings/LineEditPropertyBindingAbstract.h"

#include <string>
#include <type_traits>
#include <QDoubleValidator>
#include <QIntValidator>
#include <QLineEdit>

#include "platform/common/InvalidArgumentException.h"
#include "platform/kernel/OrrTypes.h"
#include "platform/sdk/AppLock.h"
#include "core/propertybindings/intern/StringConverter.h"
#include "core/propertybindings/intern/StringMassager.h"

namespace orrery::sdk::ui::dialogs::propertybindings {

template <typename T>
const QString LineEditPropertyBindingAbstract<T>::ValidationInstaller::m_installedValidatorMarker =
    QStringLiteral("OrreryBindingInstalledValidator");

namespace {

// Numbers are read in the classic locale, so the validator must accept exactly that form.
QLocale classicNumbers()
{
    QLocale locale = QLocale::c();
    locale.setNumberOptions(QLocale::RejectGroupSeparator);
    return locale;
}

template <typename T>
QValidator* makeDefaultValidator(QLineEdit& field)
{
    QValidator* validator = nullptr;
    if constexpr (std::is_same<T, double>::value)
        validator = new QDoubleValidator(&field);
    else if constexpr (std::is_same<T, int>::value)
        validator = new QIntValidator(&field);
    if (validator)
        validator->setLocale(classicNumbers());
    return validator;
}

} // namespace

template <typename T>
void LineEditPropertyBindingAbstract<T>::ValidationInstaller::install(QLineEdit& field)
{
    const QValidator* current = field.validator();
    if (current && current->objectName() != m_installedValidatorMarker)
        return;
    QValidator* validator = makeDefaultValidator<T>(field);
    if (!validator)
        return;
    validator->setObjectName(m_installedValidatorMarker);
    field.setValidator(validator);
    delete current;
}

template <typename T>
LineEditPropertyBindingAbstract<T>::LineEditPropertyBindingAbstract(
    QLineEdit* field, const boost::shared_ptr<PropertyAbstract<T>>& property, BindingInterface::WidgetUpdateMode_e mode)
    : UIPropertyBindingAbstract<T>(property, mode),
      m_observable(new qwidgetobservable::QTextFieldObservable(*field, [this] { return editingFinished(); })),
      m_field(field)
{}

template <typename T>
bool LineEditPropertyBindingAbstract<T>::editingFinished()
{
    if (m_field->text() == m_shownText)
        return true;
    AppLock lock(AppLock::ImplicitMacroRecording_Allow);
    QString text = m_field->text();
    intern::StringMassager().prepareText(this->property(), text);
    if (!validateText(text)) {
        restoreField();
        return false;
    }
    // The field shows what is converted: the tidied, validated text.
    if (text != m_field->text())
        m_field->setText(text);
    try {
        T value{};
        intern::StringConverter(m_field->text().toUtf8().toStdString()).convert(value);
        this->writeProperty(value);
    } catch (const InvalidArgumentException&) {
        // The validator is meant to have screened the text; nothing to tell.
        return false;
    } catch (const InvalidPropertyValueException& rejection) {
        intern::showRejectedValueMessage(rejection);
        restoreField();
        return false;
    }
    // Show the value held, in its canonical form, whatever the update mode.
    this->updateWidget();
    return true;
}

template <typename T>
bool LineEditPropertyBindingAbstract<T>::validateText(QString& text) const
{
    const QValidator* validator = m_field->validator();
    if (!validator)
        return true;
    int position = 0;
    QValidator::State state = validator->validate(text, position);
    if (state == QValidator::Invalid) {
        validator->fixup(text);
        state = validator->validate(text, position);
    }
    return state == QValidator::Acceptable;
}

template <typename T>
void LineEditPropertyBindingAbstract<T>::showText(const QString& text)
{
    m_shownText = text;
    m_field->setText(text);
}

template <typename T>
void LineEditPropertyBindingAbstract<T>::restoreField()
{
    this->updateWidget();
    m_field->activateWindow();
    m_field->setFocus(Qt::OtherFocusReason);
}

template class LineEditPropertyBindingAbstract<double>;
template class LineEditPropertyBindingAbstract<std::string>;
template class LineEditPropertyBindingAbstract<int>;
template class LineEditPropertyBindingAbstract<RGBMode_e>;

} // namespace orrery::sdk::ui::dialogs::propertybindings
