// Line edits committed by Return or by leaving them, typed into as a user would.
#include <cmath>
#include <limits>
#include <QDialog>
#include <QDoubleValidator>
#include <QLineEdit>
#include <QPushButton>

#include "tests/core/propertybindings/BindingTestSupport.h"
#include "core/propertybindings/TextFieldPropertyBinding.h"

using namespace bindingtest;

namespace {

class TextFieldBindingTest : public BindingFixture
{
protected:
    TextFieldBindingTest() : field(&window), other(&window) { other.move(0, 40); }
    void SetUp() override
    {
        BindingFixture::SetUp();
        ASSERT_TRUE(showWindow());
    }

    QLineEdit field;
    QLineEdit other;
    boost::shared_ptr<Property<double>> number = boost::make_shared<Property<double>>(0.5);
};

typedef TextFieldPropertyBinding<double> NumberBinding;
const QString marker = QStringLiteral("OrreryBindingInstalledValidator");

} // namespace

TEST_F(TextFieldBindingTest, ShowsTheValueInCanonicalFormAndRewritesItWithoutAStore)
{
    number->setValue(1234567);
    NumberBinding binding(&field, number, BindingInterface::WidgetUpdateMode_Immediate);
    EXPECT_EQ(field.text(), QStringLiteral("1.23457e+06"));
    ASSERT_NE(field.validator(), nullptr);
    EXPECT_EQ(field.validator()->objectName(), marker);

    Emissions<double> emissions(*number);
    number->setValue(3.25);
    EXPECT_EQ(field.text(), QStringLiteral("3.25"));
    user::typeAndReturn(field, QStringLiteral("3.250")); // the value already held
    EXPECT_EQ(field.text(), QStringLiteral("3.25"));
    EXPECT_EQ(emissions.count(), 1u);
    field.setText(QStringLiteral(" 4 ")); // blanks around a number are dropped
    EXPECT_TRUE(binding.editingFinished());
    EXPECT_DOUBLE_EQ(number->getValue(), 4.0);

    // A string property takes the text as typed, blanks included, without a validator.
    auto text = boost::make_shared<Property<std::string>>("A");
    TextFieldPropertyBinding<std::string> textBinding(&other, text);
    EXPECT_EQ(other.validator(), nullptr);
    user::typeAndReturn(other, QStringLiteral(" "));
    EXPECT_EQ(text->getValue(), " ");
}

TEST_F(TextFieldBindingTest, ReturnOrLeavingAnEditedFieldCommitsTheTypedValueOnce)
{
    NumberBinding binding(&field, number);
    Emissions<double> emissions(*number);
    user::type(field, QStringLiteral("2.75"));
    EXPECT_EQ(emissions.count(), 0u);
    QTest::keyClick(&field, Qt::Key_Return);
    EXPECT_EQ(emissions.values, std::vector<double>({2.75}));
    runIdle();
    EXPECT_EQ(field.text(), QStringLiteral("2.75"));
    EXPECT_EQ(emissions.count(), 1u);

    user::retype(field, QStringLiteral("1e-3"), other);
    EXPECT_EQ(emissions.values, std::vector<double>({2.75, 0.001}));
    EXPECT_EQ(field.text(), QStringLiteral("0.001"));
    field.setFocus();
    other.setFocus();
    EXPECT_EQ(emissions.count(), 2u);
}

TEST_F(TextFieldBindingTest, UnfinishedTextIsRestoredSilentlyAndKeepsTheFocus)
{
    NumberBinding binding(&field, number);
    Emissions<double> emissions(*number);
    for (const QString& unfinished : {QString(), QStringLiteral("-"), QStringLiteral("1e")}) {
        user::typeAndReturn(field, unfinished);
        EXPECT_EQ(field.text(), QStringLiteral("0.5")) << unfinished.toStdString();
    }
    user::retype(field, QStringLiteral("-"), other);
    EXPECT_EQ(field.text(), QStringLiteral("0.5"));
    EXPECT_TRUE(field.hasFocus());
    EXPECT_TRUE(messageTexts().empty());
    EXPECT_EQ(emissions.count(), 0u);
}

TEST_F(TextFieldBindingTest, AValueTheValidatorRefusesIsReportedOnceAndRestored)
{
    auto refusing = refusingProperty<double>(0.5, 7.0, "The size must be below 7.");
    NumberBinding binding(&field, refusing);
    user::typeAndReturn(field, QStringLiteral("7"));
    EXPECT_EQ(messageTexts(), std::vector<std::string>({"The size must be below 7."}));
    EXPECT_EQ(field.text(), QStringLiteral("0.5"));
    EXPECT_TRUE(field.hasFocus());
    EXPECT_DOUBLE_EQ(refusing->getValue(), 0.5);

    // A refusal without a text restores the field without a message.
    auto silent = refusingProperty<double>(0.5, 7.0, "");
    NumberBinding otherBinding(&other, silent);
    user::typeAndReturn(other, QStringLiteral("7"));
    EXPECT_EQ(messageTexts().size(), 1u);
    EXPECT_EQ(other.text(), QStringLiteral("0.5"));
}

TEST_F(TextFieldBindingTest, ALaterBindingReplacesOnlyAValidatorABindingInstalled)
{
    auto first = std::make_unique<NumberBinding>(&field, number);
    const QValidator* installed = field.validator();
    first.reset();
    NumberBinding second(&field, number);
    EXPECT_NE(field.validator(), installed);
    EXPECT_EQ(field.validator()->objectName(), marker);

    // The dialog's own validator is kept and screens the text.
    QDoubleValidator* dialogs = new QDoubleValidator(0.0, 1.0, 3, &other);
    other.setValidator(dialogs);
    NumberBinding onOwn(&other, number);
    EXPECT_EQ(other.validator(), dialogs);
    other.setText(QStringLiteral("5"));
    EXPECT_FALSE(onOwn.editingFinished());
    EXPECT_EQ(other.text(), QStringLiteral("0.5"));
}

TEST_F(TextFieldBindingTest, AnUntouchedFieldNeverRewritesTheValueNorBlocksTheDefaultButton)
{
    // Return in a field the user did not edit keeps the full value, not the shown rounding.
    number->setValue(1234567);
    NumberBinding binding(&field, number);
    Emissions<double> emissions(*number);
    field.setFocus();
    QTest::keyClick(&field, Qt::Key_Return);
    EXPECT_TRUE(binding.editingFinished());
    EXPECT_DOUBLE_EQ(number->getValue(), 1234567.0);
    EXPECT_EQ(emissions.count(), 0u);
    // An edit is still an edit, even one back to the shown text after typing.
    user::typeAndReturn(field, QStringLiteral("1234567"));
    EXPECT_EQ(emissions.count(), 0u); // the same value
    user::typeAndReturn(field, QStringLiteral("7"));
    EXPECT_EQ(emissions.values, std::vector<double>({7.0}));

    // A value no edit can produce lets Return through to the dialog's default button.
    QDialog dialog(&window);
    QLineEdit* inDialog = new QLineEdit(&dialog);
    QPushButton* ok = new QPushButton(QStringLiteral("OK"), &dialog);
    ok->move(0, 40);
    ok->setDefault(true);
    QObject::connect(ok, &QPushButton::clicked, &dialog, &QDialog::accept);
    auto infinite = boost::make_shared<Property<double>>(std::numeric_limits<double>::infinity());
    NumberBinding infiniteBinding(inDialog, infinite);
    EXPECT_EQ(inDialog->text(), QStringLiteral("inf"));
    user::open(dialog);
    ASSERT_TRUE(QTest::qWaitForWindowActive(&dialog));
    inDialog->setFocus();
    QTest::keyClick(inDialog, Qt::Key_Return);
    EXPECT_EQ(dialog.result(), QDialog::Accepted);
    EXPECT_FALSE(dialog.isVisible());
    EXPECT_TRUE(std::isinf(infinite->getValue()));
}
