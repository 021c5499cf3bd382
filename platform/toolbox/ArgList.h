#pragma once
#include "platform/PlatformExport.h"
#include <map>
#include <string>
#include <variant>
#include <vector>

namespace orrery {
namespace toolbox {

class Set;

// The named arguments of one low-level kernel call. A name appended again
// replaces the earlier argument.
//
// Names the style calls use:
//   "IDs"      path identifiers, ending at -1        (std::vector<long>)
//   "Offset1", "Offset2"  collection member, -1: none (long)
//   "Set"      members a write applies to, or null   (const Set*)
//   "AssignOp" an AssignOp_e                          (long)
//   "IValue"   integer, enum and bool values: long to write, long* to read into
//   "DValue"   double values: double to write, double* to read into
//   "SValue"   string values: std::string to write, std::string* to read into
class ORRERY_PLATFORM_EXPORT ArgList
{
public:
    typedef std::variant<long, long*, double, double*, std::string, std::string*, const Set*, std::vector<long>> Value;

    void appendArbParam(const std::string& name, long value);
    void appendArbParamPtr(const std::string& name, long* value);
    void appendDouble(const std::string& name, double value);
    void appendDoublePtr(const std::string& name, double* value);
    void appendString(const std::string& name, const std::string& value);
    void appendStringPtr(const std::string& name, std::string* value);
    void appendSet(const std::string& name, const Set* set);
    void appendArray(const std::string& name, const std::vector<long>& values);

    // The argument of that name when it holds a T, else null.
    template <typename T>
    const T* find(const std::string& name) const
    {
        const auto it = m_args.find(name);
        return it == m_args.end() ? nullptr : std::get_if<T>(&it->second);
    }
    // A long argument, or fallback when absent or of another kind.
    long longOr(const std::string& name, long fallback) const;

private:
    std::map<std::string, Value> m_args;
};

} // namespace toolbox
} // namespace orrery
