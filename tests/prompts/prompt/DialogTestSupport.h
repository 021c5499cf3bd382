#pragma once
// Shared by the dialog tests: table-driven checks of a layout's contract (object
// names, classes, texts and tab order, as host code and translations rely on
// them), and a fixture for driving dialogs as a user would.
#include <QBoxLayout>
#include <QDialogButtonBox>
#include <QGroupBox>
#include <QLabel>
#include <QLineEdit>
#include <QPointer>
#include <QPushButton>
#include <QRadioButton>
#include <QTest>
#include <gtest/gtest.h>
#include <algorithm>
#include <initializer_list>
#include <vector>
#include "tests/support/TestSupport.h"
#include "tests/support/UserActions.h"

namespace contract {

struct WidgetRow
{
    const char* name;
    const char* className;
    const char* text; // nullptr: not checked
};

inline QString textOf(const QObject& object)
{
    if (auto* label = qobject_cast<const QLabel*>(&object))
        return label->text();
    if (auto* button = qobject_cast<const QAbstractButton*>(&object))
        return button->text();
    if (auto* edit = qobject_cast<const QLineEdit*>(&object))
        return edit->text();
    if (auto* box = qobject_cast<const QGroupBox*>(&object))
        return box->title();
    auto* widget = qobject_cast<const QWidget*>(&object);
    return widget && widget->isWindow() ? widget->windowTitle() : QString();
}

inline void expectWidgets(const QWidget& root, std::initializer_list<WidgetRow> rows)
{
    for (const WidgetRow& row : rows)
    {
        SCOPED_TRACE(row.name);
        const QObject* object = root.objectName() == row.name ? &root : root.findChild<QObject*>(row.name);
        ASSERT_NE(object, nullptr);
        EXPECT_STREQ(object->metaObject()->className(), row.className);
        if (row.text) {
            EXPECT_EQ(textOf(*object), QString::fromUtf8(row.text));
        }
    }
}

// Follows nextInChainFocus from the first name; every later name must come
// next among the named widgets (unnamed focus stops in between are skipped).
inline void expectTabOrder(const QWidget& root, std::initializer_list<const char*> names)
{
    std::vector<QWidget*> expected;
    for (const char* name : names)
    {
        auto* widget = root.findChild<QWidget*>(name);
        ASSERT_NE(widget, nullptr) << name;
        expected.push_back(widget);
    }
    QWidget* current = expected.front();
    for (size_t i = 1; i < expected.size(); ++i)
    {
        QWidget* next = current->nextInFocusChain();
        while (next != expected[i] && next != expected.front() &&
               std::find(expected.begin(), expected.end(), next) == expected.end())
            next = next->nextInFocusChain();
        EXPECT_EQ(next, expected[i]) << "after " << current->objectName().toStdString();
        current = expected[i];
    }
}

} // namespace contract

namespace orrery::dialogs::prompt {
}

namespace dialogtest {

using namespace orrery::dialogs::prompt;
using namespace testsupport;

// Whether any of the dialog's own controls can be used; a dialog that loses its
// relevance keeps itself and its Cancel and Help buttons enabled, but not these.
inline bool contentEnabled(const QWidget& dialog)
{
    for (const QWidget* child : dialog.findChildren<QWidget*>(QString(), Qt::FindDirectChildrenOnly))
        if (!qobject_cast<const QDialogButtonBox*>(child) && child->isEnabled())
            return true;
    return false;
}

inline QPushButton* standard(QWidget& dialog, QDialogButtonBox::StandardButton which)
{
    return dialog.findChild<QDialogButtonBox*>()->button(which);
}

// A clean kernel holding the sample data set, and a parent window for the dialogs.
class DialogTest : public testsupport::SampleKernelTest
{
protected:
    QWidget parent;
};

} // namespace dialogtest
