#pragma once
#include "prompts/PromptsExport.h"
#include <boost/shared_ptr.hpp>
#include "core/propertybindings/QObjectPropertyBinding.h"

class QAbstractButton;

namespace orrery {
namespace sdk {
namespace ui {
namespace dialogs {
namespace propertybindings {

/// A push or tool button showing a colour index of the kernel's colour map as a
/// swatch and a name; a click lets the user choose another colour in the colour
/// chooser. Colouring by variable (negative indices) shows the multi-colour icon.
class ORRERY_PROMPTS_EXPORT ColorButtonPropertyBinding : public QObjectPropertyBinding<int>
{
    Q_OBJECT
public:
    /// enableVarColoring is handed to the colour chooser: whether the multi
    /// colourings and RGB colouring may be chosen.
    ColorButtonPropertyBinding(QAbstractButton* button, const boost::shared_ptr<PropertyAbstract<int>>& property,
                               bool enableVarColoring);
    /// Binds a style property, whose relevance the button follows; the properties
    /// manager owns it, and it must outlive the binding.
    ColorButtonPropertyBinding(QAbstractButton* button, propertymanager::UIStylePropertyAbstract<int>& property,
                               bool enableVarColoring);
    ~ColorButtonPropertyBinding() override;

    void updateWidget() override;
    void updateVisibility() override;
    void updateSensitivity() override;

private Q_SLOTS:
    void onButtonClicked();

private:
    void init();

    QAbstractButton* m_button;
    bool m_enableVarColoring;
};

} // namespace propertybindings
} // namespace dialogs
} // namespace ui
} // namespace sdk
} // namespace orrery
