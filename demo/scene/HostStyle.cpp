#include "demo/scene/HostStyle.h"

#include <algorithm>

#include "host/kernel/OrrUtilHost.h"
#include "platform/sdk/AppLock.h"
#include "platform/toolbox/ArgList.h"
#include "platform/toolbox/CheckedStyleValue.h"

using orrery::RawArray;
using orrery::sdk::AppLock;
using orrery::toolbox::ArgList;
using orrery::toolbox::CheckedStyleValue;
using orrery::toolbox::StringList;
using orrery::toolbox::StyleValue;

namespace {

void identifiers(const StyleValue& value, RawArray<long>& ids)
{
    ids.append(value.macroIDs());
    ids.push_back(-1);
}

bool finish(SetValueReturnCode_e code, std::string* error)
{
    if (code == SetValue_Ok)
        return true;
    if (error) {
        char* text = OrrUtilStyleGetLastErrorString();
        *error = text ? text : "The kernel declined the change.";
        OrrUtilStringDealloc(&text);
    }
    return false;
}

} // namespace

StringList HostStyle::path(const std::string& slashed)
{
    StringList names;
    size_t start = 0;
    while (start <= slashed.size()) {
        const size_t slash = std::min(slashed.find('/', start), slashed.size());
        names.append(slashed.substr(start, slash - start));
        start = slash + 1;
    }
    return names;
}

long HostStyle::integer(const std::string& slashed, long member, long fallback)
{
    const CheckedStyleValue value{StyleValue(path(slashed))};
    RawArray<long> ids;
    identifiers(value, ids);
    ArgList args;
    value.setupGetValueArgList(ids, member, -1, args);
    long raw = 0;
    args.appendArbParamPtr("IValue", &raw);
    return StyleValue::returnCodeOk(value.styleGetLowLevel(args)) ? raw : fallback;
}

namespace {

// A typed style value, or the fallback when the kernel cannot give one.
template <typename T>
T finalValue(const StringList& stylePath, long member, T fallback)
{
    const StyleValue value(stylePath);
    RawArray<long> ids;
    identifiers(value, ids);
    ArgList args;
    value.setupGetValueArgList(ids, member, -1, args);
    T result = fallback;
    return StyleValue::returnCodeOk(value.getFinalValue(&result, args)) ? result : fallback;
}

} // namespace

double HostStyle::number(const std::string& slashed, long member, double fallback)
{
    return finalValue(path(slashed), member, fallback);
}

bool HostStyle::flag(const std::string& slashed, long member, bool fallback)
{
    return finalValue(path(slashed), member, fallback);
}

std::string HostStyle::text(const std::string& slashed, long member)
{
    return finalValue(path(slashed), member, std::string());
}

bool HostStyle::setInteger(const std::string& slashed, long number, std::string* error, long member)
{
    AppLock lock(AppLock::ImplicitMacroRecording_Allow);
    const CheckedStyleValue value{StyleValue(path(slashed))};
    RawArray<long> ids;
    identifiers(value, ids);
    ArgList args;
    value.setupSetValueArgList(ids, nullptr, member, -1, AssignOp_Equals, args);
    args.appendArbParam("IValue", number);
    return finish(value.styleSetLowLevel(args), error);
}

namespace {

template <typename T>
bool setFinal(const std::string& slashed, const T& to, std::string* error, long member)
{
    AppLock lock(AppLock::ImplicitMacroRecording_Allow);
    const StyleValue value(HostStyle::path(slashed));
    RawArray<long> ids;
    identifiers(value, ids);
    ArgList args;
    value.setupSetValueArgList(ids, nullptr, member, -1, AssignOp_Equals, args);
    return finish(value.setFinalValue(to, args), error);
}

} // namespace

bool HostStyle::setFlag(const std::string& slashed, bool on, std::string* error, long member)
{
    return setFinal(slashed, on, error, member);
}

bool HostStyle::setText(const std::string& slashed, const std::string& text, std::string* error)
{
    return setFinal(slashed, text, error, -1);
}

bool HostStyle::inOneStep(const char* stepName, const std::function<bool(std::string& error)>& writes,
                          std::string* error)
{
    AppLock lock(AppLock::ImplicitMacroRecording_Allow);
    OrrUtilUndoStateBeginNamed(0, stepName);
    std::string refusal;
    const bool ok = writes(refusal);
    OrrUtilUndoStateEnd(!ok, true);
    if (!ok && error)
        *error = refusal;
    return ok;
}
