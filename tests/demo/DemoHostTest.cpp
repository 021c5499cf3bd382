#include <memory>
#include <QAction>
#include <QApplication>
#include <QDir>
#include <QDockWidget>
#include <QDropEvent>
#include <QFile>
#include <QImage>
#include <QMenu>
#include <QMimeData>
#include <QPlainTextEdit>
#include <QTemporaryDir>
#include <QUrl>
#include "demo/window/MainWindow.h"
#include "demo/session/Session.h"
#include "demo/session/RecentFiles.h"
#include "demo/window/WindowLayout.h"
#include "host/kernel/Kernel.h"
#include "host/kernel/OrrUtilHost.h"
#include "platform/loaders/DataLoaderRepository.h"
#include "platform/sdk/AppLock.h"
#include "tests/demo/HostPictures.h"
#include "tests/support/TestSupport.h"

using namespace hostpictures;
using orrery::sdk::AppLock;
using testsupport::Kernel;
using testsupport::SampleKernelTest;
using testsupport::styleValue;

namespace {

void writeFile(const QString& path, const QByteArray& bytes)
{
    QFile file(path);
    ASSERT_TRUE(file.open(QIODevice::WriteOnly));
    file.write(bytes);
}

class DemoHost : public SampleKernelTest
{
protected:
    QImage shown(HostPlotView& view) { return view.grab().toImage().convertToFormat(QImage::Format_RGB32); }
    QAction& action(MainWindow& window, const char* name)
    {
        QAction* found = window.findChild<QAction*>(name);
        EXPECT_NE(found, nullptr) << name;
        return *found;
    }
};

TEST_F(DemoHost, ThePlotIsDrawnAnewAfterEachStateChangeAndShowsWhatTheStyleSays)
{
    HostPlotView view;
    view.resize(400, 300);
    const QRgb red = basicColour(1);
    const QImage black = shown(view);
    const int draws = view.drawCount();
    EXPECT_EQ(pixelsOf(black, red), 0);
    EXPECT_GT(pixelsOf(black, basicColour(0)), 0);
    shown(view);
    EXPECT_EQ(view.drawCount(), draws) << "a repaint without a change reuses the picture";

    for (int zone = 1; zone <= 3; ++zone)
        Kernel::setStyle({"FieldMap", "Mesh", "Color"}, 1L, zone);
    EXPECT_GT(pixelsOf(shown(view), red), 20);
    EXPECT_GT(view.drawCount(), draws);

    // RGB colouring by three variables paints colours no basic colour has.
    Kernel::setStyle({"GlobalRGB", "RedChannelVar"}, 4L);
    Kernel::setStyle({"GlobalRGB", "GreenChannelVar"}, 5L);
    Kernel::setStyle({"GlobalRGB", "BlueChannelVar"}, 2L);
    Kernel::setStyle({"GlobalRGB", "RangeMax"}, 400.0);
    EXPECT_EQ(mappedColours(drawn(view)), 0);
    Kernel::setStyle({"FieldMap", "Mesh", "Color"}, -6L, 2);
    EXPECT_GT(mappedColours(drawn(view)), 0);

    // Scatter symbols sized by a variable grow with the multiplier.
    Kernel::setStyle({"FieldMap", "Scatter", "Show"}, true, 1);
    Kernel::setStyle({"FieldMap", "Scatter", "Color"}, 3L, 1);
    Kernel::setStyle({"GlobalScatter", "Var"}, 2L);
    Kernel::setStyle({"GlobalScatter", "RelativeSize"}, 1.0);
    const double small = drawn(view).shapeArea;
    Kernel::setStyle({"GlobalScatter", "RelativeSize"}, 4.0);
    EXPECT_GT(small, 0);
    EXPECT_GT(drawn(view).shapeArea, 2 * small);
}

TEST_F(DemoHost, VectorsLinesAndThe3DViewEachChangeThePicture)
{
    HostPlotView view;
    view.resize(400, 300);
    const QImage points = shown(view);

    Kernel::setStyle({"GlobalTwoDVector", "UVar"}, 4L);
    Kernel::setStyle({"GlobalTwoDVector", "VVar"}, 5L);
    EXPECT_EQ(shown(view), points) << "the vector layer is off";
    Kernel::setStyle({"FieldLayers", "ShowVector"}, true);
    const QImage vectors = shown(view);
    EXPECT_NE(vectors, points);

    Kernel::setPlotType(PlotType_XYLine);
    EXPECT_NE(shown(view), vectors);

    Kernel::setPlotType(PlotType_ThreeD);
    const QImage threeD = shown(view);
    view.setRotation(view.yaw() + 60, view.pitch());
    EXPECT_NE(shown(view), threeD);
}

TEST_F(DemoHost, UndoAndRedoInTheEditMenuNameTheStepAndTakeItBack)
{
    MainWindow window;
    QAction& undo = action(window, "editUndo");
    QAction& redo = action(window, "editRedo");
    EXPECT_FALSE(undo.isEnabled());
    EXPECT_EQ(undo.shortcut(), QKeySequence(QKeySequence::Undo));

    {
        AppLock lock(AppLock::ImplicitMacroRecording_Allow);
        OrrUtilUndoStateBegin(UndoCategory_AssignVariables);
        Kernel::setStyle({"TwoDAxis", "XDetail", "VarNum"}, 4L);
        Kernel::setStyle({"TwoDAxis", "YDetail", "VarNum"}, 5L);
        OrrUtilUndoStateEnd(false, true);
    }
    EXPECT_TRUE(undo.isEnabled());
    EXPECT_EQ(undo.text(), "&Undo Assign Variables");
    EXPECT_FALSE(redo.isEnabled());

    undo.trigger();
    EXPECT_EQ(styleValue<long>({"TwoDAxis", "XDetail", "VarNum"}), 1);
    EXPECT_EQ(styleValue<long>({"TwoDAxis", "YDetail", "VarNum"}), 2);
    EXPECT_FALSE(undo.isEnabled());
    EXPECT_EQ(redo.text(), "&Redo Assign Variables");

    redo.trigger();
    EXPECT_EQ(styleValue<long>({"TwoDAxis", "YDetail", "VarNum"}), 5);
    EXPECT_EQ(undo.text(), "&Undo Assign Variables");

    // The view menu's own changes are steps too, and the journal shows them all.
    action(window, "viewPlotType1").trigger();
    EXPECT_EQ(OrrUtilFrameGetPlotType(), PlotType_ThreeD);
    EXPECT_EQ(undo.text(), "&Undo Change Plot Type");
    action(window, "viewShowScatter").trigger();
    EXPECT_TRUE(styleValue<bool>({"FieldMap", "Scatter", "Show"}, 3));
    EXPECT_EQ(undo.text(), "&Undo Show Scatter");
    QApplication::processEvents(); // the journal view catches up once the window is idle
    const QString journal = window.findChild<QPlainTextEdit*>("journal")->toPlainText();
    EXPECT_TRUE(journal.startsWith("begin \"Assign Variables\"\nstyle TwoDAxis/XDetail/VarNum 4\n"))
        << journal.toStdString();
    EXPECT_TRUE(journal.contains("\nundo\nredo\nstyle FrameLayout/PlotType 1\nbegin \"Show Scatter\"\n"))
        << journal.toStdString();
}

TEST_F(DemoHost, JournalSavedFromTheWindowReplaysAndABadLineIsReportedWithItsNumber)
{
    QTemporaryDir folder;
    const QString saved = QDir(folder.path()).filePath("session.orj");
    {
        MainWindow window;
        action(window, "viewShowVectors").trigger();
        action(window, "viewPlotType3").trigger();
        ASSERT_TRUE(window.session().saveJournal(saved));
    }
    Kernel::resetKernel();
    Kernel::loadSampleDataSet();
    Kernel::captureMessageBoxes();
    MainWindow window;
    ASSERT_TRUE(window.session().replayJournal(saved)) << testsupport::messageTexts().front();
    EXPECT_EQ(OrrUtilFrameGetPlotType(), PlotType_XYLine);
    EXPECT_TRUE(styleValue<bool>({"FieldLayers", "ShowVector"}));
    EXPECT_TRUE(action(window, "viewShowVectors").isChecked());

    const QString bad = QDir(folder.path()).filePath("bad.orj");
    writeFile(bad, "style FrameLayout/PlotType 1\nstyle FrameLayout/PlotType 9\nstyle FieldLayers/ShowVector false\n");
    EXPECT_FALSE(window.session().replayJournal(bad));
    ASSERT_EQ(testsupport::messageTexts().size(), 1u);
    EXPECT_NE(testsupport::messageTexts().front().find(bad.toStdString() + ", line 2: the kernel refused"),
              std::string::npos)
        << testsupport::messageTexts().front();
    EXPECT_EQ(OrrUtilFrameGetPlotType(), PlotType_ThreeD);
    EXPECT_TRUE(styleValue<bool>({"FieldLayers", "ShowVector"}));
    EXPECT_FALSE(window.session().saveJournal(folder.path())) << "a folder cannot be written as a journal";
}

TEST_F(DemoHost, PointsColouredByCategoriesGetALegendOfTheirNames)
{
    std::string error;
    ASSERT_TRUE(orrery::sdk::DataLoaderRepository::getInstance()
                    .loaderNamed("CSV table")
                    ->load(std::string(ORRERY_TEST_SAMPLES) + "/text-column.csv", error))
        << error;
    Kernel::setStyle({"TwoDAxis", "XDetail", "VarNum"}, 2L);
    Kernel::setStyle({"TwoDAxis", "YDetail", "VarNum"}, 3L);
    HostPlotView view;
    view.resize(400, 300);
    // The first category's swatch, in the plot's top right corner.
    const QRgb firstCategory = qRgb(0, 0, 127);
    const auto swatchPixels = [&] { return pixelsOf(shown(view).copy(240, 20, 160, 80), firstCategory); };
    EXPECT_EQ(0, swatchPixels()) << "plain colour: no legend";
    Kernel::setStyle({"FieldMap", "Mesh", "Color"}, -1L, 1);
    EXPECT_GT(swatchPixels(), 50);
}

TEST_F(DemoHost, EverySampleFileOpensAndABadFileLeavesTheDataSet)
{
    MainWindow window;
    QStringList opened;
    for (const QFileInfo& info : QDir(ORRERY_TEST_SAMPLES).entryInfoList(QDir::Files, QDir::Name)) {
        const auto loaders =
            orrery::sdk::DataLoaderRepository::getInstance().loadersForExtension(info.suffix().toStdString());
        if (loaders.size() != 1)
            continue; // the loader chooser would ask; the loader tests cover those files
        Kernel::loadSampleDataSet();
        EXPECT_TRUE(window.session().loadFile(info.absoluteFilePath())) << info.fileName().toStdString();
        EXPECT_NE(orrery::kernel::Kernel::instance().dataSet().title(), "Heated plate")
            << info.fileName().toStdString();
        EXPECT_GT(OrrUtilZoneGetNumPoints(1), 0);
        opened << info.suffix();
    }
    EXPECT_GE(opened.count("vtk"), 2) << opened.join(" ").toStdString();
    EXPECT_TRUE(testsupport::messageTexts().empty());

    Kernel::loadSampleDataSet();
    QTemporaryDir folder;
    const QString broken = QDir(folder.path()).filePath("broken.vtk");
    writeFile(broken, "# vtk DataFile Version 3.0\nx\nASCII\nDATASET POLYDATA\nPOINTS 2 float\n0 0 0 1 1\n");
    EXPECT_FALSE(window.session().loadFile(broken));
    ASSERT_EQ(testsupport::messageTexts().size(), 1u);
    EXPECT_NE(testsupport::messageTexts().front().find("broken.vtk, line "), std::string::npos)
        << testsupport::messageTexts().front();
    EXPECT_EQ(orrery::kernel::Kernel::instance().dataSet().title(), "Heated plate");
}

TEST_F(DemoHost, TheTitleNamesTheFileAndItsChangesAndRecentFilesListWhatWasOpened)
{
    QTemporaryDir folder;
    const QDir dir(folder.path());
    writeFile(dir.filePath("first.csv"), "x,y\n1,2\n");
    writeFile(dir.filePath("second.csv"), "p,q,r\n1,2,3\n");
    MainWindow window;
    ASSERT_TRUE(window.session().open(dir.filePath("first.csv")));
    EXPECT_EQ(window.windowTitle(), "first.csv[*] - Orrery Prompts demo");
    EXPECT_FALSE(window.isWindowModified());
    action(window, "viewPlotType3").trigger();
    EXPECT_TRUE(window.isWindowModified());
    const QString session = dir.filePath("s.orrery-journal");
    ASSERT_TRUE(window.session().saveJournal(session));
    EXPECT_FALSE(window.isWindowModified());
    // Dropped on the window, a file opens as with File > Open.
    QMimeData dragged;
    dragged.setUrls({QUrl::fromLocalFile(dir.filePath("second.csv"))});
    QDragEnterEvent enter(QPoint(10, 10), Qt::CopyAction, &dragged, Qt::LeftButton, Qt::NoModifier);
    QApplication::sendEvent(&window, &enter);
    EXPECT_TRUE(enter.isAccepted());
    QDropEvent drop(QPointF(10, 10), Qt::CopyAction, &dragged, Qt::LeftButton, Qt::NoModifier);
    QApplication::sendEvent(&window, &drop);
    QApplication::processEvents();
    EXPECT_TRUE(window.windowTitle().startsWith("second.csv"));

    ASSERT_TRUE(window.session().open(session)) << "a session is replayed";
    EXPECT_TRUE(window.windowTitle().startsWith("first.csv"));
    EXPECT_EQ(OrrUtilFrameGetPlotType(), PlotType_XYLine);
    EXPECT_EQ(RecentFiles::paths().join(" "),
              (QStringList{session, dir.filePath("second.csv"), dir.filePath("first.csv")}).join(" "));
    QFile::remove(dir.filePath("second.csv"));
    QMenu* recent = window.findChild<QMenu*>("fileOpenRecent");
    ASSERT_NE(recent, nullptr);
    QMetaObject::invokeMethod(recent, "aboutToShow");
    ASSERT_EQ(recent->actions().size(), 3);
    EXPECT_FALSE(recent->actions()[1]->isEnabled()) << "a file that is gone is greyed";
    EXPECT_TRUE(recent->actions()[2]->isEnabled());
    EXPECT_EQ(recent->actions()[1]->toolTip(), QDir::toNativeSeparators(dir.filePath("second.csv")));
}

TEST_F(DemoHost, TheWindowsSizeAndDocksAreKeptForTheNextRun)
{
    EXPECT_FALSE(WindowLayout::restore(*std::make_unique<MainWindow>())) << "nothing kept yet";
    {
        MainWindow window;
        window.resize(700, 500);
        window.findChild<QDockWidget*>("journalDock")->setFloating(true);
        WindowLayout::save(window);
    }
    MainWindow window;
    EXPECT_TRUE(WindowLayout::restore(window));
    EXPECT_EQ(window.size(), QSize(700, 500));
    EXPECT_TRUE(window.findChild<QDockWidget*>("journalDock")->isFloating());
}

} // namespace
