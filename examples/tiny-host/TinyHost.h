#pragma once
// A host of its own for the dialogs, in a few hundred lines and without the
// stand-in: TinyHost.cpp defines every operation of platform/kernel/OrrUtil.h and
// the settings store over the model below, and registers one data loader.
//
// The model: one page with one 2D frame; a data set of zones and variables, all
// enabled; a style state in a map, with two rules (variable numbers name a
// variable, the RGB range minimum stays below its maximum) and paths the host may
// refuse; undo brackets that take back a failed step and count the kept ones (no
// undo history); message boxes kept as text; settings kept in memory.
#include <map>
#include <set>
#include <string>
#include <variant>
#include <vector>

namespace tinyhost {

typedef std::variant<long, double, std::string> Value;

struct Host
{
    static Host& instance();
    // Back to the start: two blocks of sample data, the default style, nothing recorded.
    void reset();
    // Replaces the data set, as a load does, and announces it to the dialogs.
    void replaceDataSet(std::vector<std::string> zoneNames, std::vector<std::string> varNames,
                        std::vector<std::vector<std::vector<double>>> zoneValues);

    std::vector<std::string> zones;
    std::vector<std::string> vars;
    std::vector<std::vector<std::vector<double>>> values; // [zone][var][point]
    std::map<std::string, Value> style;                   // "GlobalRGB/RedChannelVar"
    std::string lastError;
    // Paths the host refuses every write to, with the reason it gives.
    std::map<std::string, std::string> refusals;
    std::vector<std::string> messages;
    // Steps closed by the outermost undo bracket, and how deep brackets are now.
    std::vector<std::string> steps;
    int bracketDepth = 0;
    std::map<std::string, Value> bracketStart;
    std::string bracketName;

    // For the host's own tests: faults a host must not have, switched on to show
    // that the dialogs survive them. A real host has nothing of the kind.
    struct Faults
    {
        std::set<std::string> throwing; // operations that throw ("ZoneGetName", "StyleGetValue")
        bool nullNames = false;         // zone and variable names come back null
    } faults;
    // For the host's own tests too: how often each operation was asked, by the
    // name after OrrUtil ("VarGetName"), while countAsked is on.
    bool countAsked = false;
    std::map<std::string, long> asked;
};

// Registers the host's loader, "Tiny table" (*.tiny: a header row of variable
// names, then one row of numbers per point, all in one zone).
void registerLoaders();

} // namespace tinyhost
