#include "platform/toolbox/ArgList.h"

namespace orrery {
namespace toolbox {

void ArgList::appendArbParam(const std::string& name, long value)
{
    m_args[name] = value;
}

void ArgList::appendArbParamPtr(const std::string& name, long* value)
{
    m_args[name] = value;
}

void ArgList::appendDouble(const std::string& name, double value)
{
    m_args[name] = value;
}

void ArgList::appendDoublePtr(const std::string& name, double* value)
{
    m_args[name] = value;
}

void ArgList::appendString(const std::string& name, const std::string& value)
{
    m_args[name] = value;
}

void ArgList::appendStringPtr(const std::string& name, std::string* value)
{
    m_args[name] = value;
}

void ArgList::appendSet(const std::string& name, const Set* set)
{
    m_args[name] = set;
}

void ArgList::appendArray(const std::string& name, const std::vector<long>& values)
{
    m_args[name] = values;
}

long ArgList::longOr(const std::string& name, long fallback) const
{
    const long* value = find<long>(name);
    return value ? *value : fallback;
}

} // namespace toolbox
} // namespace orrery
