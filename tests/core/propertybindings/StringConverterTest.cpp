// Text to value: what converts, what fails and with which message.
#include <iomanip>
#include <sstream>
#include <gtest/gtest.h>

#include "platform/kernel/OrrTypes.h"
#include "core/property/Property.h"
#include "core/propertybindings/intern/StringConverter.h"
#include "core/propertybindings/intern/StringMassager.h"

using orrery::InvalidArgumentException;
using orrery::sdk::ui::dialogs::propertybindings::intern::StringConverter;
using orrery::sdk::ui::dialogs::propertybindings::intern::StringMassager;

namespace {

template <typename T>
std::string shown(const T& value)
{
    std::ostringstream out;
    out << std::setprecision(17) << value;
    return out.str();
}

// The converted value as text, or the failure's message.
template <typename T>
std::string conversionOf(const std::string& text)
{
    T value{};
    try {
        StringConverter(text).convert(value);
    } catch (const InvalidArgumentException& e) {
        return e.what();
    }
    return shown(value);
}

} // namespace

TEST(StringConverterTest, ClassicNumbersAndTextConvertOthersFailNamingTheTextAndTheType)
{
    const std::pair<std::string, std::string> cases[] = {
        {conversionOf<int>("12abc"), "12"}, // trailing characters are left
        {conversionOf<long>("2147483648"), "2147483648"},
        {conversionOf<short>("-32768"), "-32768"},
        {conversionOf<double>("1.5e-07"), shown(1.5e-07)},
        {conversionOf<double>("3.5 "), shown(3.5)},
        {conversionOf<double>("1,5"), shown(1.0)},
        {conversionOf<std::string>("  a b\xc3\xa9 "), "  a b\xc3\xa9 "}, // byte for byte
        {conversionOf<int>("abc"), "Cannot convert \"abc\" to i"},
        {conversionOf<int>(""), "Cannot convert \"\" to i"},
        {conversionOf<short>(""), "Cannot convert \"\" to s"},
        {conversionOf<long>("x"), "Cannot convert \"x\" to l"},
        {conversionOf<double>(""), "Cannot convert \"\" to d"},
        {conversionOf<int>(" 5"), "Cannot convert \" 5\" to i"},
        {conversionOf<int>("2147483648"), "Cannot convert \"2147483648\" to i"},
        {conversionOf<short>("40000"), "Cannot convert \"40000\" to s"},
        {conversionOf<RGBMode_e>("1"), "Unsupported type for conversion: 9RGBMode_e"},
    };
    for (const auto& c : cases)
        EXPECT_EQ(c.first, c.second);
}

TEST(StringMassagerTest, NumbersLoseSurroundingBlanksTextKeepsThem)
{
    orrery::Property<double> number;
    orrery::Property<std::string> text;
    QString forNumber = QStringLiteral(" \t2.5  ");
    QString forText = QStringLiteral(" x ");
    StringMassager().prepareText(number, forNumber);
    StringMassager().prepareText(text, forText);
    EXPECT_EQ(forNumber, QStringLiteral("2.5"));
    EXPECT_EQ(forText, QStringLiteral(" x "));
}
