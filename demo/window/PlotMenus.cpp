#include "demo/window/PlotMenus.h"

#include <QAction>
#include <QApplication>
#include <QClipboard>
#include <QFileDialog>
#include <QMenu>
#include "demo/launchers/AxisTitlesDialog.h"
#include "demo/scene/HostText.h"
#include "plot/ColourRamp.h"
#include "demo/scene/HostStyle.h"
#include "demo/session/Messages.h"
#include "demo/common/Mnemonics.h"
#include "demo/window/PlotExport.h"
#include "demo/window/PlotExportDialog.h"
#include "demo/scene/HostScene.h"
#include "plot/PlotScene.h"
#include "plot/PlotView.h"
#include "host/kernel/OrrUtilHost.h"

namespace {

const char* const LogKeys[2] = {"TwoDAxis/XDetail/IsLog", "TwoDAxis/YDetail/IsLog"};

} // namespace

PlotMenus::PlotMenus(Messages& messages, QWidget& window, PlotView& plot, QMenu& file, QMenu& edit, QMenu& view)
    : QObject(&window), m_messages(messages), m_window(window), m_plot(plot)
{
    QAction* exportAction = new QAction(tr("E&xport Plot..."), this);
    exportAction->setObjectName("fileExportPlot");
    exportAction->setShortcut(QKeySequence(Qt::CTRL | Qt::Key_E));
    connect(exportAction, &QAction::triggered, this, &PlotMenus::exportPlot);
    file.addAction(exportAction);
    QAction* copy = edit.addAction(tr("&Copy Plot"), this, &PlotMenus::copyPlot);
    copy->setObjectName("editCopyPlot");
    copy->setShortcut(QKeySequence(Qt::CTRL | Qt::SHIFT | Qt::Key_C));

    view.addSeparator();
    QAction* reset = view.addAction(tr("Show &All Data"), &plot, &PlotView::resetWindow);
    reset->setObjectName("viewShowAll");
    reset->setToolTip(tr("Undo the zoom and pan of the plot (Home in the plot)"));
    const QString logTexts[2] = {tr("Logarithmic &X Axis"), tr("Logarithmic &Y Axis")};
    for (int a = 0; a < 2; ++a) {
        m_log[a] = view.addAction(logTexts[a], this, [this, a](bool on) { setLog(a, on); });
        m_log[a]->setCheckable(true);
        m_log[a]->setObjectName(a == 0 ? "viewLogX" : "viewLogY");
    }
    QAction* titles = view.addAction(tr("Axis &Titles..."), this, &PlotMenus::editAxisTitles);
    titles->setObjectName("viewAxisTitles");
    m_lines = view.addMenu(tr("Y Variables as &Lines"));
    m_lines->setObjectName("viewLineVariables");
    connect(m_lines, &QMenu::aboutToShow, this, [this] { fillLines(*m_lines); });
    QMenu* colourBy = view.addMenu(tr("&Color Points By"));
    colourBy->setObjectName("viewColorBy");
    connect(colourBy, &QMenu::aboutToShow, this, [this, colourBy] { fillColourBy(*colourBy); });
    QMenu* colourMap = view.addMenu(tr("Color &Map"));
    colourMap->setObjectName("viewColorMap");
    connect(colourMap, &QMenu::aboutToShow, this, [this, colourMap] { fillColourMap(*colourMap); });

    plot.setContextMenuPolicy(Qt::ActionsContextMenu);
    auto* separator = new QAction(this);
    separator->setSeparator(true);
    plot.addActions({reset, m_log[0], m_log[1], titles, m_lines->menuAction(), colourBy->menuAction(),
                     colourMap->menuAction(), separator, exportAction, copy});
}

void PlotMenus::refresh()
{
    m_lines->setEnabled(OrrUtilFrameGetPlotType() == PlotType_XYLine);
    const bool twoD = OrrUtilFrameGetPlotType() != PlotType_ThreeD;
    for (int a = 0; a < 2; ++a) {
        m_log[a]->setChecked(HostStyle::flag(LogKeys[a]));
        m_log[a]->setEnabled(twoD);
    }
}

// Automatic names the variable it colours by; a check mark shows only what
// the plot shows: none while no zone is coloured by a map.
void PlotMenus::fillColourBy(QMenu& menu)
{
    menu.clear();
    const PlotScene scene = HostScene::read();
    const long chosen = scene.anyRamp() ? HostStyle::integer("GlobalContour/Var") : -1;
    for (int var = 0; var <= OrrUtilDataSetGetNumVars(); ++var) {
        if (var > 0 && !OrrUtilVarIsEnabled(var))
            continue;
        const QString automatic = takeHostText(OrrUtilVarGetName(scene.automaticContourVar));
        QAction* action =
            menu.addAction(var == 0 ? (automatic.isEmpty() ? tr("&Automatic")
                                                           : tr("&Automatic (%1)").arg(Mnemonics::escaped(automatic)))
                                    : Mnemonics::escaped(takeHostText(OrrUtilVarGetName(var))),
                           this, [this, var] { colourBy(var); });
        action->setCheckable(true);
        action->setChecked(var == chosen);
        if (var == 0)
            menu.addSeparator();
    }
    Mnemonics::assign(menu);
}

// Every variable but X, those drawn as lines ticked.
void PlotMenus::fillLines(QMenu& menu)
{
    menu.clear();
    const PlotScene scene = HostScene::read();
    for (int var = 1; var <= OrrUtilDataSetGetNumVars(); ++var) {
        if (!OrrUtilVarIsEnabled(var) || var == scene.axes[0].var)
            continue;
        QAction* action = menu.addAction(Mnemonics::escaped(takeHostText(OrrUtilVarGetName(var))), this,
                                         [this, var](bool on) { showLine(var, on); });
        action->setCheckable(true);
        action->setChecked(std::find(scene.lineVars.begin(), scene.lineVars.end(), var) != scene.lineVars.end());
    }
    Mnemonics::assign(menu);
}

// The first line's variable is the Y axis's; the others are listed after it. At least one stays.
void PlotMenus::showLine(int var, bool on)
{
    std::vector<int> vars = HostScene::read().lineVars;
    vars.erase(std::remove(vars.begin(), vars.end(), var), vars.end());
    if (on)
        vars.push_back(var);
    if (vars.empty()) {
        m_messages.complain(tr("An XY line plot draws at least one Y variable."));
        return;
    }
    QStringList more;
    for (size_t k = 1; k < vars.size(); ++k)
        more << QString::number(vars[k]);
    std::string error;
    const bool ok = HostStyle::inOneStep(
        "Y Variables",
        [&](std::string& refusal) {
            return (HostStyle::integer("TwoDAxis/YDetail/VarNum") == vars.front()
                    || HostStyle::setInteger("TwoDAxis/YDetail/VarNum", vars.front(), &refusal))
                   && HostStyle::setText("TwoDAxis/YDetail/MoreVarNums", more.join(' ').toStdString(), &refusal);
        },
        &error);
    if (!ok)
        m_messages.complain(QString::fromStdString(error));
}

void PlotMenus::fillColourMap(QMenu& menu)
{
    menu.clear();
    const long chosen = HostStyle::integer("GlobalContour/ColorMap");
    for (int map = 0; map < ColourRamp::Count; ++map) {
        QAction* action = menu.addAction(ColourRamp::name(map), this, [this, map] {
            std::string error;
            if (!HostStyle::setInteger("GlobalContour/ColorMap", map, &error))
                m_messages.complain(QString::fromStdString(error));
        });
        action->setCheckable(true);
        action->setChecked(map == chosen);
    }
    Mnemonics::assign(menu);
}

// Colouring by a variable shows only on zones coloured by a map: zones in one
// plain colour are given the first map colouring in the same step.
void PlotMenus::colourBy(int var)
{
    std::string error;
    const bool ok = HostStyle::inOneStep(
        "Color By Variable",
        [var](std::string& refusal) {
            bool written = HostStyle::setInteger("GlobalContour/Var", var, &refusal);
            for (int zone = 1; written && zone <= OrrUtilDataSetGetNumZones(); ++zone)
                if (HostStyle::integer("FieldMap/Mesh/Color", zone) >= 0)
                    written = HostStyle::setInteger("FieldMap/Mesh/Color", -1, &refusal, zone);
            return written;
        },
        &error);
    if (!ok)
        m_messages.complain(QString::fromStdString(error));
}

// All titles in one undoable step.
void PlotMenus::editAxisTitles()
{
    AxisTitlesDialog dialog(&m_window);
    if (dialog.exec() != QDialog::Accepted)
        return;
    const std::vector<std::string> titles = dialog.titles();
    bool changed = false;
    for (size_t a = 0; a < titles.size(); ++a)
        changed = changed || HostStyle::text(dialog.paths()[a]) != titles[a];
    if (!changed)
        return;
    std::string error;
    const bool ok = HostStyle::inOneStep(
        "Axis Titles",
        [&](std::string& refusal) {
            for (size_t a = 0; a < titles.size(); ++a)
                if (HostStyle::text(dialog.paths()[a]) != titles[a]
                    && !HostStyle::setText(dialog.paths()[a], titles[a], &refusal))
                    return false;
            return true;
        },
        &error);
    if (!ok)
        m_messages.complain(QString::fromStdString(error));
}

void PlotMenus::setLog(int axis, bool on)
{
    std::string error;
    if (!HostStyle::setFlag(LogKeys[axis], on, &error))
        m_messages.complain(QString::fromStdString(error));
    refresh();
}

void PlotMenus::exportPlot()
{
    PlotExportDialog size(m_plot.size(), &m_window);
    if (size.exec() != QDialog::Accepted)
        return;
    const QString path = QFileDialog::getSaveFileName(&m_window, tr("Export Plot"), "plot.png", PlotExport::filter());
    if (path.isEmpty())
        return;
    QString error;
    if (PlotExport::write(m_plot.scene(), m_plot.viewpoint(), path, size.plotSize(), size.ratio(), &error))
        m_messages.report(tr("Exported the plot to %1").arg(path));
    else
        m_messages.complain(error);
}

void PlotMenus::copyPlot()
{
    QApplication::clipboard()->setImage(
        PlotExport::image(m_plot.scene(), m_plot.viewpoint(), m_plot.size(), m_plot.devicePixelRatioF()));
    m_messages.report(tr("Copied the plot to the clipboard"));
}
