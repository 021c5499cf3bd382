#pragma once
#include <string>
#include <variant>

namespace orrery {
namespace kernel {

// One value of the style state. Integer and enumerated values are longs.
typedef std::variant<long, double, bool, std::string> StyleDatum;

} // namespace kernel
} // namespace orrery
