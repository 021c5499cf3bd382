#pragma once
#include <boost/shared_ptr.hpp>
#include <memory>
#include "framework/QtDialogAbstract.h"

class QToolButton;

namespace orrery::sdk::ui::dialogs::propertybindings {
class ColorButtonPropertyBinding;
}
namespace orrery::sdk::styleproperties {
template <typename T>
class KernelProperty;
}

// How a host's style dialog uses a colour button: the mesh colour of the first
// zone, shown on a button and written to the style as soon as it is chosen.
class ColorButtonDemoDialog : public orrery::dialogs::common::QtDialogAbstract
{
    Q_OBJECT
public:
    explicit ColorButtonDemoDialog(QWidget& parent);
    ~ColorButtonDemoDialog() override;

    QToolButton* colorButton() const { return m_button; }
    int meshColor() const;

private:
    QToolButton* m_button;
    boost::shared_ptr<orrery::sdk::styleproperties::KernelProperty<int>> m_meshColor;
    std::unique_ptr<orrery::sdk::ui::dialogs::propertybindings::ColorButtonPropertyBinding> m_binding;
};
