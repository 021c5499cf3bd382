#include <QTimer>
#include <QToolButton>
#include <boost/make_shared.hpp>
#include "tests/support/TestSupport.h"
#include "tests/support/UserActions.h"
#include "core/propertymanager/KernelProperty.h"
#include "host/kernel/OrrUtilHost.h"
#include "prompts/prompt/ColorChooserDialog.h"
#include "prompts/propertybindings/ColorButtonPropertyBinding.h"

using namespace testsupport;
using orrery::Property;
using orrery::dialogs::prompt::ColorChooserDialog;
using orrery::sdk::ui::dialogs::propertybindings::ColorButtonPropertyBinding;

namespace {

class ColorButtonPropertyBindingTest : public SampleKernelTest
{
protected:
    QColor swatchColor() const
    {
        const QImage image = button.icon().pixmap(12, 12).toImage();
        return image.pixelColor(6, 6);
    }
    bool showsMultiIcon() const
    {
        return button.icon().pixmap(16, 16).toImage()
               == QIcon(ColorChooserDialog::multiColorIconPath()).pixmap(16, 16).toImage();
    }
    // Clicks the button; the chooser it opens is answered by choose.
    void clickAndAnswer(std::function<void(ColorChooserDialog&)> choose)
    {
        QTimer::singleShot(0, [choose] {
            ColorChooserDialog* chooser = ColorChooserDialog::liveInstance();
            ASSERT_NE(chooser, nullptr);
            ASSERT_TRUE(chooser->isVisible());
            choose(*chooser);
        });
        user::click(&button);
    }
    static void pick(ColorChooserDialog& chooser, const char* name)
    {
        user::click(chooser.findChild<QAbstractButton*>(name));
    }
    static QColor colorOf(int index)
    {
        unsigned char r, g, b;
        OrrUtilColorMapGetBasicColorRGB(index, &r, &g, &b);
        return QColor(r, g, b);
    }

    QWidget window;
    QToolButton button{&window};
};

TEST_F(ColorButtonPropertyBindingTest, ShowsSwatchAndShortNameOrTheMultiIconAndNothingForUnknownIndices)
{
    auto color = boost::make_shared<Property<int>>(0);
    ColorButtonPropertyBinding binding(&button, color, true);
    EXPECT_EQ(swatchColor(), colorOf(0));
    EXPECT_EQ(button.iconSize(), QSize(12, 12));
    EXPECT_EQ(button.text(), "Black");

    for (int index : {3, 8, 63}) {
        color->setValue(index);
        runIdle();
        EXPECT_EQ(swatchColor(), colorOf(index)) << index;
        EXPECT_EQ(button.text().toStdString(), ColorChooserDialog::colorToString(index, true));
    }
    EXPECT_EQ(button.text(), "Cust 56");

    color->setValue(-1);
    runIdle();
    EXPECT_TRUE(showsMultiIcon());
    EXPECT_EQ(button.text(), "Multi");
    color->setValue(-6);
    runIdle();
    EXPECT_TRUE(showsMultiIcon());
    EXPECT_EQ(button.text(), "RGBCOLOR");

    // Unknown indices show no name and a neutral swatch.
    for (int unknown : {99, -2}) {
        color->setValue(unknown);
        runIdle();
        EXPECT_EQ(button.text(), "") << unknown;
        EXPECT_EQ(swatchColor().alpha(), 0) << unknown;
        EXPECT_FALSE(showsMultiIcon()) << unknown;
    }
}

TEST_F(ColorButtonPropertyBindingTest, ChosenColorIsStoredAndShownOnIdleAndClosingOrTheSameColorChangesNothing)
{
    auto color = boost::make_shared<Property<int>>(0);
    ColorButtonPropertyBinding binding(&button, color, true);
    Emissions<int> emitted(*color);
    clickAndAnswer([](ColorChooserDialog& chooser) { pick(chooser, "colorButton_2"); });
    EXPECT_EQ(color->getValue(), 1);
    EXPECT_EQ(emitted.values, std::vector<int>({1}));
    runIdle();
    EXPECT_EQ(button.text(), "Red");
    EXPECT_EQ(swatchColor(), colorOf(1));

    clickAndAnswer([](ColorChooserDialog& chooser) { pick(chooser, "C2"); });
    EXPECT_EQ(color->getValue(), -3);
    runIdle();
    EXPECT_TRUE(showsMultiIcon());
    EXPECT_EQ(button.text(), "Multi2");

    // Closing the chooser or choosing the same colour changes nothing.
    clickAndAnswer([](ColorChooserDialog& chooser) {
        chooser.findChild<QDialogButtonBox*>()->button(QDialogButtonBox::Close)->click();
    });
    clickAndAnswer([](ColorChooserDialog& chooser) { pick(chooser, "C2"); });
    EXPECT_EQ(color->getValue(), -3);
    EXPECT_EQ(emitted.count(), 2u);
}

TEST_F(ColorButtonPropertyBindingTest, TheChooserOptionSwitchesColoringByVariable)
{
    auto color = boost::make_shared<Property<int>>(0);
    ColorButtonPropertyBinding binding(&button, color, false);
    bool multiEnabled = true;
    clickAndAnswer([&multiEnabled](ColorChooserDialog& chooser) {
        multiEnabled = chooser.findChild<QAbstractButton*>("C1")->isEnabled();
        pick(chooser, "colorButton_4");
    });
    EXPECT_FALSE(multiEnabled);
    EXPECT_EQ(color->getValue(), 2);
    EXPECT_EQ(ColorChooserDialog::liveInstance()->parentWidget(), &button);
}

TEST_F(ColorButtonPropertyBindingTest, RefusedColorIsReportedOnceAndTheButtonKeepsTheHeldColor)
{
    auto color = refusingProperty<int>(0, 1, "Red is not allowed here.");
    ColorButtonPropertyBinding binding(&button, color, true);
    clickAndAnswer([](ColorChooserDialog& chooser) { pick(chooser, "colorButton_2"); });
    runIdle();
    EXPECT_EQ(color->getValue(), 0);
    EXPECT_EQ(messageTexts(), std::vector<std::string>({"Red is not allowed here."}));
    EXPECT_EQ(button.text(), "Black");
}

TEST_F(ColorButtonPropertyBindingTest, FollowsTheKernelsStyleValue)
{
    using orrery::sdk::styleproperties::KernelProperty;
    auto meshColor = boost::make_shared<KernelProperty<int>>(orrery::toolbox::StyleValue("FieldMap", "Mesh", "Color"));
    meshColor->setOffsets(2, -1);
    ColorButtonPropertyBinding binding(&button, meshColor, true);
    clickAndAnswer([](ColorChooserDialog& chooser) { pick(chooser, "colorButton_6"); });
    EXPECT_EQ(styleValue<long>({"FieldMap", "Mesh", "Color"}, 2), 3);
    EXPECT_EQ(styleValue<long>({"FieldMap", "Mesh", "Color"}, 1), 0);

    Kernel::setStyle({"FieldMap", "Mesh", "Color"}, long(-4), 2);
    runIdle();
    EXPECT_EQ(button.text(), "Multi3");
    ASSERT_TRUE(OrrUtilUndoPerform());
    ASSERT_TRUE(OrrUtilUndoPerform());
    runIdle();
    EXPECT_EQ(button.text(), "Black");
}

} // namespace

namespace {

// A keyboard user: Space on the focused button opens the chooser. On some
// desktops the key's press already holds the chooser's first button down when
// the chooser appears, and the release then lands there; that release must
// choose nothing. Only keys pressed in the chooser choose.
TEST_F(ColorButtonPropertyBindingTest, TheKeyThatOpensTheChooserChoosesNothingInIt)
{
    auto color = boost::make_shared<Property<int>>(2);
    ColorButtonPropertyBinding binding(&button, color, true);
    user::open(window);
    button.setFocus();
    bool sawChooser = false;
    QTimer::singleShot(0, [&] {
        ColorChooserDialog* chooser = ColorChooserDialog::liveInstance();
        ASSERT_NE(chooser, nullptr);
        sawChooser = chooser->isVisible();
        auto* multi = chooser->findChild<QAbstractButton*>("C1");
        multi->setDown(true); // the press the chooser never saw
        QTest::keyRelease(multi, Qt::Key_Space);
        EXPECT_TRUE(chooser->isVisible()) << "a release without its press chose a colour";
        multi->setDown(false);
        QTest::keyPress(multi, Qt::Key_Space);
        QTest::keyRelease(multi, Qt::Key_Space);
        EXPECT_FALSE(chooser->isVisible()) << "Space pressed in the chooser chose nothing";
    });
    QTest::keyPress(&button, Qt::Key_Space);
    EXPECT_EQ(color->getValue(), 2) << "the chooser opened on the press";
    QTest::keyRelease(&button, Qt::Key_Space);
    runIdle();
    EXPECT_TRUE(sawChooser);
    EXPECT_EQ(color->getValue(), -1) << "the multi colouring, chosen by its own press and release";
}

} // namespace
