#include "demo/launchers/ColorButtonDemoDialog.h"

#include <QDialogButtonBox>
#include <QFormLayout>
#include <QToolButton>
#include <boost/make_shared.hpp>
#include "core/propertymanager/KernelProperty.h"
#include "prompts/propertybindings/ColorButtonPropertyBinding.h"

using orrery::sdk::styleproperties::KernelProperty;
using orrery::sdk::ui::dialogs::propertybindings::ColorButtonPropertyBinding;

ColorButtonDemoDialog::ColorButtonDemoDialog(QWidget& parent)
    : QtDialogAbstract(parent, RelevancePtr()), m_button(new QToolButton(this)),
      m_meshColor(boost::make_shared<KernelProperty<int>>(orrery::toolbox::StyleValue("FieldMap", "Mesh", "Color")))
{
    setObjectName("ColorButtonDemo");
    setWindowTitle(tr("Mesh Color"));
    setModal(true);
    m_button->setObjectName("meshColor_Button");
    m_button->setToolButtonStyle(Qt::ToolButtonTextBesideIcon);
    m_button->setMinimumWidth(120);
    auto* form = new QFormLayout(this);
    form->addRow(tr("Mesh &color of zone 1:"), m_button);
    form->addRow(new QDialogButtonBox(QDialogButtonBox::Close, this));
    m_meshColor->setOffsets(1, -1);
    m_binding.reset(new ColorButtonPropertyBinding(m_button, m_meshColor, true));
}

ColorButtonDemoDialog::~ColorButtonDemoDialog() = default;

int ColorButtonDemoDialog::meshColor() const
{
    return m_meshColor->getValue();
}
