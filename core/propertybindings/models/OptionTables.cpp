#include "core/propertybindings/models/OptionTables.h"

namespace orrery::sdk::ui::dialogs::propertybindings::models {

const OptionRow<int> isoSurfaceSelections[4] = {
    {"Contour Group Levels", 0},
    {"1 Specified Value", 1},
    {"2 Specified Values", 2},
    {"3 Specified Values", 3},
};

const OptionRow<int> valueBlankCellModes[3] = {
    {"all corners are blanked", 0},
    {"any corner is blanked", 1},
    {"primary value is blanked", 2},
};

const OptionRow<int> valueBlankRelOp[6] = {
    {"is less than or equal to", 0},
    {"is greater than or equal to", 1},
    {"is less than", 2},
    {"is greater than", 3},
    {"is equal to", 4},
    {"is not equal to", 5},
};

const OptionRow<int> linePatterns[6] = {
    {"Solid", 0},
    {"Dashed", 1},
    {"Dash dot", 2},
    {"Dotted", 3},
    {"Long dash", 4},
    {"Dash dot dot", 5},
};

const OptionRow<int> clippingValues[2] = {
    {"Viewport", 0},
    {"Frame", 1},
};

const OptionRow<int> drawOrders[2] = {
    {"Before data", 1},
    {"After data", 0},
};

const OptionRow<int> loadOnDemandUnloadStrategy[3] = {
    {"Auto unload", 0},
    {"Never unload", 1},
    {"Minimize memory use", 2},
};

const OptionRow<int> tickDirection[3] = {
    {"In", 0},
    {"Out", 1},
    {"Center", 2},
};

const OptionRow<int> labelAlignment[3] = {
    {"At angle", 0},
    {"Parallel", 1},
    {"Perpendicular", 2},
};

const OptionRow<double> labelAngle[13] = {
    {"0", 0.0},
    {"90", 90.0},
    {"75", 75.0},
    {"60", 60.0},
    {"45", 45.0},
    {"30", 30.0},
    {"15", 15.0},
    {"-15", -15.0},
    {"-30", -30.0},
    {"-45", -45.0},
    {"-60", -60.0},
    {"-75", -75.0},
    {"-90", -90.0},
};

const OptionRow<int> sliceSurface[7] = {
    {"X-Planes", 0},
    {"Y-Planes", 1},
    {"Z-Planes", 2},
    {"I-Planes", 3},
    {"J-Planes", 4},
    {"K-Planes", 5},
    {"Arbitrary", 7},
};

const OptionRow<int> sliceGroup[8] = {
    {"1", 1},
    {"2", 2},
    {"3", 3},
    {"4", 4},
    {"5", 5},
    {"6", 6},
    {"7", 7},
    {"8", 8},
};

const OptionRow<int> contourType[5] = {
    {"Lines", 0},
    {"Flood", 1},
    {"Lines and flood", 2},
    {"Average cell flood", 3},
    {"Primary value flood", 4},
};

const OptionRow<int> surfaceGenerationMethod[4] = {
    {"Auto", 3},
    {"Allow Quads (Smoother Contours)", 0},
    {"All Triangles (Avoids Holes)", 1},
    {"All Polygons (Preserves Mesh)", 2},
};

const OptionRow<int> lightingEffect[2] = {
    {"Paneled", 0},
    {"Gouraud", 1},
};

const OptionRow<int> rgbMode[4] = {
    {"Specify R, G, and B", 0},
    {"Specify R&G, calculate B", 1},
    {"Specify R&B, calculate G", 2},
    {"Specify G&B, calculate R", 3},
};

const OptionRow<int> streamDirection[3] = {
    {"Forward", 0},
    {"Backward", 1},
    {"Both", 2},
};

const OptionRow<int> vectorType[4] = {
    {"Tail at point", 0},
    {"Head at point", 1},
    {"Anchor at midpoint", 2},
    {"Head only", 3},
};

const OptionRow<int> arrowheadStyle[3] = {
    {"Plain", 0},
    {"Filled", 1},
    {"Hollow", 2},
};

const OptionRow<double> arrowheadSizes[5] = {
    {"1", 1.0},
    {"3", 3.0},
    {"5", 5.0},
    {"8", 8.0},
    {"12", 12.0},
};

const OptionRow<double> arrowheadAngles[8] = {
    {"8", 8.0},
    {"10", 10.0},
    {"12", 12.0},
    {"14", 14.0},
    {"16", 16.0},
    {"18", 18.0},
    {"20", 20.0},
    {"22", 22.0},
};

const OptionRow<int> geomShape[14] = {
    {"Square", 0},
    {"Delta", 1},
    {"Gradient", 2},
    {"Right triangle", 3},
    {"Left triangle", 4},
    {"Diamond", 5},
    {"Circle", 6},
    {"Point", 10},
    {"Cube", 7},
    {"Sphere", 8},
    {"Octahedron", 9},
    {"Character", 255},
    {"PieChart", 11},
    {"LineArt", 12},
};

const OptionRow<int> fileOrScreenAnimationDest[2] = {
    {"On screen", 0},
    {"To file", 1},
};

const OptionRow<int> animationOperations[4] = {
    {"Forward", 0},
    {"Backward", 1},
    {"Loop", 2},
    {"Bounce", 3},
};

const OptionRow<int> dataTypes[7] = {
    {"Auto", 255},
    {"Single", 1},
    {"Double", 2},
    {"Long int", 3},
    {"Short int", 4},
    {"Byte", 5},
    {"Bit", 6},
};

const OptionRow<int> valueLocations[3] = {
    {"Auto", 255},
    {"Node", 1},
    {"Cell center", 0},
};

const OptionRow<int> auxDataLocations[7] = {
    {"Zone", 0},
    {"Data set", 1},
    {"Frame", 2},
    {"Variable", 3},
    {"Line map", 4},
    {"Page", 5},
    {"Layout", 6},
};

const OptionRow<double> patternLengthValues[5] = {
    {"0.5", 0.5},
    {"0.8", 0.8},
    {"2", 2.0},
    {"3", 3.0},
    {"5", 4.0},
};

const OptionRow<int> coordSystem[2] = {
    {"Frame", 1},
    {"Grid", 0},
};

const OptionRow<int> fontSizeUnits[2] = {
    {"Points", 2},
    {"Frame%", 1},
};

const OptionRow<int> fontSizeWithGridUnits[3] = {
    {"Points", 2},
    {"Frame%", 1},
    {"Grid", 0},
};

const OptionRow<bool> drawGridLast[2] = {
    {"First", false},
    {"Last", true},
};

const OptionRow<int> contourColorMapData[45] = {
    {"Sm rainbow", 0},
    {"Lg rainbow", 1},
    {"Modern", 2},
    {"Gray scale", 3},
    {"Wild", 4},
    {"User def", 5},
    {"Two color", 6},
    {"Raw user def", 7},
    {"Diverging - brown/green", 10},
    {"Diverging - pink/yellow/green", 12},
    {"Diverging - purple/green", 13},
    {"Diverging - orange/purple", 11},
    {"Diverging - blue/red", 8},
    {"Diverging - blue/yellow/red", 9},
    {"Doppler", 14},
    {"Elevation - above ground level", 15},
    {"Elevation - absolute", 16},
    {"Hot metal", 17},
    {"Magma", 18},
    {"Modified rainbow - dark ends", 19},
    {"Modified rainbow - less green", 20},
    {"Qualitative - accent", 21},
    {"Qualitative - dark", 22},
    {"Qualitative - dark 2", 23},
    {"Qualitative - paired", 24},
    {"Qualitative - pastel", 25},
    {"Qualitative - pastel 2", 26},
    {"Qualitative - pastel 3", 27},
    {"Sequential - blue", 28},
    {"Sequential - blue/green", 29},
    {"Sequential - blue/purple", 30},
    {"Sequential - green", 31},
    {"Sequential - green/blue", 32},
    {"Sequential - orange", 33},
    {"Sequential - orange/red", 34},
    {"Sequential - pink/purple", 35},
    {"Sequential - purple", 36},
    {"Sequential - purple/blue", 37},
    {"Sequential - purple/blue/green", 38},
    {"Sequential - purple/red", 39},
    {"Sequential - red", 40},
    {"Sequential - yellow/green", 41},
    {"Sequential - yellow/green/blue", 42},
    {"Sequential - yellow/orange/brn", 43},
    {"Sequential - yellow/orange/red", 44},
};

const OptionRow<int> pointSelection[3] = {
    {"Nearest N", 1},
    {"Octant", 2},
    {"All", 0},
};

const OptionRow<int> smIntegerOneToThrityTwo[32] = {
    {"1", 1},
    {"2", 2},
    {"3", 3},
    {"4", 4},
    {"5", 5},
    {"6", 6},
    {"7", 7},
    {"8", 8},
    {"9", 9},
    {"10", 10},
    {"11", 11},
    {"12", 12},
    {"13", 13},
    {"14", 14},
    {"15", 15},
    {"16", 16},
    {"17", 17},
    {"18", 18},
    {"19", 19},
    {"20", 20},
    {"21", 21},
    {"22", 22},
    {"23", 23},
    {"24", 24},
    {"25", 25},
    {"26", 26},
    {"27", 27},
    {"28", 28},
    {"29", 29},
    {"30", 30},
    {"31", 31},
    {"32", 32},
};

const OptionRow<int> edgeType[3] = {
    {"Borders", 0},
    {"Creases", 1},
    {"Borders and creases", 2},
};

const OptionRow<int> borderLocation[4] = {
    {"None", 0},
    {"Min only", 1},
    {"Max only", 2},
    {"Both", 3},
};

const OptionRow<int> meshType[3] = {
    {"Wire frame", 0},
    {"Overlay", 1},
    {"Hidden line", 2},
};

const OptionRow<int> pointsToPlot[5] = {
    {"Surface nodes", 0},
    {"All nodes", 1},
    {"Surface cell centers", 2},
    {"All cell centers", 3},
    {"All connected nodes", 4},
};

const OptionRow<int> surfacesToPlot[11] = {
    {"None", 10},
    {"Boundary cell faces", 0},
    {"Exposed cell faces", 1},
    {"I-Planes", 2},
    {"J-Planes", 3},
    {"K-Planes", 4},
    {"IJ-Planes", 5},
    {"JK-Planes", 6},
    {"IK-Planes", 7},
    {"IJK-Planes", 8},
    {"All surfaces", 9},
};

const OptionRow<int> functionDependency[2] = {
    {"Vertical (y=f(x))", 0},
    {"Horizontal (x=f(y))", 1},
};

const OptionRow<int> functionDependencyXY[2] = {
    {"y=f(x)", 0},
    {"x=f(y)", 1},
};

const OptionRow<int> functionDependencyPolar[2] = {
    {"R=f(Theta)", 0},
    {"Theta=f(R)", 1},
};

const OptionRow<int> legendShow[3] = {
    {"Always", 0},
    {"Never", 1},
    {"Auto", 2},
};

const OptionRow<int> errorBar[7] = {
    {"Up", 0},
    {"Down", 1},
    {"Left", 2},
    {"Right", 3},
    {"Horizontal", 4},
    {"Vertical", 5},
    {"Cross", 6},
};

const OptionRow<int> ijkLines[3] = {
    {"I-Varying", 0},
    {"J-Varying", 1},
    {"K-Varying", 2},
};

const OptionRow<int> fillMode[4] = {
    {"None", 0},
    {"Specific color", 1},
    {"Line color", 2},
    {"Background color", 3},
};

const OptionRow<int> streamtracePlacementMethod[5] = {
    {"Using Streamtrace Placement Tool", 0},
    {"On Surfaces of Selected Objects", 1},
    {"On Surfaces of Active Objects", 2},
    {"By Entering XYZ Positions", 3},
    {"By Entering IJK Positions", 4},
};

const OptionRow<int> angleUnits[2] = {
    {"Degrees", 0},
    {"Radians", 1},
};

} // namespace orrery::sdk::ui::dialogs::propertybindings::models
