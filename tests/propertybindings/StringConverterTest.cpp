// Text to value: what converts, what fails and with which message.
#include <string>
#include <gtest/gtest.h>

#include "platform/kernel/OrrTypes.h"
#include "property/Property.h"
#include "propertybindings/intern/StringConverter.h"
#include "propertybindings/intern/StringMassager.h"

using orrery::InvalidArgumentException;
using orrery::sdk::ui::dialogs::propertybindings::intern::StringConverter;
using orrery::sdk::ui::dialogs::propertybindings::intern::StringMassager;

namespace {

template <typename T>
std::string failureOf(const std::string& text)
{
    T value{};
    try {
        StringConverter(text).convert(value);
    } catch (const InvalidArgumentException& e) {
        return e.what();
    }
    return "converted";
}

} // namespace

TEST(StringConverterTest, NumbersConvertInTheClassicFormLeavingTrailingCharacters)
{
    int i = 0;
    long l = 0;
    short s = 0;
    double d = 0;
    StringConverter("12abc").convert(i);
    StringConverter("2147483648").convert(l);
    StringConverter("-32768").convert(s);
    StringConverter("1.5e-07").convert(d);
    EXPECT_EQ(i, 12);
    EXPECT_EQ(l, 2147483648L);
    EXPECT_EQ(s, -32768);
    EXPECT_DOUBLE_EQ(d, 1.5e-07);
    StringConverter("3.5 ").convert(d);
    EXPECT_DOUBLE_EQ(d, 3.5);
}

TEST(StringConverterTest, FailuresNameTheTextAndTheType)
{
    const struct
    {
        std::string failure;
        std::string expected;
    } cases[] = {
        {failureOf<int>("abc"), "Cannot convert \"abc\" to i"},
        {failureOf<int>(""), "Cannot convert \"\" to i"},
        {failureOf<short>(""), "Cannot convert \"\" to s"},
        {failureOf<long>("x"), "Cannot convert \"x\" to l"},
        {failureOf<double>(""), "Cannot convert \"\" to d"},
        {failureOf<int>(" 5"), "Cannot convert \" 5\" to i"},
        {failureOf<int>("2147483648"), "Cannot convert \"2147483648\" to i"},
        {failureOf<short>("40000"), "Cannot convert \"40000\" to s"},
        {failureOf<double>("1,5"), "converted"},
        {failureOf<RGBMode_e>("1"), "Unsupported type for conversion: 9RGBMode_e"},
    };
    for (const auto& c : cases)
        EXPECT_EQ(c.failure, c.expected);
}

TEST(StringConverterTest, TextIsTakenByteForByte)
{
    std::string value;
    StringConverter("  a b\xc3\xa9 ").convert(value);
    EXPECT_EQ(value, "  a b\xc3\xa9 ");
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
