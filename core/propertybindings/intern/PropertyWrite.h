#pragma once
#include "core/property/PropertyAbstract.h"

namespace orrery::sdk::ui::dialogs::propertybindings::intern {

/// How a widget edit reaches a property: validate (may throw
/// InvalidPropertyValueException), skip a value equal to the one held, store,
/// and announce the value really held. The equality test is what ends the
/// widget/property loop. Returns whether the property changed.
template <typename T>
bool writeProperty(PropertyAbstract<T>& property, const T& candidate)
{
    property.validate(candidate);
    if (property.isEqual(candidate))
        return false;
    property.storeValue(candidate);
    property.emitValueChangedSignal(property.retrieveValue());
    return true;
}

} // namespace orrery::sdk::ui::dialogs::propertybindings::intern
