#pragma once
#include <boost/signals2/connection.hpp>
#include "plot/PlotView.h"

// The plot of the host's current frame, drawn anew after every state change.
class HostPlotView : public PlotView
{
    Q_OBJECT
public:
    explicit HostPlotView(QWidget* parent = nullptr);

private:
    boost::signals2::scoped_connection m_stateChanges;
};
