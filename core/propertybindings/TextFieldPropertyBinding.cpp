#include "core/propertybindings/TextFieldPropertyBinding.h"

#include <boost/format.hpp>
#include <QLineEdit>

namespace orrery::sdk::ui::dialogs::propertybindings {

template <typename T>
TextFieldPropertyBinding<T>::TextFieldPropertyBinding(QLineEdit* field,
                                                      const boost::shared_ptr<PropertyAbstract<T>>& property,
                                                      BindingInterface::WidgetUpdateMode_e mode,
                                                      CursorPosition_e cursor)
    : LineEditPropertyBindingAbstract<T>(field, property, mode), m_format("%1%"), m_cursor(cursor)
{
    LineEditPropertyBindingAbstract<T>::ValidationInstaller::install(*field);
    updateWidget();
}

template <typename T>
void TextFieldPropertyBinding<T>::updateWidget()
{
    const std::string text = (boost::format(m_format) % this->property().retrieveValue()).str();
    this->showText(QString::fromUtf8(text.c_str()));
    if (m_cursor == CursorPosition_Home)
        this->lineEdit()->home(false);
}

template <typename T>
void TextFieldPropertyBinding<T>::updateVisibility()
{
    this->lineEdit()->setVisible(this->isPropertyVisible());
}

template <typename T>
void TextFieldPropertyBinding<T>::updateSensitivity()
{
    this->lineEdit()->setEnabled(this->isPropertySensitive());
}

template class TextFieldPropertyBinding<double>;
template class TextFieldPropertyBinding<std::string>;

} // namespace orrery::sdk::ui::dialogs::propertybindings
