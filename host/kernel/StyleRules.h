#pragma once
#include <string>
#include "host/kernel/StyleEntry.h"

namespace orrery {
namespace kernel {
namespace rules {

// 0 (no variable) or a variable of the data set; declined while the data set has
// no variables, since nothing can be checked then.
StyleRule variableNumber();
// Variables of the data set, each once, as numbers separated by spaces ("4 5"); empty for none.
StyleRule variableNumbers();
// A long within [lowest, highest]; what names the value in the refusal text.
// 0 (no zone) or a zone of the data set.
StyleRule zoneNumber();
StyleRule withinRange(const std::string& what, long lowest, long highest);
// A long of at least lowest.
StyleRule atLeast(const std::string& what, long lowest);
StyleRule greaterThanZero(const std::string& what);
StyleRule percentage(const std::string& what);
StyleRule notEmpty(const std::string& what);
// A basic, custom or by-variable colour index.
StyleRule colorIndex();
// A double that must stay below (or above) the double at otherKey.
StyleRule lessThan(const std::string& otherKey, const StyleDatum& otherDefault);
StyleRule greaterThan(const std::string& otherKey, const StyleDatum& otherDefault);

} // namespace rules
} // namespace kernel
} // namespace orrery
