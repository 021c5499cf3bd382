#pragma once
#include <string>
#include <type_traits>

namespace orrery::sdk::ui::dialogs::propertybindings::models {

/// One row of an option table: the text shown and the value it stands for.
template <typename V>
struct OptionRow
{
    std::string text;
    V value;
};

/// Tables of host enumerations hold their values as int.
template <typename T, bool = std::is_enum<T>::value>
struct OptionValue
{
    typedef T type;
};
template <typename T>
struct OptionValue<T, true>
{
    typedef int type;
};

} // namespace orrery::sdk::ui::dialogs::propertybindings::models
