#pragma once
// Shared by the dialog tests: a fixture for driving dialogs as a user would.
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

namespace orrery::dialogs::prompt {}

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
