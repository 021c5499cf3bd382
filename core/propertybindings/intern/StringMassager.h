#pragma once
#include "core/CoreExport.h"
#include <type_traits>
#include <QString>

#include "core/property/PropertyAbstract.h"

namespace orrery::sdk::ui::dialogs::propertybindings::intern {

/// Tidies a committed text before it is validated and converted. Numbers lose
/// the blanks around them (a pasted " 2.5 " is meant as 2.5, and the strict
/// conversion refuses leading blanks); text values are left exactly as typed,
/// since blanks can be part of them.
class ORRERY_CORE_EXPORT StringMassager
{
public:
    virtual ~StringMassager();

    /// Tidies \a text in place for a property of type T.
    template <typename T>
    void prepareText(const PropertyAbstract<T>&, QString& text) const
    {
        if (std::is_arithmetic<T>::value || std::is_enum<T>::value)
            text = text.trimmed();
    }
};

} // namespace orrery::sdk::ui::dialogs::propertybindings::intern
