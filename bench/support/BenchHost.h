#pragma once
// The host a benchmark program runs on: each dialog benchmark is built twice,
// once on the stand-in host and once on the tests' tiny host, from the same
// source. These are what the programs need of either.
#include <string>
#include <vector>
#include "platform/sdk/StateChangeEvent.h"
#include "platform/sdk/StateChangeEventObservable.h"

namespace benchhost {

// Named in the benchmark's context line.
const char* name();
// The host's own small data set, and its loaders.
void start();
// Replaces the data set: these zones and variables, one point each.
void loadDataSet(const std::vector<std::string>& zones, const std::vector<std::string>& vars);
// An extension (without the dot) that one of the host's loaders reads.
std::string loaderExtension();

// As a host announces a change between two dialogs: whatever the library kept
// of the host's answers is asked again by the next dialog.
inline void announceChange()
{
    orrery::sdk::integration::StateChangeEventObservable::getInstance().emitStateChange(
        orrery::sdk::integration::StateChangeEvent(StateChange_NodeMapsAltered));
}

} // namespace benchhost
