// The main window as a keyboard user and a small screen meet it: every menu's
// entries picked by keys of their own, every shortcut on one action, the
// export asking for the picture's size, the window within the screen.
#include <QAction>
#include <QLabel>
#include <QLineEdit>
#include <QMenu>
#include <QMenuBar>
#include <QScreen>
#include <QSpinBox>
#include <QSet>
#include "demo/launchers/AxisTitlesDialog.h"
#include "demo/window/MainWindow.h"
#include "demo/common/Mnemonics.h"
#include "demo/window/PlotExportDialog.h"
#include "demo/tour/TextFit.h"
#include "tests/demo/InLanguage.h"
#include "tests/support/TestSupport.h"

namespace {

class MainWindowMenus : public testsupport::SampleKernelTest, public testing::WithParamInterface<const char*>
{
protected:
    InLanguage language{GetParam()};
};

// Every menu under the bar, filled as when it opens.
void walk(QMenu& menu, QStringList& problems)
{
    Q_EMIT menu.aboutToShow();
    QSet<QChar> keys;
    for (QAction* action : menu.actions()) {
        const QChar key = Mnemonics::of(action->text());
        if (!key.isNull() && keys.contains(key))
            problems << QString("%1: \"%2\" repeats the key %3").arg(menu.title(), action->text(), key);
        keys.insert(key);
        if (menu.objectName() == "dialogsMenu" && key.isNull())
            problems << QString("%1: \"%2\" has no key").arg(menu.title(), action->text());
        if (action->menu())
            walk(*action->menu(), problems);
    }
}

TEST_P(MainWindowMenus, GiveEveryEntryItsOwnKeyAndEveryShortcutOneAction)
{
    MainWindow window;
    QStringList problems;
    QSet<QChar> titles;
    for (QAction* top : window.menuBar()->actions()) {
        const QChar key = Mnemonics::of(top->text());
        if (key.isNull() || titles.contains(key))
            problems << QString("the menu bar's \"%1\" has no key of its own").arg(top->text());
        titles.insert(key);
        walk(*top->menu(), problems);
    }
    EXPECT_TRUE(problems.isEmpty()) << problems.join('\n').toStdString();

    QMap<QString, QString> shortcuts;
    for (const QAction* action : window.findChildren<QAction*>()) {
        const QString keys = action->shortcut().toString();
        if (keys.isEmpty())
            continue;
        EXPECT_FALSE(shortcuts.contains(keys)) << keys.toStdString() << " on " << action->text().toStdString()
                                               << " and " << shortcuts.value(keys).toStdString();
        shortcuts.insert(keys, action->text());
    }
    const QAction* exportPlot = window.findChild<QAction*>("fileExportPlot");
    ASSERT_NE(exportPlot, nullptr);
    EXPECT_EQ(QKeySequence(Qt::CTRL | Qt::Key_E), exportPlot->shortcut());
}

TEST_P(MainWindowMenus, OpenDialogsOfTheirOwnWithEveryTextWholeAndEveryFieldNamed)
{
    AxisTitlesDialog titles;
    PlotExportDialog size(QSize(800, 600));
    for (QDialog* dialog : std::initializer_list<QDialog*>{&titles, &size}) {
        dialog->show();
        EXPECT_TRUE(TextFit::clippedTexts(*dialog).isEmpty())
            << TextFit::clippedTexts(*dialog).join('\n').toStdString();
        for (const QLabel* label : dialog->findChildren<QLabel*>())
            EXPECT_NE(label->buddy(), nullptr) << label->text().toStdString();
        for (const QWidget* field : dialog->findChildren<QWidget*>(QString(), Qt::FindDirectChildrenOnly)) {
            const bool entered = qobject_cast<const QLineEdit*>(field) || qobject_cast<const QSpinBox*>(field);
            EXPECT_FALSE(entered && field->accessibleName().isEmpty()) << field->objectName().toStdString();
        }
        dialog->hide();
    }
}

INSTANTIATE_TEST_SUITE_P(Languages, MainWindowMenus, testing::Values("en", "de"),
                         [](const testing::TestParamInfo<const char*>& info) { return std::string(info.param); });

TEST(MainWindowSize, FitsTheScreensRoomAtAnyScale)
{
    MainWindow window;
    const QSize room = window.screen()->availableGeometry().size();
    EXPECT_LE(window.width(), room.width());
    EXPECT_LE(window.height(), room.height());
}

TEST(PlotExportSize, StartsAtTheViewsSizeAndGivesTheResolutionAsARatio)
{
    PlotExportDialog dialog(QSize(640, 480));
    EXPECT_EQ(QSize(640, 480), dialog.plotSize());
    EXPECT_DOUBLE_EQ(1.0, dialog.ratio());
    dialog.findChild<QSpinBox*>("exportWidth")->setValue(1200);
    dialog.findChild<QSpinBox*>("exportDpi")->setValue(300);
    EXPECT_EQ(QSize(1200, 480), dialog.plotSize());
    EXPECT_DOUBLE_EQ(300.0 / 96.0, dialog.ratio());
    // Sizes no picture can have are not offered.
    dialog.findChild<QSpinBox*>("exportHeight")->setValue(0);
    EXPECT_GT(dialog.plotSize().height(), 0);
}

} // namespace
