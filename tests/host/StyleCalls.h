#pragma once
#include <optional>
#include <string>
#include <utility>
#include <vector>
#include "host/kernel/OrrUtilHost.h"
#include "platform/toolbox/ArgList.h"
#include "platform/toolbox/CheckedStyleValue.h"
#include "platform/toolbox/Set.h"
#include "tests/support/TestSupport.h"

// Style reads and writes made the way the library makes them: identifier list,
// prepared argument list, low-level or final call.
namespace stylecalls {

using namespace testsupport;
using orrery::RawArray;
using orrery::toolbox::ArgList;
using orrery::toolbox::CheckedStyleValue;
using orrery::toolbox::Set;
using orrery::toolbox::StringList;
using orrery::toolbox::StyleValue;

// Runs call on the argument list of a read (or a write) of style, prepared from its
// identifier list: its own names, those the library adds, then -1.
template <typename Style, typename Call>
auto access(const Style& style, bool write, long first, const Set* set, AssignOp_e op, Call call)
{
    RawArray<long> ids;
    ids.append(style.macroIDs());
    style.initMacroIDsfromStyleValueNames(nullptr, nullptr, nullptr, nullptr, nullptr, nullptr, nullptr, ids);
    ids.push_back(-1);
    ArgList args;
    if (write)
        style.setupSetValueArgList(ids, set, first, -1, op, args);
    else
        style.setupGetValueArgList(ids, first, -1, args);
    return call(args);
}

inline SetValueReturnCode_e writeLong(const StringList& path, long value, long first = -1, const Set* set = nullptr,
                                      AssignOp_e op = AssignOp_Equals)
{
    const CheckedStyleValue style{StyleValue(path)};
    return access(style, true, first, set, op, [&](ArgList& args) {
        args.appendArbParam("IValue", value);
        args.appendDouble("DValue", static_cast<double>(value));
        return style.styleSetLowLevel(args);
    });
}

inline std::optional<long> readLong(const StringList& path, long first = -1)
{
    const CheckedStyleValue style{StyleValue(path)};
    long value = 0;
    return access(style, false, first, nullptr, AssignOp_Equals, [&](ArgList& args) {
        args.appendArbParamPtr("IValue", &value);
        return StyleValue::returnCodeOk(style.styleGetLowLevel(args)) ? std::optional<long>(value) : std::nullopt;
    });
}

template <typename T>
SetValueReturnCode_e writeFinal(const StringList& path, const T& value, AssignOp_e op = AssignOp_Equals)
{
    const StyleValue style(path);
    return access(style, true, -1, nullptr, op, [&](ArgList& args) { return style.setFinalValue(value, args); });
}

template <typename T>
std::optional<T> readFinal(const StringList& path)
{
    const StyleValue style(path);
    T value{};
    return access(style, false, -1, nullptr, AssignOp_Equals, [&](ArgList& args) {
        return StyleValue::returnCodeOk(style.getFinalValue(&value, args)) ? std::optional<T>(value) : std::nullopt;
    });
}

// The kernel's text for the last refused write, empty when there is none.
inline std::string lastError()
{
    char* text = OrrUtilStyleGetLastErrorString();
    const std::string copy = text ? text : "";
    OrrUtilStringDealloc(&text);
    return copy;
}

} // namespace stylecalls
