#include "demo/window/StateView.h"
#include "demo/scene/HostText.h"
#include "demo/session/IdleBatch.h"

#include <QListWidget>
#include <QSplitter>
#include <QTreeWidget>
#include <QVBoxLayout>
#include "host/kernel/Kernel.h"
#include "host/kernel/KernelDriver.h"
#include "host/kernel/OrrUtilHost.h"
#include "platform/sdk/StateChangeEventObservable.h"

using orrery::kernel::KernelDriver;
using orrery::sdk::integration::StateChangeEventInterface;
using orrery::sdk::integration::StateChangeEventObservable;

namespace {

// The style values that the dialogs read or write.
const char* const WatchedPaths[] = {"FrameLayout/PlotType",       "GlobalRGB/RGBMode",
                                    "GlobalRGB/RedChannelVar",    "GlobalRGB/GreenChannelVar",
                                    "GlobalRGB/BlueChannelVar",   "GlobalRGB/RangeMin",
                                    "GlobalRGB/RangeMax",         "GlobalScatter/Var",
                                    "GlobalScatter/RelativeSize", "GlobalScatter/RelativeSizeInGridUnits",
                                    "TwoDAxis/XDetail/VarNum",    "TwoDAxis/YDetail/VarNum",
                                    "ThreeDAxis/XDetail/VarNum",  "ThreeDAxis/YDetail/VarNum",
                                    "ThreeDAxis/ZDetail/VarNum",  "GlobalTwoDVector/UVar",
                                    "GlobalTwoDVector/VVar",      "GlobalThreeDVector/UVar",
                                    "GlobalThreeDVector/VVar",    "GlobalThreeDVector/WVar",
                                    "FieldLayers/ShowVector"};

QString codeName(StateChange_e code)
{
    switch (code) {
    case StateChange_VarsAltered: return "variables altered";
    case StateChange_VarsAdded: return "variables added";
    case StateChange_ZonesDeleted: return "zones deleted";
    case StateChange_ZonesAdded: return "zones added";
    case StateChange_NodeMapsAltered: return "node maps altered";
    case StateChange_FrameDeleted: return "frame deleted";
    case StateChange_NewTopFrame: return "new top frame";
    case StateChange_Style: return "style";
    case StateChange_DataSetReset: return "data set reset";
    case StateChange_NewLayout: return "new layout";
    case StateChange_CompleteReset: return "complete reset";
    case StateChange_PageCountChanged: return "page count changed";
    case StateChange_FrameAdded: return "frame added";
    case StateChange_EnabledZonesChanged: return "enabled zones changed";
    case StateChange_EnabledVarsChanged: return "enabled variables changed";
    case StateChange_VarsDeleted: return "variables deleted";
    }
    return "other";
}

QString toText(const orrery::kernel::StyleDatum& datum)
{
    return std::visit(
        [](const auto& value) -> QString {
            using T = std::decay_t<decltype(value)>;
            if constexpr (std::is_same_v<T, std::string>)
                return QString::fromStdString(value);
            else if constexpr (std::is_same_v<T, bool>)
                return value ? "true" : "false";
            else
                return QString::number(value);
        },
        datum);
}

void setRow(QTreeWidgetItem& parent, int row, const QString& name, const QString& value)
{
    while (parent.childCount() <= row)
        new QTreeWidgetItem(&parent);
    parent.child(row)->setText(0, name);
    parent.child(row)->setText(1, value);
}

// The event list keeps the newest events; the journal keeps them all.
const int ListedEvents = 1000;

} // namespace

StateView::StateView(QWidget* parent)
    : QWidget(parent), m_tree(new QTreeWidget), m_events(new QListWidget),
      m_newEvents(new IdleBatch(
          [this](const QStringList& lines) {
              m_events->addItems(lines);
              while (m_events->count() > ListedEvents)
                  delete m_events->takeItem(0);
              m_events->scrollToBottom();
              refresh();
          },
          ListedEvents, this))
{
    m_tree->setColumnCount(2);
    m_tree->setHeaderLabels({tr("Item"), tr("Value")});
    m_tree->setIndentation(12);
    m_dataSet = new QTreeWidgetItem(m_tree, {tr("Data set")});
    m_style = new QTreeWidgetItem(m_tree, {tr("Style")});
    m_events->setObjectName("stateChangeEvents");
    auto* splitter = new QSplitter(Qt::Vertical);
    splitter->addWidget(m_tree);
    splitter->addWidget(m_events);
    auto* layout = new QVBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->addWidget(splitter);
    m_connection = StateChangeEventObservable::getInstance().signal().connect(
        [this](const StateChangeEventInterface& event) { stateChanged(event); });
    refresh();
    m_tree->expandAll();
    m_tree->resizeColumnToContents(0);
}

void StateView::refresh()
{
    refreshDataSet();
    refreshStyle();
}

void StateView::stateChanged(const StateChangeEventInterface& event)
{
    QString line = QString("%1 (%2)").arg(int(event.code())).arg(codeName(event.code()));
    if (!event.stylePath().empty())
        line += ": " + QString::fromStdString(event.stylePath().join("/"));
    m_newEvents->add(line);
}

void StateView::refreshDataSet()
{
    const bool available = OrrUtilDataSetIsAvailable();
    setRow(*m_dataSet, 0, tr("Title"), available ? takeHostText(OrrUtilDataSetGetTitle()) : tr("(none)"));
    setRow(*m_dataSet, 1, tr("Zones"), QString::number(available ? OrrUtilDataSetGetNumZones() : 0));
    QStringList variables;
    const orrery::kernel::DataSet& data = orrery::kernel::Kernel::instance().dataSet();
    for (int var = 1; available && var <= OrrUtilDataSetGetNumVars(); ++var) {
        QString name = takeHostText(OrrUtilVarGetName(var));
        // A text column: show its categories, the first few by name.
        if (data.hasVar(var) && !data.categories(var).empty()) {
            const std::vector<std::string>& categories = data.categories(var);
            QStringList shown;
            for (size_t i = 0; i < categories.size() && i < 4; ++i)
                shown << QString::fromStdString(categories[i]);
            if (categories.size() > 4)
                shown << "...";
            name += tr(" (%n categories: %1)", nullptr, int(categories.size())).arg(shown.join(", "));
        }
        variables << name;
    }
    setRow(*m_dataSet, 2, tr("Variables"), variables.join(", "));
    setRow(*m_dataSet, 3, tr("Plot type"), QString::number(int(OrrUtilFrameGetPlotType())));
}

void StateView::refreshStyle()
{
    int row = 0;
    for (const char* path : WatchedPaths) {
        QString value;
        try {
            orrery::toolbox::StringList names;
            for (const QString& name : QString(path).split('/'))
                names.append(name.toStdString());
            value = toText(KernelDriver::styleValue(names));
        } catch (const std::exception& e) {
            value = tr("(unreadable: %1)").arg(e.what());
        }
        setRow(*m_style, row++, path, value);
    }
}
