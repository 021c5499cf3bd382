#include "demo/common/DemoUser.h"

#include <QAbstractButton>
#include <QAbstractItemView>
#include <QApplication>
#include <QComboBox>
#include <QDialog>
#include <QItemSelectionModel>
#include <QKeyEvent>
#include <QListView>
#include <QPushButton>

void DemoUser::key(QWidget& target, int key, Qt::KeyboardModifiers modifiers, const QString& text)
{
    QKeyEvent press(QEvent::KeyPress, key, modifiers, text);
    QCoreApplication::sendEvent(&target, &press);
    QKeyEvent release(QEvent::KeyRelease, key, modifiers, text);
    QCoreApplication::sendEvent(&target, &release);
}

void DemoUser::typeInto(QWidget& field, const QString& text)
{
    field.window()->activateWindow();
    field.setFocus(Qt::TabFocusReason);
    key(field, Qt::Key_A, Qt::ControlModifier);
    if (text.isEmpty())
        key(field, Qt::Key_Delete, Qt::NoModifier);
    for (const QChar c : text)
        key(field, c.toUpper().unicode(), Qt::NoModifier, QString(c));
}

void DemoUser::moveFocusTo(QWidget& next)
{
    next.setFocus(Qt::TabFocusReason);
}

void DemoUser::click(QAbstractButton& button)
{
    button.click();
}

void DemoUser::selectRow(QListView& list, const QString& text)
{
    QAbstractItemModel* model = list.model();
    const QModelIndexList found = model->match(model->index(0, 0), Qt::DisplayRole, text, 1, Qt::MatchExactly);
    if (!found.isEmpty())
        list.selectionModel()->select(found.front(), QItemSelectionModel::ClearAndSelect);
}

void DemoUser::choose(QComboBox& combo, const QString& text)
{
    const int row = combo.findText(text);
    if (row < 0)
        return;
    combo.showPopup();
    // The list's own selection is what a click or Return confirms.
    combo.view()->setCurrentIndex(combo.model()->index(row, 0));
    key(*combo.view(), Qt::Key_Return, Qt::NoModifier);
}

void DemoUser::press(QDialog& dialog, QDialogButtonBox::StandardButton button)
{
    if (auto* box = dialog.findChild<QDialogButtonBox*>())
        if (QPushButton* pushButton = box->button(button))
            pushButton->click();
}
