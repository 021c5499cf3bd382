#include <QComboBox>
#include <QFontComboBox>
#include <QLineEdit>
#include <QToolButton>
#include "tests/prompts/prompt/DialogTestSupport.h"
#include "platform/kernel/OrrUtil.h"
#include "prompts/prompt/ScatterSizeFontDialog.h"

using namespace dialogtest;

namespace {

const char* const SizeControls[] = {"scatterSizeFont_SizeVaiable_Label", "scatterSizeFont_SizeVaiable_ComboBox",
                                    "scatterSizeFont_SizeMultiplier_Label", "scatterSizeFont_SizeGrid_radioButton",
                                    "scatterSizeFont_SizeCm_radioButton"};

class ScatterSizeFontDialogTest : public DialogTest
{
protected:
    // Size variable S ranges over [-8, 4]; the Y axis spans 100.
    static void loadSizeData()
    {
        orrery::kernel::DataSet data("Sizes", {"X", "Y", "S", "Zero"});
        data.addZone("Zone", {{0, 1}, {0, 100}, {-8, 4}, {0, 0}});
        Kernel::setDataSet(data);
    }
    ScatterSizeFontDialog* openDialog()
    {
        ScatterSizeFontDialog* dialog = ScatterSizeFontDialog::getInstance(parent);
        dialog->launch();
        runIdle();
        return dialog;
    }
    template <typename W = QWidget>
    static W* child(QWidget& d, const char* name)
    {
        return d.findChild<W*>(name);
    }
    static QLineEdit* gridField(QWidget& d) { return child<QLineEdit>(d, "scatterSizeFont_SizeGrid_1Text"); }
    static QLineEdit* cmField(QWidget& d) { return child<QLineEdit>(d, "scatterSizeFont_SizeCm_1Text"); }
    static QPushButton* recalculate(QWidget& d)
    {
        for (QAbstractButton* b : child<QDialogButtonBox>(d, "scatterSizeFont_buttonBox")->buttons())
            if (b->text() == "&Recalculate Size")
                return static_cast<QPushButton*>(b);
        return nullptr;
    }
    static double relativeSize() { return styleValue<double>({"GlobalScatter", "RelativeSize"}); }
    // The fields show six significant digits.
    static void expectShown(QLineEdit& field, double value)
    {
        EXPECT_NEAR(field.text().toDouble(), value, std::fabs(value) * 1e-5) << field.objectName().toStdString();
    }
    static double pointsPerGridUnit() { return OrrUtilConvertUnits(Units_Grid, Units_Point, 2.54 / 72.0); }
};

TEST_F(ScatterSizeFontDialogTest, MultiplierShowsInBothUnitsAndTypingGoesToTheStoredUnit)
{
    loadSizeData();
    Kernel::setStyle({"GlobalScatter", "RelativeSize"}, 2.0);
    ScatterSizeFontDialog* dialog = openDialog();
    const double f = pointsPerGridUnit();
    ASSERT_GT(f, 0.0);
    EXPECT_DOUBLE_EQ(gridField(*dialog)->text().toDouble(), 2.0);
    expectShown(*cmField(*dialog), 2.0 * f);
    EXPECT_TRUE(gridField(*dialog)->isEnabled());
    EXPECT_FALSE(cmField(*dialog)->isEnabled());
    EXPECT_TRUE(child<QRadioButton>(*dialog, "scatterSizeFont_SizeGrid_radioButton")->isChecked());

    user::open(*dialog);
    user::retype(*gridField(*dialog), "3.5", *child(*dialog, "scatterSizeFont_SizeVaiable_ComboBox"));
    runIdle();
    EXPECT_DOUBLE_EQ(relativeSize(), 3.5);
    expectShown(*cmField(*dialog), 3.5 * f);

    user::click(child<QRadioButton>(*dialog, "scatterSizeFont_SizeCm_radioButton"));
    runIdle();
    EXPECT_FALSE(styleValue<bool>({"GlobalScatter", "RelativeSizeInGridUnits"}));
    EXPECT_FALSE(gridField(*dialog)->isEnabled());
    EXPECT_TRUE(cmField(*dialog)->isEnabled());
    EXPECT_DOUBLE_EQ(cmField(*dialog)->text().toDouble(), 3.5);
    expectShown(*gridField(*dialog), 3.5 / f);
    user::retype(*cmField(*dialog), "0.25", *child(*dialog, "scatterSizeFont_SizeVaiable_ComboBox"));
    runIdle();
    EXPECT_DOUBLE_EQ(relativeSize(), 0.25);
}

TEST_F(ScatterSizeFontDialogTest, RecalculateSetsTheDefaultMultiplierForTheSizeVariable)
{
    loadSizeData();
    Kernel::setStyle({"GlobalScatter", "Var"}, long(3));
    ScatterSizeFontDialog* dialog = openDialog();
    EXPECT_EQ(child<QComboBox>(*dialog, "scatterSizeFont_SizeVaiable_ComboBox")->currentText(), "S");
    user::open(*dialog);
    user::click(recalculate(*dialog));
    runIdle();
    EXPECT_DOUBLE_EQ(relativeSize(), 100.0 / 8.0 * 0.025);
    EXPECT_DOUBLE_EQ(gridField(*dialog)->text().toDouble(), 0.3125);

    Kernel::setStyle({"BasicSize", "SymbolSizes", "Medium"}, 5.0);
    Kernel::setStyle({"GlobalScatter", "RelativeSizeInGridUnits"}, false);
    user::click(recalculate(*dialog));
    EXPECT_NEAR(relativeSize(),
                std::fabs(OrrUtilConvertUnits(Units_Grid, Units_Point, 100.0 * 2.54 / (8.0 * 72.0))) * 0.05, 1e-12);
}

TEST_F(ScatterSizeFontDialogTest, RecalculateWithoutAUsableRangeReportsTheKernelsRefusalOnce)
{
    loadSizeData();
    Kernel::setStyle({"GlobalScatter", "Var"}, long(4)); // all zero
    ScatterSizeFontDialog* dialog = openDialog();
    user::open(*dialog);
    user::click(recalculate(*dialog));
    runIdle();
    EXPECT_EQ(relativeSize(), 1.0);
    ASSERT_EQ(messageTexts().size(), 1u);
    EXPECT_EQ(messageTexts()[0], "The relative size must be greater than zero.");
    EXPECT_DOUBLE_EQ(gridField(*dialog)->text().toDouble(), 1.0);
}

TEST_F(ScatterSizeFontDialogTest, LinePlotRetitlesAndRetargetsTheFontOnIdle)
{
    loadSizeData();
    ScatterSizeFontDialog* dialog = openDialog();
    auto* font = child<QFontComboBox>(*dialog, "scatterSizeFont_SymbolsFont_ComboBox");
    Kernel::setStyle({"GlobalLinePlot", "BaseFontFamily"}, std::string("Line Font"));
    Kernel::setPlotType(PlotType_XYLine);
    EXPECT_EQ(dialog->windowTitle(), "Scatter Size/Font"); // not before idle
    runIdle();
    EXPECT_EQ(dialog->windowTitle(), "Symbol Font");
    EXPECT_EQ(font->currentText(), "Line Font");
    EXPECT_TRUE(dialog->isEnabled());
    for (const char* name : SizeControls)
        EXPECT_FALSE(child(*dialog, name)->isEnabled()) << name;
    EXPECT_FALSE(recalculate(*dialog)->isEnabled());
    EXPECT_FALSE(gridField(*dialog)->isEnabled());
    EXPECT_FALSE(cmField(*dialog)->isEnabled());

    // A sketch has no symbols: the dialog is unusable and the font stays on the line plot.
    Kernel::setPlotType(PlotType_Sketch);
    runIdle();
    EXPECT_FALSE(contentEnabled(*dialog));
    EXPECT_EQ(dialog->windowTitle(), "Symbol Font");
    Kernel::setStyle({"GlobalLinePlot", "BaseFontFamily"}, std::string("Other Line Font"));
    runIdle();
    EXPECT_EQ(font->currentText(), "Other Line Font");

    Kernel::setPlotType(PlotType_ThreeD);
    runIdle();
    EXPECT_EQ(dialog->windowTitle(), "Scatter Size/Font");
    EXPECT_EQ(font->currentText(), "Sans Serif");
    for (const char* name : SizeControls)
        EXPECT_TRUE(child(*dialog, name)->isEnabled()) << name;
}

TEST_F(ScatterSizeFontDialogTest, FontEditsTheCurrentPlotsFontAndBoldChangesNothing)
{
    loadSizeData();
    ScatterSizeFontDialog* dialog = openDialog();
    auto* font = child<QFontComboBox>(*dialog, "scatterSizeFont_SymbolsFont_ComboBox");
    ASSERT_GT(font->count(), 1);
    const int before = Kernel::styleWriteCount();
    user::click(child<QToolButton>(*dialog, "scatterSizeFont_SymbolsFontBold_Button"));
    user::click(child<QToolButton>(*dialog, "scatterSizeFont_SymbolsFontItalic_Button"));
    runIdle();
    EXPECT_EQ(Kernel::styleWriteCount(), before);

    font->setCurrentIndex(font->count() - 1);
    runIdle();
    EXPECT_EQ(styleValue<std::string>({"GlobalScatter", "BaseFontFamily"}), font->currentText().toStdString());
    EXPECT_EQ(styleValue<std::string>({"GlobalLinePlot", "BaseFontFamily"}), "Sans Serif");
}

TEST_F(ScatterSizeFontDialogTest, OpeningAssignsAScatterVariableAndEmptyDataOrNoFrameBreakNothing)
{
    loadSizeData();
    ScatterSizeFontDialog* dialog = openDialog();
    EXPECT_EQ(styleValue<long>({"GlobalScatter", "Var"}), 3);
    Kernel::clearDataSet();
    runIdle();
    EXPECT_EQ(child<QComboBox>(*dialog, "scatterSizeFont_SizeVaiable_ComboBox")->count(), 0);
    user::open(*dialog);
    user::retype(*gridField(*dialog), "4", *child(*dialog, "scatterSizeFont_SymbolsFont_ComboBox"));
    runIdle();
    EXPECT_DOUBLE_EQ(relativeSize(), 4.0);

    Kernel::setFrameCount(0);
    runIdle();
    EXPECT_FALSE(contentEnabled(*dialog));
    Kernel::setFrameCount(1);
    runIdle();
    EXPECT_TRUE(contentEnabled(*dialog));
    EXPECT_TRUE(messageTexts().empty());
}

} // namespace
