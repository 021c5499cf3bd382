#pragma once
#include "platform/PlatformExport.h"

namespace qwidgetobservable {

class QComboBoxObservable;

// Told when the user (or the program) makes another row of a combo box current.
class ORRERY_PLATFORM_EXPORT QComboBoxListenerInterface
{
public:
    virtual void currentIndexChanged(int index, QComboBoxObservable& source) = 0;
    virtual ~QComboBoxListenerInterface() = default;
};

} // namespace qwidgetobservable
