#pragma once
// A deliberately tiny host: everything the dialogs ask of a host, and nothing
// more. One page with one 2D frame, a data set of two zones and five variables,
// a style state in a map with two rules (variable numbers name a variable, the
// RGB range minimum stays below its maximum), undo brackets without undo, message boxes recorded. No journal, no
// loaders.
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
    // Back to the start: default style, nothing recorded.
    void reset();

    std::vector<std::string> zones;
    std::vector<std::string> vars;
    std::vector<std::vector<std::vector<double>>> values; // [zone][var][point]
    std::map<std::string, Value> style;                   // "GlobalRGB/RedChannelVar"
    std::string lastError;
    // Paths the host refuses every write to, with the reason it gives.
    std::map<std::string, std::string> refusals;
    // Operations that throw, as a faulty host's might ("ZoneGetName", "StyleGetValue").
    std::set<std::string> throwing;
    // Names come back null, as a faulty host's might.
    bool nullNames = false;
    std::vector<std::string> messages;
    // Steps closed by the outermost undo bracket, and how deep brackets are now.
    std::vector<std::string> steps;
    int bracketDepth = 0;
    std::map<std::string, Value> bracketStart;
    std::string bracketName;
};

} // namespace tinyhost
