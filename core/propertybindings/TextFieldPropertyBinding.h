#pragma once
#include "core/CoreExport.h"
#include <string>
#include "core/propertybindings/LineEditPropertyBindingAbstract.h"

namespace orrery::sdk::ui::dialogs::propertybindings {

/// A line edit showing a property's value through a boost::format string
/// ("%1%" by default). Instantiated for double and std::string.
template <typename T>
class ORRERY_CORE_EXPORT TextFieldPropertyBinding : public LineEditPropertyBindingAbstract<T>
{
public:
    /// Where the cursor goes when the field is refreshed from the property.
    enum CursorPosition_e
    {
        CursorPosition_Home = 0, ///< show the start of a long value
        CursorPosition_Keep = 1  ///< leave the cursor where it is
    };

    /// Binds \a field, which must outlive the binding, and installs the default validator
    /// for T unless the dialog set its own.
    TextFieldPropertyBinding(QLineEdit* field, const boost::shared_ptr<PropertyAbstract<T>>& property,
                             BindingInterface::WidgetUpdateMode_e mode = BindingInterface::WidgetUpdateMode_OnIdle,
                             CursorPosition_e cursor = CursorPosition_Home);

    void updateWidget() override;
    void updateVisibility() override;
    void updateSensitivity() override;

private:
    const std::string m_format;
    const CursorPosition_e m_cursor;
};

} // namespace orrery::sdk::ui::dialogs::propertybindings
