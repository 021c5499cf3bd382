// Line edits committed by Return or by leaving them, typed into as a user would.
#include <QDoubleValidator>
#include <QLineEdit>
#include <QRegularExpressionValidator>

#include "propertybindings/BindingTestSupport.h"
#include "propertybindings/TextFieldPropertyBinding.h"

using namespace bindingtest;
using namespace orrery;
using namespace orrery::sdk::ui::dialogs::propertybindings;

namespace {

class TextFieldBindingTest : public BindingFixture
{
protected:
    TextFieldBindingTest() : field(&window), other(&window) { other.move(0, 40); }

    void retype(const QString& text)
    {
        field.setFocus();
        field.selectAll();
        if (text.isEmpty())
            QTest::keyClick(&field, Qt::Key_Delete);
        else
            QTest::keyClicks(&field, text);
    }
    void commitWithReturn(const QString& text)
    {
        retype(text);
        QTest::keyClick(&field, Qt::Key_Return);
    }

    QLineEdit field;
    QLineEdit other;
    boost::shared_ptr<Property<double>> number = boost::make_shared<Property<double>>(0.5);
};

typedef TextFieldPropertyBinding<double> NumberBinding;
const QString marker = QStringLiteral("OrreryBindingInstalledValidator");

} // namespace

TEST_F(TextFieldBindingTest, ShowsTheValueInItsDefaultFormat)
{
    number->setValue(1234567);
    NumberBinding binding(&field, number);
    EXPECT_EQ(field.text(), QStringLiteral("1.23457e+06"));
    ASSERT_NE(field.validator(), nullptr);
    EXPECT_EQ(field.validator()->objectName(), marker);
}

TEST_F(TextFieldBindingTest, ReturnCommitsTheTypedValueOnce)
{
    ASSERT_TRUE(showWindow());
    NumberBinding binding(&field, number);
    Emissions<double> emissions(*number);
    retype(QStringLiteral("2.75"));
    EXPECT_EQ(emissions.count(), 0u);
    QTest::keyClick(&field, Qt::Key_Return);
    EXPECT_EQ(emissions.values, std::vector<double>({2.75}));
    runIdle();
    EXPECT_EQ(field.text(), QStringLiteral("2.75"));
    EXPECT_EQ(emissions.count(), 1u);
}

TEST_F(TextFieldBindingTest, LeavingAnEditedFieldCommitsItAndLeavingAgainDoesNot)
{
    ASSERT_TRUE(showWindow());
    NumberBinding binding(&field, number);
    Emissions<double> emissions(*number);
    retype(QStringLiteral("1e-3"));
    other.setFocus();
    EXPECT_EQ(emissions.values, std::vector<double>({0.001}));
    EXPECT_EQ(field.text(), QStringLiteral("0.001"));
    field.setFocus();
    other.setFocus();
    EXPECT_EQ(emissions.count(), 1u);
}

TEST_F(TextFieldBindingTest, TheValueAlreadyHeldIsRewrittenInCanonicalFormWithoutAStore)
{
    ASSERT_TRUE(showWindow());
    NumberBinding binding(&field, number);
    Emissions<double> emissions(*number);
    commitWithReturn(QStringLiteral("0.50"));
    EXPECT_EQ(field.text(), QStringLiteral("0.5"));
    EXPECT_EQ(emissions.count(), 0u);
}

TEST_F(TextFieldBindingTest, BlanksAroundANumberAreDropped)
{
    ASSERT_TRUE(showWindow());
    NumberBinding binding(&field, number);
    field.setText(QStringLiteral(" 4 "));
    EXPECT_TRUE(binding.editingFinished());
    EXPECT_DOUBLE_EQ(number->getValue(), 4.0);
}

TEST_F(TextFieldBindingTest, UnfinishedTextIsRestoredSilentlyAndKeepsTheFocus)
{
    ASSERT_TRUE(showWindow());
    NumberBinding binding(&field, number);
    Emissions<double> emissions(*number);
    for (const QString& unfinished : {QString(), QStringLiteral("-"), QStringLiteral("1e")}) {
        commitWithReturn(unfinished);
        EXPECT_EQ(field.text(), QStringLiteral("0.5")) << unfinished.toStdString();
    }
    retype(QStringLiteral("-"));
    other.setFocus();
    EXPECT_EQ(field.text(), QStringLiteral("0.5"));
    EXPECT_TRUE(field.hasFocus());
    EXPECT_TRUE(messageTexts().empty());
    EXPECT_EQ(emissions.count(), 0u);
}

TEST_F(TextFieldBindingTest, AValueTheValidatorRefusesIsReportedOnceAndRestored)
{
    ASSERT_TRUE(showWindow());
    auto refusing = refusingProperty<double>(0.5, 7.0, "The size must be below 7.");
    NumberBinding binding(&field, refusing);
    commitWithReturn(QStringLiteral("7"));
    EXPECT_EQ(messageTexts(), std::vector<std::string>({"The size must be below 7."}));
    EXPECT_EQ(field.text(), QStringLiteral("0.5"));
    EXPECT_TRUE(field.hasFocus());
    EXPECT_DOUBLE_EQ(refusing->getValue(), 0.5);
}

TEST_F(TextFieldBindingTest, ARefusalWithoutTextRestoresTheFieldWithoutAMessage)
{
    ASSERT_TRUE(showWindow());
    auto refusing = refusingProperty<double>(0.5, 7.0, "");
    NumberBinding binding(&field, refusing);
    commitWithReturn(QStringLiteral("7"));
    EXPECT_TRUE(messageTexts().empty());
    EXPECT_EQ(field.text(), QStringLiteral("0.5"));
}

TEST_F(TextFieldBindingTest, APropertyChangeRewritesTheFieldWithoutACommit)
{
    NumberBinding binding(&field, number, BindingInterface::WidgetUpdateMode_Immediate);
    Emissions<double> emissions(*number);
    number->setValue(3.25);
    EXPECT_EQ(field.text(), QStringLiteral("3.25"));
    EXPECT_EQ(emissions.count(), 1u);
}

TEST_F(TextFieldBindingTest, ALaterBindingReplacesOnlyAValidatorABindingInstalled)
{
    auto first = std::make_unique<NumberBinding>(&field, number);
    const QValidator* installed = field.validator();
    first.reset();
    NumberBinding second(&field, number);
    EXPECT_NE(field.validator(), installed);
    EXPECT_EQ(field.validator()->objectName(), marker);

    QLineEdit own(&window);
    QDoubleValidator* dialogs = new QDoubleValidator(0.0, 1.0, 3, &own);
    own.setValidator(dialogs);
    NumberBinding onOwn(&own, number);
    EXPECT_EQ(own.validator(), dialogs);
}

TEST_F(TextFieldBindingTest, TheDialogsOwnValidatorScreensTheText)
{
    ASSERT_TRUE(showWindow());
    field.setValidator(new QDoubleValidator(0.0, 1.0, 3, &field));
    NumberBinding binding(&field, number);
    field.setText(QStringLiteral("5"));
    EXPECT_FALSE(binding.editingFinished());
    EXPECT_EQ(field.text(), QStringLiteral("0.5"));
}

TEST_F(TextFieldBindingTest, AStringPropertyTakesTheTextAsTyped)
{
    ASSERT_TRUE(showWindow());
    auto character = refusingProperty<std::string>("A", "", "Selected character cannot be empty.");
    TextFieldPropertyBinding<std::string> binding(&field, character);
    EXPECT_EQ(field.validator(), nullptr);
    commitWithReturn(QStringLiteral(" "));
    EXPECT_EQ(character->getValue(), " ");
    commitWithReturn(QString());
    EXPECT_EQ(messageTexts(), std::vector<std::string>({"Selected character cannot be empty."}));
    EXPECT_EQ(field.text(), QStringLiteral(" "));
    EXPECT_EQ(character->getValue(), " ");
}
