#pragma once

namespace orrery {
namespace host {

// Registers the stand-in host's loaders (comma-separated table, whitespace
// table, zone blocks, legacy VTK) in the loader repository, in that order.
// Done when the host's library is loaded, and again when the kernel starts (which
// keeps it in static builds); calling it again changes nothing.
void installBuiltInLoaders();

} // namespace host
} // namespace orrery
