#pragma once
#include <cstdint>
#include <functional>
#include <memory>
#include <optional>
#include <string>
#include <vector>
#include "host/kernel/DataSet.h"
#include "host/kernel/Frame.h"
#include "host/kernel/Journal.h"
#include "host/kernel/MessageBoxPresenter.h"
#include "host/kernel/StyleAccess.h"
#include "host/kernel/StyleSchema.h"
#include "host/kernel/UndoStack.h"

namespace orrery {
namespace kernel {

// The stand-in kernel: data set, pages and frames with their style, undo, the
// last style error and message boxes. Every change is announced through the
// state-change observable.
class Kernel
{
public:
    static Kernel& instance();

    // One page with one frame, no data set, default style, nothing to undo, an
    // empty journal.
    void reset();

    const DataSet& dataSet() const { return *m_dataSet; }
    // The same, shared: whoever reads its values on another thread holds it
    // so that a new data set does not free them under it.
    std::shared_ptr<const DataSet> sharedDataSet() const { return m_dataSet; }
    // Tells the data sets apart: a new number each time the data set is replaced.
    std::uint64_t dataSetNumber() const { return m_dataSetNumber; }
    // Every frame then starts a new figure (startNewFigure) and the undo
    // history starts afresh. A gate, when one is set, is asked first; false
    // keeps the current data set.
    void setDataSet(DataSet dataSet);
    // The style paths the last new data set reset in the current frame.
    const std::vector<std::string>& newFigureReset() const { return m_newFigureReset; }
    // Set while a load checks the file it reads (see FileLoad); returns the
    // gate it replaces.
    typedef std::function<bool()> DataSetGate;
    DataSetGate setDataSetGate(DataSetGate gate);

    // What was wrong with the host's settings when the kernel was made, one
    // message each, for the host to show.
    const std::vector<std::string>& settingsProblems() const { return m_settingsProblems; }

    int pageCount() const { return m_pageCount; }
    // Without pages there are no frames.
    void setPageCount(int pages);
    int frameCount() const { return static_cast<int>(m_frames.size()); }
    // Frames live on the current page (made if there is none). New frames become
    // current.
    void setFrameCount(int frames);
    Frame* currentFrame();
    const Frame* currentFrame() const;
    // 1-based position on the page; null when out of range.
    Frame* frameAt(int position);
    Frame* frameByID(long uniqueID);

    void setEnabledZones(const toolbox::Set& zones);
    void setEnabledVars(const toolbox::Set& vars);

    // The current frame's value at key, the default without a frame.
    StyleDatum currentStyle(const std::string& key, long member = 0) const;
    PlotType_e plotType() const;
    // Ranges of the frame's X and Y axis variables over its enabled zones;
    // 0 to 1 where there is no such range, widened by 1 where it is a point.
    void axisGridRange(double& xMin, double& yMin, double& xMax, double& yMax) const;
    bool undo();
    bool redo();

    const StyleSchema& schema() const { return m_schema; }
    StyleAccess& style() { return m_style; }
    UndoStack& undoStack() { return m_undo; }
    Journal& journal() { return m_journal; }
    MessageBoxPresenter& messageBoxes() { return m_messageBoxes; }

    const std::optional<std::string>& lastError() const { return m_lastError; }
    void setLastError(const std::optional<std::string>& text) { m_lastError = text; }

    void announce(StateChange_e code, const toolbox::StringList& stylePath = {}) const;

private:
    Kernel();
    void addFrame();
    void useWholeDataSet(Frame& frame) const;
    std::vector<std::string> startNewFigure(Frame& frame) const;
    // Enables those of the wanted zones or variables that exist in the current
    // frame; announces the change only when the enabled set changed.
    void setEnabled(toolbox::Set Frame::*enabled, const toolbox::Set& wanted, bool (DataSet::*exists)(int) const,
                    StateChange_e code);
    void axisRange(const std::string& axisKey, double& min, double& max) const;

    StyleSchema m_schema;
    StyleAccess m_style;
    UndoStack m_undo;
    Journal m_journal;
    MessageBoxPresenter m_messageBoxes;
    // Never changed in place, only replaced; never null.
    std::shared_ptr<const DataSet> m_dataSet = std::make_shared<const DataSet>();
    std::uint64_t m_dataSetNumber = 0;
    int m_pageCount = 0;
    std::vector<Frame> m_frames;
    size_t m_current = 0;
    long m_nextFrameID = 1;
    std::optional<std::string> m_lastError;
    DataSetGate m_dataSetGate;
    std::vector<std::string> m_settingsProblems;
    std::vector<std::string> m_newFigureReset;
};

} // namespace kernel
} // namespace orrery
