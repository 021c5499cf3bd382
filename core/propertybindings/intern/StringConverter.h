#pragma once
#include "core/CoreExport.h"
#include <string>
#include <typeinfo>

#include "platform/common/InvalidArgumentException.h"

namespace orrery::sdk::ui::dialogs::propertybindings::intern {

/// Strict text-to-value conversion for text field bindings. Leading blanks fail
/// (the text is tidied beforehand); trailing characters are not examined, since
/// the field's validator has screened the text.
class ORRERY_CORE_EXPORT StringConverter
{
public:
    /// Converts \a text, which the converter keeps a copy of.
    explicit StringConverter(const std::string& text) : m_text(text) {}
    virtual ~StringConverter() = default;

    /// Reads the text into \a value: numbers in the C locale, a string as it is.
    /// Throws InvalidArgumentException when the text is no such number.
    ///@{
    virtual void convert(short& value);
    virtual void convert(int& value);
    virtual void convert(long& value);
    virtual void convert(double& value);
    virtual void convert(std::string& value);
    ///@}

    /// Any other type has no text form here.
    template <typename T>
    void convert(T&)
    {
        throw InvalidArgumentException("Unsupported type for conversion: " + typeName(typeid(T)));
    }

private:
    template <typename T>
    void convert_impl(T& value);
    static std::string typeName(const std::type_info& type);

    const std::string m_text;
};

} // namespace orrery::sdk::ui::dialogs::propertybindings::intern
