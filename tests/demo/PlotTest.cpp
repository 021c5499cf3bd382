#include <cmath>
#include <QFile>
#include <QImage>
#include <QLineEdit>
#include <QMenu>
#include <QTimer>
#include <QTemporaryDir>
#include "demo/launchers/AxisTitlesDialog.h"
#include "demo/common/DemoUser.h"
#include "demo/launchers/DialogCatalog.h"
#include "demo/window/MainWindow.h"
#include "demo/window/PlotExport.h"
#include "host/kernel/DataSet.h"
#include "host/kernel/Kernel.h"
#include "host/kernel/OrrUtilHost.h"
#include "tests/demo/HostPictures.h"
#include "tests/support/TestSupport.h"

using namespace hostpictures;
using testsupport::Kernel;
using testsupport::SampleKernelTest;

namespace {

const QSize Size(800, 600);

class Plot : public SampleKernelTest
{
protected:
    // Runs a dialog of the Dialogs menu as the tour does: driven, then closed with its button.
    QString run(MainWindow& window, const char* name)
    {
        for (const DialogCatalog::Entry& entry : DialogCatalog::entries())
            if (entry.name == name)
                return window.runDialog(entry, [&entry](DialogCatalog::Dialog& dialog) {
                    entry.drive(dialog);
                    DemoUser::press(dialog, entry.closeWith);
                });
        ADD_FAILURE() << name;
        return QString();
    }
    long pointsInRange(long begin, long end, long skip)
    {
        long total = 0;
        for (int zone = 1; zone <= OrrUtilDataSetGetNumZones(); ++zone) {
            const long last = std::min(end, long(OrrUtilZoneGetNumPoints(zone)));
            total += last >= begin ? (last - begin) / skip + 1 : 0;
        }
        return total;
    }
};

TEST_F(Plot, EachDialogsAnswerChangesWhatThePlotDraws)
{
    MainWindow window;
    HostPlotView& view = window.plot();
    const Drawn start = drawn(view);
    EXPECT_EQ(pointsInRange(1, 1000000, 1), start.points);

    run(window, "Text String...");
    EXPECT_TRUE(drawn(view).drewText("Pressure over time"));

    run(window, "Three Integer Values...");
    EXPECT_EQ(pointsInRange(1, 250, 5), drawn(view).points);

    run(window, "ASCII Character...");
    EXPECT_GE(drawn(view).shapes, pointsInRange(1, 250, 5)) << "a symbol for every point drawn";

    run(window, "Anchor Alignment...");
    const Drawn anchored = drawn(view);
    const Drawn::Text* title = anchored.textStarting("Pressure over time");
    ASSERT_NE(title, nullptr);
    EXPECT_LT(title->at.x(), Size.width() / 4.0) << "the title goes to the top left";

    run(window, "Select Zone...");
    const QRgb pale = qRgb(192, 192, 192); // black, three quarters of the way to white
    EXPECT_EQ(0u, start.colours.count(pale));
    EXPECT_EQ(1u, drawn(view).colours.count(pale));

    const QString picked = run(window, "Color Chooser...");
    EXPECT_NE(-1, picked.indexOf("zone 2")) << picked.toStdString();
    EXPECT_EQ(1u, drawn(view).colours.count(basicColour(12)));

    run(window, "Color Chooser, Multi Color...");
    const Drawn ramp = drawn(view);
    EXPECT_GT(ramp.colours.size(), start.colours.size() + 5) << "points coloured along a map";

    // Each answer was one undo step: undoing the colour brings back the custom colour.
    OrrUtilUndoPerform();
    EXPECT_EQ(1u, drawn(view).colours.count(basicColour(12)));
}

TEST_F(Plot, ExportWritesEachFormatAsItSaysAndRefusesWhatItCannotWrite)
{
    HostPlotView view;
    QTemporaryDir folder;
    QString error;
    ASSERT_TRUE(
        PlotExport::write(view.scene(), view.viewpoint(), folder.filePath("plot.png"), QSize(400, 300), 2.0, &error))
        << error.toStdString();
    const QImage png(folder.filePath("plot.png"));
    EXPECT_EQ(QSize(800, 600), png.size()) << "twice the pixels at a ratio of 2";
    EXPECT_NEAR(192.0, png.dotsPerMeterX() * 0.0254, 1.0);

    ASSERT_TRUE(
        PlotExport::write(view.scene(), view.viewpoint(), folder.filePath("plot.svg"), QSize(400, 300), 1.0, &error));
    QFile svg(folder.filePath("plot.svg"));
    ASSERT_TRUE(svg.open(QIODevice::ReadOnly));
    const QByteArray drawing = svg.readAll();
    EXPECT_TRUE(drawing.contains("<text")) << "texts stay text";
    EXPECT_TRUE(drawing.contains(">0.5<")) << "a tick label of Y";

    ASSERT_TRUE(
        PlotExport::write(view.scene(), view.viewpoint(), folder.filePath("plot.pdf"), QSize(400, 300), 1.0, &error));
    QFile pdf(folder.filePath("plot.pdf"));
    ASSERT_TRUE(pdf.open(QIODevice::ReadOnly));
    EXPECT_TRUE(pdf.read(5) == "%PDF-");

    EXPECT_FALSE(
        PlotExport::write(view.scene(), view.viewpoint(), folder.filePath("plot.gif"), QSize(400, 300), 1.0, &error));
    EXPECT_NE(-1, error.indexOf(".png, .svg or .pdf"));
    EXPECT_FALSE(PlotExport::write(view.scene(), view.viewpoint(), folder.filePath("missing/plot.png"), QSize(400, 300),
                                   1.0, &error));
    EXPECT_NE(-1, error.indexOf("missing/plot.png"));
    EXPECT_FALSE(QFile::exists(folder.filePath("missing/plot.png")));
}

TEST_F(Plot, DataThatCannotBeDrawnIsSaidNotHiddenOrDividedByZero)
{
    HostPlotView view;
    const double nan = std::numeric_limits<double>::quiet_NaN();
    // A constant, a single point and a column with no values at all.
    orrery::kernel::DataSet data("Odd", {"Constant", "Single", "Missing"});
    data.addZone("One", {{5.0, 5.0, 5.0}, {1.0, nan, nan}, {nan, nan, nan}});
    Kernel::setDataSet(data);
    Kernel::setStyle({"TwoDAxis", "XDetail", "VarNum"}, 1L);
    Kernel::setStyle({"TwoDAxis", "YDetail", "VarNum"}, 2L);
    const Drawn single = drawn(view);
    EXPECT_EQ(1, single.points);
    Kernel::setStyle({"TwoDAxis", "YDetail", "VarNum"}, 3L);
    EXPECT_NE(nullptr, drawn(view).textStarting("Nothing to draw: Missing")) << "the plot says why it is empty";

    // Values beside the largest and below the smallest normal double: left out with a note, the rest drawn.
    Kernel::setPlotType(PlotType_TwoD);
    orrery::kernel::DataSet extreme("Extreme", {"x", "y"});
    extreme.addZone("One", {{1e308, -1.7e308, 0.0, 2.0, 4.9e-324}, {-1e308, 1.7e308, 0.0, 3.0, 1.0}});
    Kernel::setDataSet(extreme);
    Drawn some = drawn(view);
    EXPECT_EQ(2, some.points) << "(0, 0) and (2, 3)";
    EXPECT_NE(nullptr, some.textStarting("x: 3 value(s) beyond"));
    EXPECT_NE(nullptr, some.textStarting("y: 2 value(s) beyond"));
    orrery::kernel::DataSet subnormal("Subnormal", {"x", "y"});
    subnormal.addZone("One", {{4.9e-324, 1e-322}, {1e-320, 2e-321}});
    Kernel::setDataSet(subnormal);
    EXPECT_NE(nullptr, drawn(view).textStarting("Nothing to draw: every value of x is beyond"));
}

TEST_F(Plot, TheKeyAndTheColouringSayWhatIsDrawn)
{
    MainWindow window;
    HostPlotView& view = window.plot();
    // View > Color Points By names what Automatic colours by, and ticks nothing while nothing is coloured.
    QMenu* colourBy = window.findChild<QMenu*>("viewColorBy");
    ASSERT_NE(colourBy, nullptr);
    Q_EMIT colourBy->aboutToShow();
    QAction* automatic = colourBy->actions().front();
    EXPECT_EQ(QString("&Automatic (Z)"), automatic->text());
    for (const QAction* action : colourBy->actions())
        EXPECT_FALSE(action->isChecked()) << action->text().toStdString();
    EXPECT_EQ(0, mappedColours(drawn(view)));
    automatic->trigger();
    EXPECT_GT(mappedColours(drawn(view)), 5) << "Automatic colours the points";
    Q_EMIT colourBy->aboutToShow();
    EXPECT_TRUE(colourBy->actions().front()->isChecked());

    // Symbols chosen after keep the colouring.
    run(window, "ASCII Character...");
    const Drawn symbols = drawn(view);
    EXPECT_GE(symbols.shapes, pointsInRange(1, 1000000, 1));
    EXPECT_GT(mappedColours(symbols), 5);
    for (int zone = 1; zone <= OrrUtilDataSetGetNumZones(); ++zone)
        EXPECT_EQ(-1L, testsupport::styleValue<long>({"FieldMap", "Scatter", "Color"}, zone));
}

TEST_F(Plot, TheKeyNamesAZoneOfItsOwnByTheDataNotByItsKind)
{
    HostPlotView view;
    orrery::kernel::DataSet data("Heated box", {"x", "y", "temperature_K"});
    data.addZone("STRUCTURED_POINTS", {{0, 1, 2}, {0, 1, 4}, {1, 2, 3}});
    Kernel::setDataSet(data);
    Kernel::setStyle({"FieldMap", "Scatter", "Show"}, true, 1);
    const Drawn key = drawn(view);
    EXPECT_TRUE(key.drewText("Heated box"));
    EXPECT_FALSE(key.drewText("STRUCTURED_POINTS"));
}

TEST_F(Plot, AxisTitlesWithUnitsAreKeptJournalledUndoneAndExported)
{
    MainWindow window;
    HostPlotView& view = window.plot();
    auto titleAxes = [&](const QString& x, const QString& y) {
        QTimer::singleShot(0, &window, [&window, x, y] {
            auto* dialog = window.findChild<AxisTitlesDialog*>();
            ASSERT_NE(dialog, nullptr);
            DemoUser::typeInto(*dialog->findChild<QLineEdit*>("axisTitleX"), x);
            DemoUser::typeInto(*dialog->findChild<QLineEdit*>("axisTitleY"), y);
            DemoUser::press(*dialog, QDialogButtonBox::Ok);
        });
        window.findChild<QAction*>("viewAxisTitles")->trigger();
    };
    EXPECT_TRUE(drawn(view).drewText("X")) << "by default the variable's name";
    titleAxes("Distance (m)", "Height (m)");
    const Drawn titled = drawn(view);
    EXPECT_TRUE(titled.drewText("Distance (m)"));
    EXPECT_TRUE(titled.drewText("Height (m)"));
    const std::vector<std::string>& journal = orrery::kernel::Kernel::instance().journal().lines();
    EXPECT_NE(journal.end(),
              std::find(journal.begin(), journal.end(), "style TwoDAxis/XDetail/Title \"Distance (m)\""));

    QTemporaryDir folder;
    QString error;
    ASSERT_TRUE(PlotExport::write(view.scene(), view.viewpoint(), folder.filePath("plot.svg"), Size, 1.0, &error));
    QFile svg(folder.filePath("plot.svg"));
    ASSERT_TRUE(svg.open(QIODevice::ReadOnly));
    EXPECT_TRUE(svg.readAll().contains(">Height (m)<"));

    // Both titles were one step.
    OrrUtilUndoPerform();
    EXPECT_FALSE(drawn(view).drewText("Distance (m)"));
    EXPECT_FALSE(drawn(view).drewText("Height (m)"));
    OrrUtilRedoPerform();
    titleAxes("", "Height (m)");
    EXPECT_TRUE(drawn(view).drewText("X")) << "an empty title is the name again";
}

TEST_F(Plot, AnXYLinePlotDrawsSeveralYVariablesEachInItsColourWithALegend)
{
    MainWindow window;
    HostPlotView& view = window.plot();
    Kernel::setPlotType(PlotType_XYLine);
    QMenu* lines = window.findChild<QMenu*>("viewLineVariables");
    ASSERT_NE(lines, nullptr);
    EXPECT_TRUE(lines->isEnabled());
    auto toggle = [&](const QString& name) {
        Q_EMIT lines->aboutToShow();
        for (QAction* action : lines->actions())
            if (QString(action->text()).remove('&') == name)
                return action->trigger();
        ADD_FAILURE() << name.toStdString();
    };
    // What the picture shows: where its axes went, how many of its pixels are red.
    QImage image(Size, QImage::Format_RGB32);
    auto picture = [&] {
        QPainter painter(&image);
        return view.render(painter, QRectF(QPointF(0, 0), QSizeF(Size)));
    };
    auto red = [&] { return pixelsOf(image, basicColour(1)); };
    picture();
    EXPECT_EQ(0, red());
    toggle("Temperature");
    const PlotGeometry both = picture();
    EXPECT_GT(red(), 100) << "the second line in a colour of its own";
    const Drawn two = drawn(view);
    EXPECT_TRUE(two.drewText("Temperature")) << "a legend entry";
    EXPECT_TRUE(two.drewText("Y, Temperature")) << "the axis titled by both";
    double low = 0, high = 0;
    OrrUtilVarGetMinMax(5, &low, &high);
    EXPECT_GE(both.shown.max[1], high) << "the Y axis spans both";
    const std::vector<std::string>& journal = orrery::kernel::Kernel::instance().journal().lines();
    EXPECT_NE(journal.end(), std::find(journal.begin(), journal.end(), "style TwoDAxis/YDetail/MoreVarNums \"5\""));

    // The axis's own variable off: the next line's takes its place, in one step.
    toggle("Y");
    EXPECT_EQ(5L, testsupport::styleValue<long>({"TwoDAxis", "YDetail", "VarNum"}));
    EXPECT_EQ("", testsupport::styleValue<std::string>({"TwoDAxis", "YDetail", "MoreVarNums"}));
    OrrUtilUndoPerform();
    EXPECT_EQ(2L, testsupport::styleValue<long>({"TwoDAxis", "YDetail", "VarNum"}));
    EXPECT_EQ("5", testsupport::styleValue<std::string>({"TwoDAxis", "YDetail", "MoreVarNums"}));
    // The last line stays, with a word why.
    toggle("Y");
    toggle("Temperature");
    EXPECT_EQ(5L, testsupport::styleValue<long>({"TwoDAxis", "YDetail", "VarNum"}));
    EXPECT_FALSE(testsupport::messageTexts().empty());

    // A list naming no variable, or one twice, is refused by the kernel.
    EXPECT_NE(SetValue_Ok, Kernel::setStyle({"TwoDAxis", "YDetail", "MoreVarNums"}, std::string("4 4")));
    EXPECT_NE(SetValue_Ok, Kernel::setStyle({"TwoDAxis", "YDetail", "MoreVarNums"}, std::string("9")));
}

} // namespace
