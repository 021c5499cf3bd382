#pragma once
#include "platform/kernel/OrrTypes.h"

namespace orrery {
namespace kernel {

class StyleSchema;
class StyleState;

// Fits a frame's variable choices to a newly loaded data set: a choice that
// still names a variable is kept, any other is assigned by the rules the
// dialogs use for their defaults, so that a new file never opens to an empty
// plot. Axes come first, as the other rules keep clear of the axis variables.
class VariableFit
{
public:
    // style must be the current frame's: the default rules read it through the
    // host interface. Nothing is journalled and no undo step is made.
    static void apply(StyleState& style, const StyleSchema& schema, int numVars, PlotType_e plotType);
};

} // namespace kernel
} // namespace orrery
