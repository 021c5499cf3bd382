#include <stdexcept>
#include <vector>
#include <QAction>
#include <QLineEdit>
#include <QSignalSpy>
#include <QVBoxLayout>
#include "framework/HelpViewer.h"
#include "framework/LaunchHelpAction.h"
#include "framework/QtDialogAbstract.h"
#include "core/propertymanager/PropertyDependentRelevance.h"
#include "tests/support/TestSupport.h"
#include "tests/support/UserActions.h"

using orrery::Property;
using orrery::dialogs::common::HelpViewer;
using orrery::dialogs::common::LaunchHelpAction;
using orrery::dialogs::common::QtDialogAbstract;
using orrery::sdk::ui::propertymanager::PropertyDependentRelevance;

namespace {

// A dialog with a button box that the layout either connects itself or not.
class ProbeDialog : public QtDialogAbstract
{
public:
    ProbeDialog(QWidget& parent, RelevancePtr relevance, bool layoutConnectsButtons)
        : QtDialogAbstract(parent, std::move(relevance)), box(new QDialogButtonBox(this))
    {
        box->setStandardButtons(QDialogButtonBox::Ok | QDialogButtonBox::Cancel);
        (new QVBoxLayout(this))->addWidget(box);
        setModal(false);
        if (layoutConnectsButtons) {
            connect(box, &QDialogButtonBox::accepted, this, &QDialog::accept);
            connect(box, &QDialogButtonBox::rejected, this, &QDialog::reject);
        }
    }
    void launch() override { QtDialogAbstract::launch(); }
    void drop() override { QtDialogAbstract::drop(); }
    void accept() override
    {
        ++acceptCalls;
        QtDialogAbstract::accept();
    }

    QDialogButtonBox* box;
    int acceptCalls = 0;
};

class QtDialogAbstractTest : public ::testing::Test
{
protected:
    QWidget parent;
};

TEST_F(QtDialogAbstractTest, OkAndCancelEndTheDialogOnceWhetherOrNotTheLayoutConnectedThem)
{
    for (bool layoutConnects : {false, true}) {
        SCOPED_TRACE(layoutConnects ? "layout connects" : "frame connects");
        ProbeDialog dialog(parent, nullptr, layoutConnects);
        QSignalSpy accepted(&dialog, &QDialog::accepted);
        dialog.show();
        user::press(dialog, QDialogButtonBox::Ok);
        EXPECT_EQ(dialog.acceptCalls, 1); // the dialog's own accept() is reached, once
        EXPECT_EQ(accepted.count(), 1);
        EXPECT_EQ(dialog.result(), QDialog::Accepted);
        EXPECT_FALSE(dialog.isVisible());

        dialog.show(); // wiring is not repeated on a second show
        user::press(dialog, QDialogButtonBox::Cancel);
        EXPECT_EQ(dialog.result(), QDialog::Rejected);
        EXPECT_FALSE(dialog.isVisible());
        dialog.show();
        user::press(dialog, QDialogButtonBox::Ok);
        EXPECT_EQ(accepted.count(), 2);
    }
}

TEST_F(QtDialogAbstractTest, AnIrrelevantDialogCannotBeLaunchedAndAnOpenOneKeepsOnlyItsWayOutUntilRelevantAgain)
{
    auto relevant = boost::make_shared<Property<bool>>(false);
    {
        ProbeDialog dialog(parent, boost::make_shared<PropertyDependentRelevance<bool>>(relevant, true), false);
        auto* field = new QLineEdit(&dialog);
        auto* ownOff = new QLineEdit(&dialog); // disabled for the dialog's own reasons
        ownOff->setEnabled(false);
        dialog.setHelpAction(new QAction(&dialog));
        QPushButton* ok = dialog.box->button(QDialogButtonBox::Ok);
        QPushButton* cancel = dialog.box->button(QDialogButtonBox::Cancel);
        dialog.launch();
        EXPECT_FALSE(dialog.isVisible());
        EXPECT_EQ(dialog.result(), QDialog::Rejected);

        relevant->setValue(true);
        dialog.launch();
        ASSERT_TRUE(dialog.isVisible());
        EXPECT_TRUE(field->isEnabled());
        EXPECT_TRUE(ok->isEnabled());

        relevant->setValue(false);
        EXPECT_FALSE(field->isEnabled());
        EXPECT_FALSE(ok->isEnabled());
        EXPECT_TRUE(cancel->isEnabled());
        ASSERT_NE(dialog.box->button(QDialogButtonBox::Help), nullptr);
        EXPECT_TRUE(dialog.box->button(QDialogButtonBox::Help)->isEnabled());
        dialog.accept(); // e.g. a keyboard accept racing the change: not taken as an answer
        EXPECT_EQ(dialog.result(), QDialog::Rejected);

        // Escape and Cancel still close it.
        dialog.show();
        QTest::keyClick(&dialog, Qt::Key_Escape);
        EXPECT_FALSE(dialog.isVisible());
        dialog.show();
        user::click(cancel);
        EXPECT_FALSE(dialog.isVisible());

        dialog.show();
        relevant->setValue(false); // no change: nothing is held twice
        relevant->setValue(true);
        EXPECT_TRUE(field->isEnabled());
        EXPECT_TRUE(ok->isEnabled());
        EXPECT_FALSE(ownOff->isEnabled());
    }
    relevant->setValue(false); // the relevance outlives the dialog and must not reach it

    // An empty relevance means always relevant.
    ProbeDialog always(parent, nullptr, false);
    EXPECT_TRUE(always.isRelevant());
    always.launch();
    EXPECT_TRUE(always.isVisible());
}

TEST_F(QtDialogAbstractTest, OpenWithReturnsAtOnceAndCallsItsFunctionOnceContainingWhatItThrows)
{
    testsupport::Kernel::captureMessageBoxes();
    auto relevant = boost::make_shared<Property<bool>>(false);
    ProbeDialog dialog(parent, boost::make_shared<PropertyDependentRelevance<bool>>(relevant, true), false);
    dialog.setModal(true);
    std::vector<int> results;
    dialog.openWith([&](int result) { results.push_back(result); });
    EXPECT_FALSE(dialog.isVisible()) << "not relevant: nothing shown";
    EXPECT_EQ(results, std::vector<int>{QDialog::Rejected});

    relevant->setValue(true);
    dialog.openWith([&](int result) { results.push_back(result); });
    ASSERT_TRUE(dialog.isVisible());
    EXPECT_EQ(dialog.windowModality(), Qt::WindowModal);
    user::press(dialog, QDialogButtonBox::Ok);
    dialog.show();
    user::press(dialog, QDialogButtonBox::Ok);
    EXPECT_EQ(results, (std::vector<int>{QDialog::Rejected, QDialog::Accepted})) << "one call per openWith";

    dialog.openWith([](int) { throw std::runtime_error("host slipped"); });
    user::press(dialog, QDialogButtonBox::Cancel);
    testsupport::runIdle();
    ASSERT_EQ(testsupport::messageTexts().size(), 1u);
    EXPECT_NE(testsupport::messageTexts()[0].find("host slipped"), std::string::npos);
}

TEST_F(QtDialogAbstractTest, HelpOpensTheNamedPageFromTheHelpButtonAndFromF1)
{
    ProbeDialog dialog(parent, nullptr, false);
    dialog.show();
    EXPECT_EQ(dialog.box->button(QDialogButtonBox::Help), nullptr); // none without a help action
    dialog.setHelpAction(new LaunchHelpAction("scatter_size_font.html", dialog));
    QPointer<QAction> first = dialog.helpAction();
    dialog.setHelpAction(new LaunchHelpAction("anchor_alignment.html", dialog)); // replaces the first
    EXPECT_TRUE(first.isNull());
    EXPECT_EQ(dialog.box->buttons().size(), 3);
    EXPECT_EQ(HelpViewer::of(dialog), nullptr);

    user::press(dialog, QDialogButtonBox::Help);
    HelpViewer* viewer = HelpViewer::of(dialog);
    ASSERT_NE(viewer, nullptr);
    EXPECT_TRUE(viewer->isVisible());
    EXPECT_EQ(viewer->page(), "anchor_alignment.html");
    viewer->close();

    QApplication::setActiveWindow(&dialog);
    dialog.box->button(QDialogButtonBox::Ok)->setFocus();
    QTest::keyClick(&dialog, Qt::Key_F1);
    EXPECT_TRUE(viewer->isVisible());
    EXPECT_EQ(dialog.findChildren<HelpViewer*>().size(), 1); // one viewer per dialog

    dialog.reject(); // help belongs to the run of the dialog
    EXPECT_FALSE(viewer->isVisible());

    // An unknown page shows a notice instead of failing.
    viewer = HelpViewer::showPage("no_such_page.html", &parent);
    EXPECT_FALSE(viewer->pageFound());
    EXPECT_TRUE(viewer->text().contains("no_such_page.html"));
    EXPECT_EQ(HelpViewer::showPage("", &parent), viewer);
    EXPECT_FALSE(viewer->pageFound());
}

TEST_F(QtDialogAbstractTest, DropClosesTheDialogAsRejectedAndDestroysIt)
{
    QPointer<ProbeDialog> dialog = new ProbeDialog(parent, nullptr, false);
    dialog->launch();
    QSignalSpy rejected(dialog.data(), &QDialog::rejected);
    dialog->drop();
    EXPECT_EQ(rejected.count(), 1);
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    EXPECT_TRUE(dialog.isNull());
}

} // namespace
