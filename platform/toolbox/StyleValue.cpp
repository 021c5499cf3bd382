#include "platform/toolbox/StyleValue.h"
#include <unordered_map>
#include "platform/common/HostCall.h"
#include "platform/kernel/OrrUtil.h"
#include "platform/toolbox/ArgList.h"

namespace orrery {
namespace toolbox {

namespace {

StringList namesUpToNull(std::initializer_list<const char*> names)
{
    StringList list;
    for (const char* name : names) {
        if (!name)
            break;
        list.append(name);
    }
    return list;
}

// Names no style value: a host refuses a path that holds it.
const long UnknownNameID = -2;

// A host keeps one identifier per name for the life of the process, so each name
// is asked once; a failed question is asked again next time.
long nameID(const std::string& name)
{
    static std::unordered_map<std::string, long> known;
    const auto it = known.find(name);
    if (it != known.end())
        return it->second;
    const long id = ORRERY_HOST_CALL(UnknownNameID, OrrUtilStyleNameGetID(name.c_str()));
    if (id != UnknownNameID)
        known.emplace(name, id);
    return id;
}

GetValueReturnCode_e get(const ArgList& args)
{
    return ORRERY_HOST_CALL(GetValue_BadArguments, OrrUtilStyleGetValue(&args));
}

SetValueReturnCode_e set(const ArgList& args)
{
    return ORRERY_HOST_CALL(SetValue_BadArguments, OrrUtilStyleSetValue(&args));
}

void setupPathArgs(const RawArray<long>& ids, long first, long second, ArgList& args)
{
    args.appendArray("IDs", std::vector<long>(ids.data(), ids.data() + ids.size()));
    args.appendArbParam("Offset1", first);
    args.appendArbParam("Offset2", second);
}

} // namespace

StyleValue::StyleValue(const StringList& path)
{
    assignNames(path);
}

StyleValue::StyleValue(const char* n1, const char* n2, const char* n3, const char* n4, const char* n5, const char* n6,
                       const char* n7)
{
    assignNames(namesUpToNull({n1, n2, n3, n4, n5, n6, n7}));
}

StyleValue::StyleValue(const StyleValue& other)
{
    assignNames(other.m_names);
}

void StyleValue::assignNames(const StringList& names)
{
    m_names = names;
    for (const std::string& name : names)
        m_macroIDs.push_back(nameID(name));
}

void StyleValue::initMacroIDsfromStyleValueNames(const char* n1, const char* n2, const char* n3, const char* n4,
                                                 const char* n5, const char* n6, const char* n7,
                                                 RawArray<long>& ids) const
{
    for (const std::string& name : namesUpToNull({n1, n2, n3, n4, n5, n6, n7}))
        ids.push_back(nameID(name));
}

void StyleValue::setupGetValueArgList(const RawArray<long>& ids, long first, long second, ArgList& args) const
{
    setupPathArgs(ids, first, second, args);
}

void StyleValue::setupSetValueArgList(const RawArray<long>& ids, const Set* set, long first, long second, AssignOp_e op,
                                      ArgList& args) const
{
    setupPathArgs(ids, first, second, args);
    args.appendSet("Set", set);
    args.appendArbParam("AssignOp", op);
}

GetValueReturnCode_e StyleValue::getFinalValue(double* value, ArgList& args) const
{
    args.appendDoublePtr("DValue", value);
    return get(args);
}

// The kernel hands bools over as integers; the local must not outlive the call,
// so the caller's list is left without a pointer to it.
GetValueReturnCode_e StyleValue::getFinalValue(bool* value, ArgList& args) const
{
    long integer = 0;
    ArgList call = args;
    call.appendArbParamPtr("IValue", &integer);
    const GetValueReturnCode_e code = get(call);
    if (returnCodeOk(code))
        *value = integer != 0;
    return code;
}

GetValueReturnCode_e StyleValue::getFinalValue(std::string* value, ArgList& args) const
{
    args.appendStringPtr("SValue", value);
    return get(args);
}

SetValueReturnCode_e StyleValue::setFinalValue(double value, ArgList& args) const
{
    args.appendDouble("DValue", value);
    return set(args);
}

SetValueReturnCode_e StyleValue::setFinalValue(bool value, ArgList& args) const
{
    args.appendArbParam("IValue", value ? 1 : 0);
    return set(args);
}

SetValueReturnCode_e StyleValue::setFinalValue(const std::string& value, ArgList& args) const
{
    args.appendString("SValue", value);
    return set(args);
}

} // namespace toolbox
} // namespace orrery
