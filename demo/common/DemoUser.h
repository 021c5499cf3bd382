#pragma once
#include <QDialogButtonBox>
#include <QString>

class QAbstractButton;
class QComboBox;
class QDialog;
class QListView;
class QWidget;

// What a user does to a dialog, done with ordinary events so that the scripted
// tour runs the same code paths as a person at the keyboard.
class DemoUser
{
public:
    // Focuses the field, selects its text and types over it.
    static void typeInto(QWidget& field, const QString& text);
    // Moves the focus on, which commits a field that was being edited.
    static void moveFocusTo(QWidget& next);
    static void click(QAbstractButton& button);
    // Selects the row showing text, as a click would.
    static void selectRow(QListView& list, const QString& text);
    // Opens the drop-down list and picks the entry showing text, as a click would.
    static void choose(QComboBox& combo, const QString& text);
    static void press(QDialog& dialog, QDialogButtonBox::StandardButton button);

private:
    static void key(QWidget& target, int key, Qt::KeyboardModifiers modifiers, const QString& text = QString());
};
