// The text field observable and the scientific spin box, driven by the keyboard.
#include <QDialog>
#include <QLineEdit>
#include <QSignalSpy>
#include <gtest/gtest.h>

#include "platform/qwidgetobservable/QTextFieldObservable.h"
#include "platform/ui/QScientificSpinBox.h"
#include "tests/support/UserActions.h"

using namespace qwidgetobservable;

TEST(QTextFieldObservableTest, ReturnCommitsOnceAndARefusedOrFailingCommitKeepsTheDialogOpen)
{
    QDialog dialog;
    QLineEdit field(&dialog);
    QPushButton ok(QStringLiteral("OK"), &dialog);
    ok.move(0, 80);
    ok.setDefault(true);
    QObject::connect(&ok, &QPushButton::clicked, &dialog, &QDialog::accept);
    int commits = 0;
    bool accept = false;
    auto observable = std::make_unique<QTextFieldObservable>(field, [&] {
        ++commits;
        return accept;
    });
    QSignalSpy accepted(&dialog, &QDialog::accepted);
    user::open(dialog);
    field.setFocus();
    QTest::keyClicks(&field, QStringLiteral("abc"));
    QTest::keyClick(&field, Qt::Key_Return);
    EXPECT_EQ(commits, 1);
    EXPECT_EQ(accepted.count(), 0);
    accept = true;
    QTest::keyClick(&field, Qt::Key_Enter);
    EXPECT_EQ(commits, 2);
    EXPECT_EQ(accepted.count(), 1);

    // A commit that throws is contained and counts as refused.
    observable =
        std::make_unique<QTextFieldObservable>(field, []() -> bool { throw std::runtime_error("kernel gone"); });
    user::open(dialog);
    field.setFocus();
    QTest::keyClick(&field, Qt::Key_Return);
    EXPECT_EQ(accepted.count(), 1);
}

TEST(HostSpinBoxesTest, ScientificSpinBoxTellsFinishedUnfinishedAndImpossibleText)
{
    orrery::ui::QScientificSpinBox spin;
    spin.setDecimals(15);
    spin.setValue(0.1);
    EXPECT_EQ(spin.text(), QStringLiteral("0.1")); // plain when it reads well, as 1.5e-07 otherwise
    int position = 0;
    const std::vector<std::pair<QString, QValidator::State>> cases = {
        {QStringLiteral("2.5e-3"), QValidator::Acceptable}, {QStringLiteral("-"), QValidator::Intermediate},
        {QStringLiteral("1e"), QValidator::Intermediate},   {QStringLiteral(""), QValidator::Intermediate},
        {QStringLiteral("1x"), QValidator::Invalid},        {QStringLiteral("1,5"), QValidator::Invalid}};
    for (auto [text, state] : cases)
        EXPECT_EQ(spin.validate(text, position), state) << text.toStdString();
    spin.setRange(0.0, 1.0);
    QString text = QStringLiteral("2");
    EXPECT_EQ(spin.validate(text, position), QValidator::Intermediate);
    EXPECT_DOUBLE_EQ(spin.value(), 0.1);
}
