// Every dialog, in English and in German, as a keyboard or screen-reader user
// meets it: each control named, each mnemonic unique and landing on its
// control, each control reachable by Tab, no text cut off.
#include <QAbstractItemView>
#include <QAbstractSlider>
#include <QAbstractSpinBox>
#include <QAccessible>
#include <QComboBox>
#include <QDialogButtonBox>
#include <QGroupBox>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QRadioButton>
#include <QScrollBar>
#include <QTest>
#include <QTimer>
#include <functional>
#include <map>
#include <set>
#include "demo/tour/TextFit.h"
#include "demo/common/Translations.h"
#include "tests/support/EveryDialog.h"
#include "tests/support/TestSupport.h"

using orrery::dialogs::common::QtDialogAbstract;
using testsupport::Kernel;

namespace {

bool shown(const QWidget& widget, const QWidget& dialog)
{
    return widget.isVisibleTo(&dialog);
}

// Controls a user operates; the editors inside spin and combo boxes and the
// scroll bars of views belong to their owners.
bool interactive(const QWidget& widget)
{
    if (qobject_cast<const QScrollBar*>(&widget))
        return false;
    if (qobject_cast<const QLineEdit*>(&widget))
        return !qobject_cast<QAbstractSpinBox*>(widget.parentWidget())
               && !qobject_cast<QComboBox*>(widget.parentWidget());
    return qobject_cast<const QAbstractButton*>(&widget) || qobject_cast<const QComboBox*>(&widget)
           || qobject_cast<const QAbstractSpinBox*>(&widget) || qobject_cast<const QAbstractItemView*>(&widget)
           || qobject_cast<const QAbstractSlider*>(&widget);
}

QString describe(const QWidget& widget)
{
    QString text;
    if (auto* button = qobject_cast<const QAbstractButton*>(&widget))
        text = button->text();
    else if (auto* label = qobject_cast<const QLabel*>(&widget))
        text = label->text();
    return QString("%1 %2 \"%3\"").arg(widget.metaObject()->className(), widget.objectName(), text);
}

QString accessibleName(QWidget& widget)
{
    QAccessibleInterface* face = QAccessible::queryAccessibleInterface(&widget);
    return face ? face->text(QAccessible::Name).trimmed() : QString();
}

QChar mnemonicOf(const QString& text)
{
    for (int i = 0; i + 1 < text.size(); ++i)
        if (text[i] == '&') {
            if (text[i + 1] != '&')
                return text[i + 1].toUpper();
            ++i;
        }
    return QChar();
}

void settle()
{
    for (int i = 0; i < 3; ++i) {
        QCoreApplication::processEvents();
        testsupport::runIdle();
    }
}

class EveryDialog : public ::testing::TestWithParam<const char*>
{
protected:
    void SetUp() override
    {
        Kernel::resetKernel();
        Kernel::loadSampleDataSet();
        Kernel::setPlotType(PlotType_ThreeD);
        Kernel::captureMessageBoxes();
        const QStringList problems = Translations::install(*QCoreApplication::instance(), GetParam());
        ASSERT_TRUE(problems.isEmpty()) << problems.join('\n').toStdString();
    }

    // Opens each dialog as its host does, runs check while it is up, and
    // cancels it.
    void forEachDialog(const std::function<void(QtDialogAbstract&)>& check)
    {
        for (const everydialog::Opener& opener : everydialog::openers()) {
            SCOPED_TRACE(opener.name);
            QtDialogAbstract* dialog = opener.open(parent);
            ASSERT_TRUE(dialog->isRelevant());
            bool checked = false;
            QTimer::singleShot(0, dialog, [&] {
                settle();
                check(*dialog);
                checked = true;
                if (dialog->isVisible())
                    dialog->reject();
            });
            dialog->launch();
            while (!checked)
                QCoreApplication::processEvents();
            delete dialog; // the variable dialogs share one instance, rebuilt for each kind
        }
    }

    QWidget parent;
};

} // namespace

INSTANTIATE_TEST_SUITE_P(Languages, EveryDialog, ::testing::Values("en", "de"),
                         [](const ::testing::TestParamInfo<const char*>& info) { return std::string(info.param); });

TEST_P(EveryDialog, NamesEveryControlForAssistiveTechnology)
{
    forEachDialog([](QtDialogAbstract& dialog) {
        for (QWidget* widget : dialog.findChildren<QWidget*>())
            if (shown(*widget, dialog) && interactive(*widget)) {
                EXPECT_FALSE(accessibleName(*widget).isEmpty()) << "unnamed: " << describe(*widget).toStdString();
            }
    });
}

TEST_P(EveryDialog, GivesEachMnemonicToOneControlAndLandsOnIt)
{
    forEachDialog([](QtDialogAbstract& dialog) {
        std::map<QChar, QStringList> owners;
        std::vector<std::pair<QChar, QWidget*>> labelled;
        for (QWidget* widget : dialog.findChildren<QWidget*>()) {
            if (!shown(*widget, dialog))
                continue;
            QChar key;
            if (auto* label = qobject_cast<QLabel*>(widget)) {
                key = mnemonicOf(label->text());
                if (!key.isNull()) {
                    EXPECT_TRUE(label->buddy() && shown(*label->buddy(), dialog))
                        << "mnemonic without a control: " << describe(*label).toStdString();
                    if (label->buddy()) {
                        labelled.emplace_back(key, label->buddy());
                    }
                }
            } else if (auto* button = qobject_cast<QAbstractButton*>(widget))
                key = mnemonicOf(button->text());
            else if (auto* box = qobject_cast<QGroupBox*>(widget))
                key = box->isCheckable() ? mnemonicOf(box->title()) : QChar();
            if (!key.isNull())
                owners[key] << describe(*widget);
        }
        for (const auto& [key, widgets] : owners)
            EXPECT_EQ(widgets.size(), 1) << "Alt+" << QString(key).toStdString() << " is shared by "
                                         << widgets.join(", ").toStdString();

        dialog.activateWindow();
        ASSERT_TRUE(QTest::qWaitForWindowActive(&dialog));
        for (const auto& [key, buddy] : labelled) {
            if (!buddy->isEnabled())
                continue;
            // Letters and Latin-1 letters are their own key codes.
            QTest::keyClick(&dialog, Qt::Key(key.unicode()), Qt::AltModifier);
            EXPECT_EQ(QApplication::focusWidget(), buddy->focusProxy() ? buddy->focusProxy() : buddy)
                << "Alt+" << QString(key).toStdString() << " does not reach " << describe(*buddy).toStdString();
        }
    });
}

TEST_P(EveryDialog, ReachesEveryControlByTab)
{
    forEachDialog([](QtDialogAbstract& dialog) {
        dialog.activateWindow();
        ASSERT_TRUE(QTest::qWaitForWindowActive(&dialog));
        // From the first control in the dialog's focus order, as a user who
        // clicked into it would start.
        QWidget* start = dialog.nextInFocusChain();
        while (start != &dialog
               && !(start->isEnabled() && start->isVisibleTo(&dialog) && (start->focusPolicy() & Qt::TabFocus)
                    && !start->focusProxy()))
            start = start->nextInFocusChain();
        ASSERT_NE(start, &dialog) << "nothing takes the focus";
        start->setFocus(Qt::TabFocusReason);
        // One round of Tab visits each control once and comes back to the start.
        std::set<QWidget*> reached;
        bool wrapped = false;
        for (int i = 0; i < 200 && !wrapped; ++i) {
            QWidget* current = dialog.focusWidget();
            ASSERT_NE(current, nullptr) << "Tab lost the focus";
            ASSERT_TRUE(reached.insert(current).second) << "Tab comes back to " << describe(*current).toStdString()
                                                        << " before returning to " << describe(*start).toStdString();
            QTest::keyClick(current, Qt::Key_Tab);
            wrapped = dialog.focusWidget() == start;
        }
        EXPECT_TRUE(wrapped) << "Tab never returns to " << describe(*start).toStdString();
        for (QWidget* widget : dialog.findChildren<QWidget*>()) {
            if (!shown(*widget, dialog) || !widget->isEnabled() || !interactive(*widget) || reached.count(widget))
                continue;
            // Arrow keys move within a group of radio buttons; Tab enters the group.
            if (auto* radio = qobject_cast<QRadioButton*>(widget); radio && radio->autoExclusive()) {
                bool groupReached = false;
                for (QRadioButton* sibling : radio->parentWidget()->findChildren<QRadioButton*>())
                    groupReached |= sibling->parentWidget() == radio->parentWidget() && reached.count(sibling);
                if (groupReached)
                    continue;
            }
            ADD_FAILURE() << "Tab never reaches " << describe(*widget).toStdString();
        }
    });
}

TEST_P(EveryDialog, ShowsEveryTextWhole)
{
    forEachDialog([](QtDialogAbstract& dialog) {
        const QStringList clipped = TextFit::clippedTexts(dialog);
        EXPECT_TRUE(clipped.isEmpty()) << clipped.join('\n').toStdString();
    });
}

TEST_P(EveryDialog, CancelsOnEscapeAndAcceptsOnReturnWhereItHasOK)
{
    forEachDialog([](QtDialogAbstract& dialog) {
        dialog.setResult(QDialog::Accepted);
        QTest::keyClick(dialog.focusWidget() ? dialog.focusWidget() : &dialog, Qt::Key_Escape);
        EXPECT_FALSE(dialog.isVisible()) << "Escape left it open";
        EXPECT_EQ(dialog.result(), QDialog::Rejected);
    });
    forEachDialog([](QtDialogAbstract& dialog) {
        auto* buttons = dialog.findChild<QDialogButtonBox*>();
        QPushButton* ok = buttons ? buttons->button(QDialogButtonBox::Ok) : nullptr;
        if (!ok || !ok->isEnabled())
            return;
        QTest::keyClick(dialog.focusWidget() ? dialog.focusWidget() : &dialog, Qt::Key_Return);
        EXPECT_FALSE(dialog.isVisible()) << "Return left it open";
        EXPECT_EQ(dialog.result(), QDialog::Accepted);
    });
}
