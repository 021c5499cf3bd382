#include "core/propertybindings/intern/StringConverter.h"

#include <locale>
#include <sstream>

namespace orrery::sdk::ui::dialogs::propertybindings::intern {

void StringConverter::convert(short& value)
{
    convert_impl(value);
}
void StringConverter::convert(int& value)
{
    convert_impl(value);
}
void StringConverter::convert(long& value)
{
    convert_impl(value);
}
void StringConverter::convert(double& value)
{
    convert_impl(value);
}
void StringConverter::convert(std::string& value)
{
    value = m_text;
}

template <typename T>
void StringConverter::convert_impl(T& value)
{
    std::stringstream stream(m_text, std::ios_base::in | std::ios_base::out);
    stream.imbue(std::locale::classic());
    stream.unsetf(std::ios_base::skipws);
    stream >> value;
    if (stream.fail() || stream.bad())
        throw InvalidArgumentException("Cannot convert \"" + m_text + "\" to " + typeName(typeid(T)));
}

std::string StringConverter::typeName(const std::type_info& type)
{
    const char* name = type.name();
    return name[0] == '*' ? name + 1 : name;
}

} // namespace orrery::sdk::ui::dialogs::propertybindings::intern
