#include <QTimer>
#include <QToolButton>
#include "tests/prompts/prompt/DialogTestSupport.h"
#include "platform/kernel/OrrUtil.h"
#include "prompts/prompt/ColorChooserButton.h"
#include "prompts/prompt/ColorChooserDialog.h"

using namespace dialogtest;

namespace {

const char* const VarColoringButtons[] = {"C1", "C2", "C3", "C4", "C5", "C6", "C7", "C8", "RGB"};

class ColorChooserDialogTest : public DialogTest
{
protected:
    ColorChooserDialog* chooser(bool enableVarColoring = true)
    {
        ColorChooserDialog* dialog = ColorChooserDialog::getInstance(parent, enableVarColoring);
        user::open(*dialog);
        return dialog;
    }
    static QToolButton* button(QWidget& dialog, const QString& name) { return dialog.findChild<QToolButton*>(name); }
    static QToolButton* swatch(QWidget& dialog, int position)
    {
        return button(dialog, QString("colorButton_%1").arg(position));
    }
    // Presses a button of the variable dialog the chooser opens over itself.
    static void answerVariableDialog(ColorChooserDialog& dialog, QDialogButtonBox::StandardButton answer, bool& asked)
    {
        QTimer::singleShot(0, &dialog, [&dialog, answer, &asked] {
            for (QDialog* variables : dialog.findChildren<QDialog*>())
                if (variables->isVisible()) {
                    asked = true;
                    user::press(*variables, answer);
                }
        });
    }
    static void assignRGBChannels(long red, long green, long blue)
    {
        Kernel::setStyle({"GlobalRGB", "RedChannelVar"}, red);
        Kernel::setStyle({"GlobalRGB", "GreenChannelVar"}, green);
        Kernel::setStyle({"GlobalRGB", "BlueChannelVar"}, blue);
    }
};

TEST_F(ColorChooserDialogTest, GridShowsBasicColorsFirstThenCustomColorsByPosition)
{
    ColorChooserDialog* dialog = chooser();
    const int firstRow[8] = {0, 7, 1, 5, 2, 4, 3, 6};
    const auto frameGrid = dialog->findChild<QFrame*>("buttonGridFrame")->findChildren<ColorChooserButton*>();
    ASSERT_EQ(frameGrid.size(), 64);
    for (int position = 0; position < 64; ++position) {
        SCOPED_TRACE(position);
        auto* cell = qobject_cast<ColorChooserButton*>(swatch(*dialog, position));
        ASSERT_NE(cell, nullptr);
        const int expected = position < 8 ? firstRow[position] : position;
        EXPECT_EQ(cell->colorIndex(), expected);
        unsigned char r, g, b;
        OrrUtilColorMapGetBasicColorRGB(expected, &r, &g, &b);
        EXPECT_EQ(QColor(cell->red(), cell->green(), cell->blue()), QColor(r, g, b));
        // What the user sees: the swatch is filled with its colour.
        const QImage shown = cell->grab().toImage();
        EXPECT_EQ(QColor(shown.pixel(shown.width() / 2, shown.height() / 2)), QColor(r, g, b));
        EXPECT_EQ(cell->sizeHint(), QSize(20, 20));
    }
}

TEST_F(ColorChooserDialogTest, ClickingASwatchAnswersItsColorAndClosesTheDialogCloseKeepsThatAnswer)
{
    ColorChooserDialog* dialog = chooser();
    user::click(swatch(*dialog, 1));
    EXPECT_EQ(dialog->selectedColor(), 7); // White
    EXPECT_EQ(dialog->result(), QDialog::Accepted);
    EXPECT_FALSE(dialog->isVisible());

    chooser();
    user::click(swatch(*dialog, 63));
    EXPECT_EQ(dialog->selectedColor(), 63);
    chooser();
    user::press(*dialog, QDialogButtonBox::Close);
    EXPECT_EQ(dialog->result(), QDialog::Rejected);
    EXPECT_EQ(dialog->selectedColor(), 63);
}

TEST_F(ColorChooserDialogTest, MultiButtonsAnswerTheHostsMultiIndices)
{
    const int expected[8] = {-1, -3, -4, -5, -7, -8, -9, -10};
    for (int i = 0; i < 8; ++i) {
        SCOPED_TRACE(i);
        ColorChooserDialog* dialog = chooser();
        user::click(button(*dialog, VarColoringButtons[i]));
        EXPECT_EQ(dialog->result(), QDialog::Accepted);
        EXPECT_EQ(dialog->selectedColor(), expected[i]);
        EXPECT_EQ(ColorChooserDialog::colorToString(expected[i], false),
                  i == 0 ? "Multi" : "Multi" + std::to_string(i + 1));
    }
}

TEST_F(ColorChooserDialogTest, ColorNamesCoverTheWholeTableInBothForms)
{
    const char* const basic[8] = {"Black", "Red", "Green", "Blue", "Cyan", "Yellow", "Purple", "White"};
    for (int i = 0; i < 8; ++i) {
        EXPECT_EQ(ColorChooserDialog::colorToString(i, false), basic[i]);
        EXPECT_EQ(ColorChooserDialog::colorToString(i, true), basic[i]);
    }
    EXPECT_EQ(ColorChooserDialog::colorToString(8, false), "CUSTOM1");
    EXPECT_EQ(ColorChooserDialog::colorToString(8, true), "Cust 1");
    EXPECT_EQ(ColorChooserDialog::colorToString(37, false), "CUSTOM30");
    EXPECT_EQ(ColorChooserDialog::colorToString(63, false), "CUSTOM56");
    EXPECT_EQ(ColorChooserDialog::colorToString(63, true), "Cust 56");
    EXPECT_EQ(ColorChooserDialog::colorToString(-6, false), "RGBCOLOR");
    EXPECT_EQ(ColorChooserDialog::colorToString(-6, true), "RGBCOLOR");
    EXPECT_EQ(ColorChooserDialog::colorToString(-10, true), "Multi8");
    for (int unknown : {-2, -11, -1000, 64, 65, 1000}) {
        EXPECT_EQ(ColorChooserDialog::colorToString(unknown, false), "") << unknown;
        EXPECT_EQ(ColorChooserDialog::colorToString(unknown, true), "") << unknown;
    }
}

TEST_F(ColorChooserDialogTest, VarColoringCanBeDisabledPerCallWhileTheGridStaysUsable)
{
    ColorChooserDialog* dialog = chooser(false);
    for (const char* name : VarColoringButtons)
        EXPECT_FALSE(button(*dialog, name)->isEnabled()) << name;
    user::click(button(*dialog, "C3"));
    EXPECT_TRUE(dialog->isVisible());
    user::click(swatch(*dialog, 5));
    EXPECT_EQ(dialog->selectedColor(), 4);
    EXPECT_EQ(dialog->result(), QDialog::Accepted);

    QWidget otherParent;
    EXPECT_EQ(ColorChooserDialog::getInstance(otherParent, true), dialog);
    EXPECT_EQ(dialog->parentWidget(), &otherParent);
    for (const char* name : VarColoringButtons)
        EXPECT_TRUE(button(*dialog, name)->isEnabled()) << name;
    dialog->setParent(&parent); // otherParent goes first
}

TEST_F(ColorChooserDialogTest, RGBAsksForChannelVariablesOnlyWhenNoneAreAssignedAndDecliningStoresNothing)
{
    ColorChooserDialog* dialog = chooser();
    user::click(swatch(*dialog, 2));
    chooser();
    bool asked = false;
    answerVariableDialog(*dialog, QDialogButtonBox::Cancel, asked);
    user::click(button(*dialog, "RGB"));
    EXPECT_TRUE(asked);
    EXPECT_TRUE(dialog->isVisible());
    EXPECT_EQ(dialog->selectedColor(), 1);
    EXPECT_EQ(Kernel::styleWriteCount(), 0);
    EXPECT_TRUE(messageTexts().empty());

    asked = false;
    answerVariableDialog(*dialog, QDialogButtonBox::Ok, asked);
    user::click(button(*dialog, "RGB"));
    EXPECT_TRUE(asked);
    EXPECT_EQ(dialog->result(), QDialog::Accepted);
    EXPECT_EQ(dialog->selectedColor(), -6);
    for (const char* channel : {"RedChannelVar", "GreenChannelVar", "BlueChannelVar"})
        EXPECT_NE(styleValue<long>({"GlobalRGB", channel}), 0) << channel;

    // Once assigned, RGB answers at once.
    assignRGBChannels(3, 4, 5);
    chooser();
    user::click(button(*dialog, "RGB"));
    EXPECT_EQ(dialog->result(), QDialog::Accepted);
    EXPECT_EQ(dialog->selectedColor(), -6);
    EXPECT_FALSE(dialog->isVisible());
}

} // namespace
