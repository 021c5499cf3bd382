#pragma once
#include <string>
#include <type_traits>

namespace orrery::sdk::ui::dialogs::propertybindings::models {

/// One row of an option table: the text shown and the value it stands for.
template <typename V>
struct OptionRow
{
    std::string text; ///< untranslated; translated in context "OptionTables" when shown
    V value;          ///< what choosing the row stores
};

/// Tables of host enumerations hold their values as int.
template <typename T, bool = std::is_enum<T>::value>
struct OptionValue
{
    typedef T type; ///< how a table holds a T
};
/// Enumerations are held as int.
template <typename T>
struct OptionValue<T, true>
{
    typedef int type; ///< int, for every enumeration
};

} // namespace orrery::sdk::ui::dialogs::propertybindings::models
