#pragma once
#include "platform/PlatformExport.h"
#include <QSpinBox>

namespace orrery::ui {

// The host's integer spin box: a QSpinBox that starts with the widest range a
// kernel integer allows, so that no value is clamped before a dialog narrows it.
class ORRERY_PLATFORM_EXPORT IntegralSpinBox : public QSpinBox
{
    Q_OBJECT
public:
    static constexpr int LargestMagnitude = 2147483646;

    explicit IntegralSpinBox(QWidget* parent = nullptr);
};

} // namespace orrery::ui
