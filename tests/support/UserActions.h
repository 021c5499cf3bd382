#pragma once
// What a user does to dialogs and widgets, for tests that drive them offscreen.
#include <QAbstractButton>
#include <QAbstractItemView>
#include <QApplication>
#include <QDialogButtonBox>
#include <QPushButton>
#include <QRadioButton>
#include <QStyle>
#include <QStyleOptionButton>
#include <QTest>

namespace user {

inline void click(QAbstractButton* button)
{
    QTest::mouseClick(button, Qt::LeftButton);
}

// A radio button reacts only on its indicator and text; its indicator is
// where a user aims, whatever the button's width.
inline void click(QRadioButton* button)
{
    QStyleOptionButton option;
    option.initFrom(button);
    const QRect indicator = button->style()->subElementRect(QStyle::SE_RadioButtonIndicator, &option, button);
    QTest::mouseClick(button, Qt::LeftButton, Qt::NoModifier, indicator.center());
}

inline void press(QWidget& dialog, QDialogButtonBox::StandardButton which)
{
    click(dialog.findChild<QDialogButtonBox*>()->button(which));
}

// Shows the dialog as the active window, so that focus changes behave as on a desktop.
inline void open(QWidget& dialog)
{
    dialog.show();
    QApplication::setActiveWindow(&dialog);
}

// Puts the focus into a field and replaces its whole text by typing.
inline void type(QWidget& field, const QString& text)
{
    field.setFocus(Qt::TabFocusReason);
    QTest::keyClick(&field, Qt::Key_A, Qt::ControlModifier);
    if (text.isEmpty())
        QTest::keyClick(&field, Qt::Key_Delete);
    else
        QTest::keyClicks(&field, text);
}

// Types into a field, then leaves it for the next one.
inline void retype(QWidget& field, const QString& text, QWidget& next)
{
    type(field, text);
    next.setFocus(Qt::TabFocusReason);
}

// Types into a field, then presses Return.
inline void typeAndReturn(QWidget& field, const QString& text)
{
    type(field, text);
    QTest::keyClick(&field, Qt::Key_Return);
}

inline void clickRow(QAbstractItemView& view, int row)
{
    QTest::mouseClick(view.viewport(), Qt::LeftButton, Qt::NoModifier,
                      view.visualRect(view.model()->index(row, 0)).center());
}

} // namespace user
