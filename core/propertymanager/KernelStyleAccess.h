#pragma once
#include <cmath>
#include <string>
#include "platform/kernel/OrrTypes.h"
#include "platform/toolbox/ArgList.h"
#include "platform/toolbox/CheckedStyleValue.h"

namespace orrery {
namespace sdk {
namespace styleproperties {

/// Reads and writes one style value of type T through prepared argument lists.
/// Integers and enumerations travel as raw "IValue" arguments; doubles, bools
/// and strings use the typed final-value calls.
template <typename T>
struct KernelStyleAccess
{
    /// Reads into \a value (0 on failure); false when the kernel refused the read.
    static bool read(const toolbox::CheckedStyleValue& style, toolbox::ArgList& args, T& value)
    {
        long raw = 0;
        args.appendArbParamPtr("IValue", &raw);
        const bool ok = toolbox::StyleValue::returnCodeOk(style.styleGetLowLevel(args));
        value = static_cast<T>(ok ? raw : 0);
        return ok;
    }
    /// Writes \a value; the kernel's return code.
    static SetValueReturnCode_e write(const toolbox::CheckedStyleValue& style, toolbox::ArgList& args, const T& value)
    {
        args.appendArbParam("IValue", static_cast<long>(value));
        args.appendDouble("DValue", static_cast<double>(value));
        return style.styleSetLowLevel(args);
    }
};

/// Access through the kernel's typed final-value calls, for doubles, bools and strings.
template <typename T>
struct KernelFinalValueAccess
{
    /// Reads into \a value, left unchanged on failure; false when the kernel refused the read.
    static bool read(const toolbox::CheckedStyleValue& style, toolbox::ArgList& args, T& value)
    {
        T local{};
        const bool ok = toolbox::StyleValue::returnCodeOk(style.getFinalValue(&local, args));
        if (ok)
            value = local;
        return ok;
    }
    /// Writes \a value; the kernel's return code.
    static SetValueReturnCode_e write(const toolbox::CheckedStyleValue& style, toolbox::ArgList& args, const T& value)
    {
        return style.setFinalValue(value, args);
    }
};

template <>
struct KernelStyleAccess<double> : KernelFinalValueAccess<double>
{};
template <>
struct KernelStyleAccess<bool> : KernelFinalValueAccess<bool>
{};
template <>
struct KernelStyleAccess<std::string> : KernelFinalValueAccess<std::string>
{};

/// Whether a value read from the kernel is the one already cached. Unlike the
/// change test of setValue, two NaNs count as the same here: otherwise a NaN in
/// the kernel would be announced as news on every read.
template <typename T>
inline bool sameKernelValue(const T& a, const T& b)
{
    return a == b;
}
/// Equal values, or both NaN.
template <>
inline bool sameKernelValue<double>(const double& a, const double& b)
{
    return a == b || (std::isnan(a) && std::isnan(b));
}

} // namespace styleproperties
} // namespace sdk
} // namespace orrery
