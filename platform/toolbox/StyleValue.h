#pragma once
#include "platform/PlatformExport.h"
#include <string>
#include "platform/kernel/OrrTypes.h"
#include "platform/toolbox/RawArray.h"
#include "platform/toolbox/StringList.h"

namespace orrery {
namespace toolbox {

class ArgList;
class Set;

// Names one value of the kernel's style state by its path, such as
// "GlobalRGB" / "RGBMode". Each name has a stable identifier in the kernel's
// name registry; the kernel resolves a path from the identifier list it is
// given (the value's own identifiers, any extra names, then -1).
//
// Collection members (e.g. "FieldMap" / "Scatter" / "Show", one per zone) are
// chosen by the first offset, a 1-based member number.
class ORRERY_PLATFORM_EXPORT StyleValue
{
public:
    explicit StyleValue(const StringList& path);
    explicit StyleValue(const char* n1, const char* n2 = nullptr, const char* n3 = nullptr, const char* n4 = nullptr,
                        const char* n5 = nullptr, const char* n6 = nullptr, const char* n7 = nullptr);
    StyleValue(const StyleValue& other);
    // Not assignable: the identifier array cannot be rebuilt in place.
    StyleValue& operator=(const StyleValue&) = delete;
    virtual ~StyleValue() = default;

    const StringList& names() const { return m_names; }
    // One identifier per name of the path.
    const RawArray<long>& macroIDs() const { return m_macroIDs; }

    // Appends the identifiers of the given names, up to the first null, to ids:
    // extra names that continue this value's path. With no names it adds nothing.
    void initMacroIDsfromStyleValueNames(const char* n1, const char* n2, const char* n3, const char* n4, const char* n5,
                                         const char* n6, const char* n7, RawArray<long>& ids) const;

    // Fill args for a read or write of the path in ids at the given collection
    // member (-1: none; no family has a second level yet, so second is carried but
    // unused). A write applies to every member of set when set is given.
    void setupGetValueArgList(const RawArray<long>& ids, long first, long second, ArgList& args) const;
    void setupSetValueArgList(const RawArray<long>& ids, const Set* set, long first, long second, AssignOp_e op,
                              ArgList& args) const;

    // Read or write through prepared args.
    GetValueReturnCode_e getFinalValue(double* value, ArgList& args) const;
    GetValueReturnCode_e getFinalValue(bool* value, ArgList& args) const;
    GetValueReturnCode_e getFinalValue(std::string* value, ArgList& args) const;
    SetValueReturnCode_e setFinalValue(double value, ArgList& args) const;
    SetValueReturnCode_e setFinalValue(bool value, ArgList& args) const;
    SetValueReturnCode_e setFinalValue(const std::string& value, ArgList& args) const;

    static bool returnCodeOk(GetValueReturnCode_e code) { return code == GetValue_Ok; }
    static bool returnCodeOk(SetValueReturnCode_e code) { return code == SetValue_Ok; }

private:
    void assignNames(const StringList& names);

    StringList m_names;
    RawArray<long> m_macroIDs;
};

} // namespace toolbox
} // namespace orrery
