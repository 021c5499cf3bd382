#include "host/kernel/StyleRules.h"
#include <charconv>
#include <set>
#include <sstream>
#include <boost/format.hpp>
#include "host/kernel/ColorMap.h"
#include "host/kernel/DataSet.h"
#include "host/kernel/StyleState.h"

namespace orrery {
namespace kernel {
namespace rules {

namespace {

double otherValue(const RuleContext& context, const std::string& key, const StyleDatum& fallback)
{
    const StyleDatum* stored = context.style.find(key, context.member);
    return std::get<double>(stored ? *stored : fallback);
}

} // namespace

StyleRule variableNumber()
{
    return [](const StyleDatum& value, const RuleContext& context) {
        const long var = std::get<long>(value);
        if (var == 0)
            return WriteVerdict::accept();
        const int count = context.dataSet.numVars();
        if (count == 0)
            return WriteVerdict::decline();
        if (var < 1 || var > count)
            return WriteVerdict::refuse(
                (boost::format("Variable number %1% is out of range (1 to %2%).") % var % count).str());
        return WriteVerdict::accept();
    };
}

StyleRule variableNumbers()
{
    return [](const StyleDatum& value, const RuleContext& context) {
        std::istringstream words(std::get<std::string>(value));
        std::set<long> listed;
        const int count = context.dataSet.numVars();
        for (std::string word; words >> word;) {
            long var = 0;
            const auto [end, error] = std::from_chars(word.data(), word.data() + word.size(), var);
            if (error != std::errc() || end != word.data() + word.size())
                return WriteVerdict::refuse((boost::format("\"%1%\" is not a variable number.") % word).str());
            if (var < 1 || var > count)
                return WriteVerdict::refuse(
                    (boost::format("Variable number %1% is out of range (1 to %2%).") % var % count).str());
            if (!listed.insert(var).second)
                return WriteVerdict::refuse((boost::format("Variable %1% is listed twice.") % var).str());
        }
        return WriteVerdict::accept();
    };
}

StyleRule zoneNumber()
{
    return [](const StyleDatum& value, const RuleContext& context) {
        const long zone = std::get<long>(value);
        const int count = context.dataSet.numZones();
        if (zone != 0 && (zone < 1 || zone > count))
            return WriteVerdict::refuse(
                (boost::format("Zone number %1% is out of range (1 to %2%).") % zone % count).str());
        return WriteVerdict::accept();
    };
}

StyleRule withinRange(const std::string& what, long lowest, long highest)
{
    return [=](const StyleDatum& value, const RuleContext&) {
        const long v = std::get<long>(value);
        if (v < lowest || v > highest)
            return WriteVerdict::refuse(
                (boost::format("%1% %2% is not valid (%3% to %4%).") % what % v % lowest % highest).str());
        return WriteVerdict::accept();
    };
}

StyleRule atLeast(const std::string& what, long lowest)
{
    return [=](const StyleDatum& value, const RuleContext&) {
        const long v = std::get<long>(value);
        if (v < lowest)
            return WriteVerdict::refuse(
                (boost::format("The %1% must be at least %2%, not %3%.") % what % lowest % v).str());
        return WriteVerdict::accept();
    };
}

StyleRule greaterThanZero(const std::string& what)
{
    return [=](const StyleDatum& value, const RuleContext&) {
        if (!(std::get<double>(value) > 0.0))
            return WriteVerdict::refuse("The " + what + " must be greater than zero.");
        return WriteVerdict::accept();
    };
}

StyleRule percentage(const std::string& what)
{
    return [=](const StyleDatum& value, const RuleContext&) {
        const double v = std::get<double>(value);
        if (!(v > 0.0 && v <= 100.0))
            return WriteVerdict::refuse(
                (boost::format("The %1% must be above 0 and at most 100 percent, not %2%.") % what % v).str());
        return WriteVerdict::accept();
    };
}

StyleRule notEmpty(const std::string& what)
{
    return [=](const StyleDatum& value, const RuleContext&) {
        if (std::get<std::string>(value).empty())
            return WriteVerdict::refuse("The " + what + " must not be empty.");
        return WriteVerdict::accept();
    };
}

StyleRule colorIndex()
{
    return [](const StyleDatum& value, const RuleContext&) {
        const long index = std::get<long>(value);
        if (!ColorMap::isValidIndex(static_cast<int>(index)))
            return WriteVerdict::refuse((boost::format("Colour index %1% is not valid.") % index).str());
        return WriteVerdict::accept();
    };
}

StyleRule lessThan(const std::string& otherKey, const StyleDatum& otherDefault)
{
    return [=](const StyleDatum& value, const RuleContext& context) {
        const double v = std::get<double>(value);
        const double maximum = otherValue(context, otherKey, otherDefault);
        if (!(v < maximum))
            return WriteVerdict::refuse(
                (boost::format("The minimum (%1%) must be less than the maximum (%2%).") % v % maximum).str());
        return WriteVerdict::accept();
    };
}

StyleRule greaterThan(const std::string& otherKey, const StyleDatum& otherDefault)
{
    return [=](const StyleDatum& value, const RuleContext& context) {
        const double v = std::get<double>(value);
        const double minimum = otherValue(context, otherKey, otherDefault);
        if (!(v > minimum))
            return WriteVerdict::refuse(
                (boost::format("The maximum (%1%) must be greater than the minimum (%2%).") % v % minimum).str());
        return WriteVerdict::accept();
    };
}

} // namespace rules
} // namespace kernel
} // namespace orrery
