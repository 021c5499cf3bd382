#include "demo/scene/HostPlotView.h"

#include "demo/scene/HostScene.h"
#include "platform/sdk/StateChangeEventObservable.h"

using orrery::sdk::integration::StateChangeEventInterface;
using orrery::sdk::integration::StateChangeEventObservable;

namespace {

// A change that gives the axes other variables or other data makes a zoom meaningless.
bool movesTheAxes(const StateChangeEventInterface& event)
{
    if (event.code() != StateChange_Style)
        return event.code() != StateChange_NodeMapsAltered && event.code() != StateChange_EnabledZonesChanged;
    for (const std::string& name : event.stylePath())
        if (name == "VarNum" || name == "PlotType" || name == "IsLog")
            return true;
    return false;
}

} // namespace

HostPlotView::HostPlotView(QWidget* parent) : PlotView(&HostScene::read, parent)
{
    m_stateChanges = StateChangeEventObservable::getInstance().signal().connect(
        [this](const StateChangeEventInterface& event) { sceneChanged(movesTheAxes(event)); });
}
