#pragma once

struct PlotScene;

// The one place the plot meets the host: reads the current frame's style and
// data into a scene, and keeps the ranges of the values until the data change.
class HostScene
{
public:
    // The colour chooser's "RGB" entry: red, green and blue from three variables.
    static constexpr int RGBColoring = -6;

    static PlotScene read();
};
