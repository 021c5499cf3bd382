#pragma once
#include "host/kernel/StyleState.h"
#include "platform/toolbox/Set.h"

namespace orrery {
namespace kernel {

// One frame of the current page: its style, the zones and variables it uses
// and its height on the page.
class Frame
{
public:
    static constexpr double DefaultHeightCm = 18.0;

    explicit Frame(long uniqueID) : m_uniqueID(uniqueID) {}

    long uniqueID() const { return m_uniqueID; }
    StyleState& style() { return m_style; }
    const StyleState& style() const { return m_style; }

    toolbox::Set enabledZones;
    toolbox::Set enabledVars;
    double heightCm = DefaultHeightCm;

private:
    long m_uniqueID;
    StyleState m_style;
};

} // namespace kernel
} // namespace orrery
