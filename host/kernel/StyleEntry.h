#pragma once
#include <functional>
#include <string>
#include "platform/kernel/OrrTypes.h"
#include "host/kernel/StyleDatum.h"

namespace orrery {
namespace kernel {

class DataSet;
class StyleState;

// What the kernel answers to a style write.
struct WriteVerdict
{
    SetValueReturnCode_e code = SetValue_Ok;
    std::string text; // the refusal text, empty when accepted or declined

    static WriteVerdict accept() { return WriteVerdict(); }
    static WriteVerdict refuse(const std::string& text) { return {SetValue_InvalidValue, text}; }
    static WriteVerdict decline() { return {SetValue_Declined, std::string()}; }
};

// What a rule may look at besides the value written.
struct RuleContext
{
    const DataSet& dataSet;
    const StyleState& style; // the frame's style, for rules relating two values
    long member;             // collection member, 0 outside collections
};

typedef std::function<WriteVerdict(const StyleDatum&, const RuleContext&)> StyleRule;

enum class StyleType
{
    Long,
    Double,
    Bool,
    String
};

// The schema's description of one style path.
struct StyleEntry
{
    StyleType type;
    StyleDatum defaultValue;
    StyleRule rule;             // empty: any value of the type is accepted
    bool perZone = false;       // a collection with one member per zone
    bool holdsVariable = false; // a variable number, reset when it leaves the data set
};

} // namespace kernel
} // namespace orrery
