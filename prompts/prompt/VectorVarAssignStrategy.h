#pragma once
#include "prompts/PromptsExport.h"
#include "platform/kernel/OrrTypes.h"

class QWidget;

namespace orrery {
namespace dialogs {
namespace prompt {

/// Decides whether the vector layer may be switched on: at once when the style
/// already names usable vector variables, otherwise after the user has chosen
/// them in the vector dialog.
class ORRERY_PROMPTS_EXPORT VectorVarAssignStrategy
{
public:
    /// The vector dialog, when needed, opens over \a parent, which must outlive the strategy.
    explicit VectorVarAssignStrategy(QWidget& parent) : m_parent(parent) {}

    /// False for plots without vectors and when the user cancels the dialog.
    bool operator()(PlotType_e plotType) const;

private:
    QWidget& m_parent;
};

} // namespace prompt
} // namespace dialogs
} // namespace orrery
