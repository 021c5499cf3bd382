#pragma once
#include "platform/PlatformExport.h"

namespace qwidgetobservable {

class QButtonObservable;

// Told when a checkable button is switched on or off.
class ORRERY_PLATFORM_EXPORT QButtonListenerInterface
{
public:
    virtual void buttonToggled(QButtonObservable& source) = 0;
    virtual ~QButtonListenerInterface() = default;
};

} // namespace qwidgetobservable
