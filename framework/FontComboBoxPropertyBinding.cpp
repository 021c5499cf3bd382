#include "framework/FontComboBoxPropertyBinding.h"

#include <QFontComboBox>

namespace orrery::sdk::ui::dialogs::propertybindings {

FontComboBoxPropertyBinding::FontComboBoxPropertyBinding(
    QFontComboBox& combo, const boost::shared_ptr<PropertyAbstract<std::string>>& property)
    : UIPropertyBindingAbstract<std::string>(property, BindingInterface::WidgetUpdateMode_OnIdle), m_combo(combo),
      m_observable(new qwidgetobservable::QComboBoxObservable(&combo))
{
    m_combo.setInsertPolicy(QComboBox::NoInsert);
    updateWidget();
    m_observable->addListener(this);
}

FontComboBoxPropertyBinding::~FontComboBoxPropertyBinding()
{
    m_observable->removeListener(this);
}

void FontComboBoxPropertyBinding::updateWidget()
{
    const QString family = QString::fromUtf8(property().retrieveValue().c_str());
    const int row = m_combo.findText(family, Qt::MatchExactly);
    if (row >= 0)
        m_combo.setCurrentIndex(row);
    else if (m_combo.isEditable())
        m_combo.setEditText(family);
}

void FontComboBoxPropertyBinding::updateVisibility()
{
    m_combo.setVisible(isPropertyVisible());
}

void FontComboBoxPropertyBinding::updateSensitivity()
{
    m_combo.setEnabled(isPropertySensitive());
}

void FontComboBoxPropertyBinding::currentIndexChanged(int index, qwidgetobservable::QComboBoxObservable&)
{
    if (index >= 0)
        writePropertyReportingRejection(m_combo.itemText(index).toUtf8().toStdString());
}

} // namespace orrery::sdk::ui::dialogs::propertybindings
