#include "host/kernel/Kernel.h"
#include <algorithm>
#include <utility>
#include "host/kernel/VariableFit.h"
#include "host/loaders/BuiltInLoaders.h"
#include "host/settings/SettingsFile.h"
#include "platform/sdk/StateChangeEvent.h"
#include "platform/sdk/StateChangeEventObservable.h"

namespace orrery {
namespace kernel {

namespace {
const char* const PlotTypeKey = "FrameLayout/PlotType";

// Puts the style back as an undo or redo step says and journals the step;
// false when there was no step to take.
bool takeStep(const UndoStack::Step& step, bool undoing, StyleAccess& style, Journal& journal)
{
    style.restore(step, undoing);
    if (step.empty())
        return false;
    if (undoing)
        journal.recordUndo();
    else
        journal.recordRedo();
    return true;
}
} // namespace

Kernel& Kernel::instance()
{
    static Kernel kernel;
    return kernel;
}

// Built quietly: announcing here would call back into a kernel not yet made.
namespace {

// How many steps Undo can take back: the host's setting "UndoStepLimit".
size_t undoStepLimit(std::vector<std::string>& problems)
{
    const std::string text = host::SettingsFile::instance().getStringValue("UndoStepLimit");
    std::string problem;
    const size_t steps = text.empty() ? UndoStack::DefaultLimit : UndoStack::limitFromSetting(text, problem);
    if (!problem.empty())
        problems.push_back(problem);
    return steps;
}

} // namespace

Kernel::Kernel() : m_style(*this)
{
    host::installBuiltInLoaders();
    m_undo.setLimit(undoStepLimit(m_settingsProblems));
    m_pageCount = 1;
    addFrame();
}

void Kernel::reset()
{
    m_undo.clear();
    m_journal.clear();
    m_style.reset();
    m_lastError.reset();
    m_newFigureReset.clear();
    m_messageBoxes.setHandler({});
    m_dataSet = std::make_shared<const DataSet>();
    ++m_dataSetNumber;
    m_frames.clear();
    m_pageCount = 1;
    addFrame();
    announce(StateChange_NewLayout);
}

// A new data set starts a new figure: what belongs to the old data goes back
// to its default (the part of each zone drawn, the zone picked out, a title
// given to the old data, variables the new data lack, logarithmic axes over
// values not all positive); preferences (colour map, symbol, the rest) carry
// over. Frame must be the current frame: the default rules read it. Returns the
// paths whose value changed.
std::vector<std::string> Kernel::startNewFigure(Frame& frame) const
{
    const StyleState before = frame.style();
    useWholeDataSet(frame);
    frame.style().dropMembersAfter(m_dataSet->numZones());
    const auto valueOf = [&](const std::string& key) { return m_schema.valueIn(frame.style(), key, 0); };
    VariableFit::apply(frame.style(), m_schema, m_dataSet->numVars(),
                       static_cast<PlotType_e>(std::get<long>(valueOf(PlotTypeKey))));
    // What names the old data: its points, zones, title, the further lines and the axis titles with their units.
    for (const char* key :
         {"IndexRange/Begin", "IndexRange/End", "IndexRange/Skip", "FrameLayout/ActiveZone", "FrameLayout/Title",
          "TwoDAxis/YDetail/MoreVarNums", "TwoDAxis/XDetail/Title", "TwoDAxis/YDetail/Title",
          "ThreeDAxis/XDetail/Title", "ThreeDAxis/YDetail/Title", "ThreeDAxis/ZDetail/Title"})
        frame.style().store(key, 0, m_schema.find(key)->defaultValue);
    for (const std::string axis : {"TwoDAxis/XDetail/", "TwoDAxis/YDetail/"}) {
        double min = 0.0, max = 0.0;
        const int var = static_cast<int>(std::get<long>(valueOf(axis + "VarNum")));
        if (std::get<bool>(valueOf(axis + "IsLog")) && m_dataSet->range(var, frame.enabledZones, min, max)
            && min <= 0.0)
            frame.style().store(axis + "IsLog", 0, false);
    }
    std::vector<std::string> changed;
    for (const std::string& key : m_schema.keys())
        if (m_schema.valueIn(before, key, 0) != valueOf(key))
            changed.push_back(key);
    return changed;
}

Kernel::DataSetGate Kernel::setDataSetGate(DataSetGate gate)
{
    std::swap(gate, m_dataSetGate);
    return gate;
}

void Kernel::setDataSet(DataSet dataSet)
{
    if (m_dataSetGate && !m_dataSetGate())
        return;
    m_dataSet = std::make_shared<const DataSet>(std::move(dataSet));
    ++m_dataSetNumber;
    const size_t current = m_current;
    m_newFigureReset.clear();
    for (size_t i = 0; i < m_frames.size(); ++i) {
        m_current = i; // the default rules read the current frame
        std::vector<std::string> reset = startNewFigure(m_frames[i]);
        if (i == current)
            m_newFigureReset = std::move(reset);
    }
    m_current = current;
    // An undo step names variables and zones of the data set it was made on.
    m_undo.clear();
    announce(StateChange_DataSetReset);
}

void Kernel::setPageCount(int pages)
{
    pages = std::max(pages, 0);
    if (pages == m_pageCount)
        return;
    m_pageCount = pages;
    if (pages == 0 && !m_frames.empty()) {
        m_frames.clear();
        announce(StateChange_FrameDeleted);
    }
    announce(StateChange_PageCountChanged);
}

void Kernel::setFrameCount(int frames)
{
    const size_t wanted = static_cast<size_t>(std::max(frames, 0));
    if (wanted == m_frames.size())
        return;
    if (wanted > 0 && m_pageCount == 0)
        setPageCount(1);
    if (wanted < m_frames.size()) {
        const bool currentLost = m_current >= wanted;
        m_frames.erase(m_frames.begin() + static_cast<long>(wanted), m_frames.end());
        if (currentLost)
            m_current = wanted > 0 ? wanted - 1 : 0;
        announce(StateChange_FrameDeleted);
        if (currentLost && wanted > 0)
            announce(StateChange_NewTopFrame);
        return;
    }
    while (m_frames.size() < wanted)
        addFrame();
    announce(StateChange_FrameAdded);
    announce(StateChange_NewTopFrame);
}

Frame* Kernel::currentFrame()
{
    return m_frames.empty() ? nullptr : &m_frames[m_current];
}

const Frame* Kernel::currentFrame() const
{
    return m_frames.empty() ? nullptr : &m_frames[m_current];
}

Frame* Kernel::frameAt(int position)
{
    if (position < 1 || position > frameCount())
        return nullptr;
    return &m_frames[static_cast<size_t>(position - 1)];
}

Frame* Kernel::frameByID(long uniqueID)
{
    const auto it =
        std::find_if(m_frames.begin(), m_frames.end(), [uniqueID](const Frame& f) { return f.uniqueID() == uniqueID; });
    return it == m_frames.end() ? nullptr : &*it;
}

void Kernel::setEnabledZones(const toolbox::Set& zones)
{
    setEnabled(&Frame::enabledZones, zones, &DataSet::hasZone, StateChange_EnabledZonesChanged);
}

void Kernel::setEnabledVars(const toolbox::Set& vars)
{
    setEnabled(&Frame::enabledVars, vars, &DataSet::hasVar, StateChange_EnabledVarsChanged);
}

void Kernel::setEnabled(toolbox::Set Frame::*enabled, const toolbox::Set& wanted, bool (DataSet::*exists)(int) const,
                        StateChange_e code)
{
    Frame* frame = currentFrame();
    if (!frame)
        return;
    toolbox::Set kept;
    for (int index : wanted)
        if ((m_dataSet.get()->*exists)(index))
            kept.add(index);
    if (kept == frame->*enabled)
        return;
    frame->*enabled = kept;
    announce(code);
}

StyleDatum Kernel::currentStyle(const std::string& key, long member) const
{
    if (const Frame* frame = currentFrame())
        return m_schema.valueIn(frame->style(), key, member);
    return m_schema.valueIn(StyleState(), key, member);
}

PlotType_e Kernel::plotType() const
{
    if (!currentFrame())
        return PlotType_Sketch;
    return static_cast<PlotType_e>(std::get<long>(currentStyle(PlotTypeKey)));
}

void Kernel::axisGridRange(double& xMin, double& yMin, double& xMax, double& yMax) const
{
    const std::string axes = plotType() == PlotType_ThreeD ? "ThreeDAxis/" : "TwoDAxis/";
    axisRange(axes + "XDetail/VarNum", xMin, xMax);
    axisRange(axes + "YDetail/VarNum", yMin, yMax);
}

void Kernel::axisRange(const std::string& axisKey, double& min, double& max) const
{
    const Frame* frame = currentFrame();
    const int var = static_cast<int>(std::get<long>(currentStyle(axisKey)));
    if (!frame || !frame->enabledVars.contains(var) || !m_dataSet->range(var, frame->enabledZones, min, max)) {
        min = 0.0;
        max = 1.0;
    } else if (min == max) {
        min -= 0.5;
        max += 0.5;
    }
}

// Inside an open bracket the step before it is not the one in progress: undo
// and redo wait until the bracket closes, here as in a replayed journal.
bool Kernel::undo()
{
    return !m_undo.bracketOpen() && takeStep(m_undo.undo(), true, m_style, m_journal);
}

bool Kernel::redo()
{
    return !m_undo.bracketOpen() && takeStep(m_undo.redo(), false, m_style, m_journal);
}

void Kernel::announce(StateChange_e code, const toolbox::StringList& stylePath) const
{
    sdk::integration::StateChangeEventObservable::getInstance().emitStateChange(
        sdk::integration::StateChangeEvent(code, stylePath));
}

void Kernel::addFrame()
{
    Frame frame(m_nextFrameID++);
    useWholeDataSet(frame);
    m_frames.push_back(frame);
    m_current = m_frames.size() - 1;
}

void Kernel::useWholeDataSet(Frame& frame) const
{
    frame.enabledZones = m_dataSet->allZones();
    frame.enabledVars = m_dataSet->allVars();
}

} // namespace kernel
} // namespace orrery
