#pragma once
#include <optional>
#include <string>
#include <utility>
#include <vector>
#include "platform/kernel/OrrUtil.h"
#include "platform/toolbox/ArgList.h"
#include "platform/toolbox/CheckedStyleValue.h"
#include "platform/toolbox/Set.h"
#include "support/TestSupport.h"

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

inline void fillIDs(const StyleValue& value, RawArray<long>& ids)
{
    ids.append(value.macroIDs());
    value.initMacroIDsfromStyleValueNames(nullptr, nullptr, nullptr, nullptr, nullptr, nullptr, nullptr, ids);
    ids.push_back(-1);
}

inline SetValueReturnCode_e writeLong(const StringList& path, long value, long first = -1,
                                      const Set* set = nullptr, AssignOp_e op = AssignOp_Equals)
{
    const CheckedStyleValue style{StyleValue(path)};
    RawArray<long> ids;
    fillIDs(style, ids);
    ArgList args;
    style.setupSetValueArgList(ids, set, first, -1, op, args);
    args.appendArbParam("IValue", value);
    args.appendDouble("DValue", static_cast<double>(value));
    return style.styleSetLowLevel(args);
}

inline std::optional<long> readLong(const StringList& path, long first = -1)
{
    const CheckedStyleValue style{StyleValue(path)};
    RawArray<long> ids;
    fillIDs(style, ids);
    ArgList args;
    style.setupGetValueArgList(ids, first, -1, args);
    long value = 0;
    args.appendArbParamPtr("IValue", &value);
    if (!StyleValue::returnCodeOk(style.styleGetLowLevel(args)))
        return std::nullopt;
    return value;
}

template <typename T>
SetValueReturnCode_e writeFinal(const StringList& path, const T& value, AssignOp_e op = AssignOp_Equals)
{
    const StyleValue style(path);
    RawArray<long> ids;
    fillIDs(style, ids);
    ArgList args;
    style.setupSetValueArgList(ids, nullptr, -1, -1, op, args);
    return style.setFinalValue(value, args);
}

template <typename T>
std::optional<T> readFinal(const StringList& path)
{
    const StyleValue style(path);
    RawArray<long> ids;
    fillIDs(style, ids);
    ArgList args;
    style.setupGetValueArgList(ids, -1, -1, args);
    T value{};
    if (!StyleValue::returnCodeOk(style.getFinalValue(&value, args)))
        return std::nullopt;
    return value;
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
