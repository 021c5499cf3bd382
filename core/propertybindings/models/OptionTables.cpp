#include "core/propertybindings/models/OptionTables.h"

#include <QtGlobal>

namespace orrery::sdk::ui::dialogs::propertybindings::models {

const OptionRow<int> isoSurfaceSelections[4] = {
    {QT_TRANSLATE_NOOP("OptionTables", "Contour Group Levels"), 0},
    {QT_TRANSLATE_NOOP("OptionTables", "1 Specified Value"), 1},
    {QT_TRANSLATE_NOOP("OptionTables", "2 Specified Values"), 2},
    {QT_TRANSLATE_NOOP("OptionTables", "3 Specified Values"), 3},
};

const OptionRow<int> valueBlankCellModes[3] = {
    {QT_TRANSLATE_NOOP("OptionTables", "all corners are blanked"), 0},
    {QT_TRANSLATE_NOOP("OptionTables", "any corner is blanked"), 1},
    {QT_TRANSLATE_NOOP("OptionTables", "primary value is blanked"), 2},
};

const OptionRow<int> valueBlankRelOp[6] = {
    {QT_TRANSLATE_NOOP("OptionTables", "is less than or equal to"), 0},
    {QT_TRANSLATE_NOOP("OptionTables", "is greater than or equal to"), 1},
    {QT_TRANSLATE_NOOP("OptionTables", "is less than"), 2},
    {QT_TRANSLATE_NOOP("OptionTables", "is greater than"), 3},
    {QT_TRANSLATE_NOOP("OptionTables", "is equal to"), 4},
    {QT_TRANSLATE_NOOP("OptionTables", "is not equal to"), 5},
};

const OptionRow<int> linePatterns[6] = {
    {QT_TRANSLATE_NOOP("OptionTables", "Solid"), 0},     {QT_TRANSLATE_NOOP("OptionTables", "Dashed"), 1},
    {QT_TRANSLATE_NOOP("OptionTables", "Dash dot"), 2},  {QT_TRANSLATE_NOOP("OptionTables", "Dotted"), 3},
    {QT_TRANSLATE_NOOP("OptionTables", "Long dash"), 4}, {QT_TRANSLATE_NOOP("OptionTables", "Dash dot dot"), 5},
};

const OptionRow<int> clippingValues[2] = {
    {QT_TRANSLATE_NOOP("OptionTables", "Viewport"), 0},
    {QT_TRANSLATE_NOOP("OptionTables", "Frame"), 1},
};

const OptionRow<int> drawOrders[2] = {
    {QT_TRANSLATE_NOOP("OptionTables", "Before data"), 1},
    {QT_TRANSLATE_NOOP("OptionTables", "After data"), 0},
};

const OptionRow<int> loadOnDemandUnloadStrategy[3] = {
    {QT_TRANSLATE_NOOP("OptionTables", "Auto unload"), 0},
    {QT_TRANSLATE_NOOP("OptionTables", "Never unload"), 1},
    {QT_TRANSLATE_NOOP("OptionTables", "Minimize memory use"), 2},
};

const OptionRow<int> tickDirection[3] = {
    {QT_TRANSLATE_NOOP("OptionTables", "In"), 0},
    {QT_TRANSLATE_NOOP("OptionTables", "Out"), 1},
    {QT_TRANSLATE_NOOP("OptionTables", "Center"), 2},
};

const OptionRow<int> labelAlignment[3] = {
    {QT_TRANSLATE_NOOP("OptionTables", "At angle"), 0},
    {QT_TRANSLATE_NOOP("OptionTables", "Parallel"), 1},
    {QT_TRANSLATE_NOOP("OptionTables", "Perpendicular"), 2},
};

const OptionRow<double> labelAngle[13] = {
    {"0", 0.0},     {"90", 90.0},   {"75", 75.0},   {"60", 60.0},   {"45", 45.0},   {"30", 30.0},   {"15", 15.0},
    {"-15", -15.0}, {"-30", -30.0}, {"-45", -45.0}, {"-60", -60.0}, {"-75", -75.0}, {"-90", -90.0},
};

const OptionRow<int> sliceSurface[7] = {
    {QT_TRANSLATE_NOOP("OptionTables", "X-Planes"), 0},  {QT_TRANSLATE_NOOP("OptionTables", "Y-Planes"), 1},
    {QT_TRANSLATE_NOOP("OptionTables", "Z-Planes"), 2},  {QT_TRANSLATE_NOOP("OptionTables", "I-Planes"), 3},
    {QT_TRANSLATE_NOOP("OptionTables", "J-Planes"), 4},  {QT_TRANSLATE_NOOP("OptionTables", "K-Planes"), 5},
    {QT_TRANSLATE_NOOP("OptionTables", "Arbitrary"), 7},
};

const OptionRow<int> sliceGroup[8] = {
    {"1", 1}, {"2", 2}, {"3", 3}, {"4", 4}, {"5", 5}, {"6", 6}, {"7", 7}, {"8", 8},
};

const OptionRow<int> contourType[5] = {
    {QT_TRANSLATE_NOOP("OptionTables", "Lines"), 0},
    {QT_TRANSLATE_NOOP("OptionTables", "Flood"), 1},
    {QT_TRANSLATE_NOOP("OptionTables", "Lines and flood"), 2},
    {QT_TRANSLATE_NOOP("OptionTables", "Average cell flood"), 3},
    {QT_TRANSLATE_NOOP("OptionTables", "Primary value flood"), 4},
};

const OptionRow<int> surfaceGenerationMethod[4] = {
    {QT_TRANSLATE_NOOP("OptionTables", "Auto"), 3},
    {QT_TRANSLATE_NOOP("OptionTables", "Allow Quads (Smoother Contours)"), 0},
    {QT_TRANSLATE_NOOP("OptionTables", "All Triangles (Avoids Holes)"), 1},
    {QT_TRANSLATE_NOOP("OptionTables", "All Polygons (Preserves Mesh)"), 2},
};

const OptionRow<int> lightingEffect[2] = {
    {QT_TRANSLATE_NOOP("OptionTables", "Paneled"), 0},
    {QT_TRANSLATE_NOOP("OptionTables", "Gouraud"), 1},
};

const OptionRow<int> rgbMode[4] = {
    {QT_TRANSLATE_NOOP("OptionTables", "Specify R, G, and B"), 0},
    {QT_TRANSLATE_NOOP("OptionTables", "Specify R&G, calculate B"), 1},
    {QT_TRANSLATE_NOOP("OptionTables", "Specify R&B, calculate G"), 2},
    {QT_TRANSLATE_NOOP("OptionTables", "Specify G&B, calculate R"), 3},
};

const OptionRow<int> streamDirection[3] = {
    {QT_TRANSLATE_NOOP("OptionTables", "Forward"), 0},
    {QT_TRANSLATE_NOOP("OptionTables", "Backward"), 1},
    {QT_TRANSLATE_NOOP("OptionTables", "Both"), 2},
};

const OptionRow<int> vectorType[4] = {
    {QT_TRANSLATE_NOOP("OptionTables", "Tail at point"), 0},
    {QT_TRANSLATE_NOOP("OptionTables", "Head at point"), 1},
    {QT_TRANSLATE_NOOP("OptionTables", "Anchor at midpoint"), 2},
    {QT_TRANSLATE_NOOP("OptionTables", "Head only"), 3},
};

const OptionRow<int> arrowheadStyle[3] = {
    {QT_TRANSLATE_NOOP("OptionTables", "Plain"), 0},
    {QT_TRANSLATE_NOOP("OptionTables", "Filled"), 1},
    {QT_TRANSLATE_NOOP("OptionTables", "Hollow"), 2},
};

const OptionRow<double> arrowheadSizes[5] = {
    {"1", 1.0}, {"3", 3.0}, {"5", 5.0}, {"8", 8.0}, {"12", 12.0},
};

const OptionRow<double> arrowheadAngles[8] = {
    {"8", 8.0}, {"10", 10.0}, {"12", 12.0}, {"14", 14.0}, {"16", 16.0}, {"18", 18.0}, {"20", 20.0}, {"22", 22.0},
};

const OptionRow<int> geomShape[14] = {
    {QT_TRANSLATE_NOOP("OptionTables", "Square"), 0},        {QT_TRANSLATE_NOOP("OptionTables", "Delta"), 1},
    {QT_TRANSLATE_NOOP("OptionTables", "Gradient"), 2},      {QT_TRANSLATE_NOOP("OptionTables", "Right triangle"), 3},
    {QT_TRANSLATE_NOOP("OptionTables", "Left triangle"), 4}, {QT_TRANSLATE_NOOP("OptionTables", "Diamond"), 5},
    {QT_TRANSLATE_NOOP("OptionTables", "Circle"), 6},        {QT_TRANSLATE_NOOP("OptionTables", "Point"), 10},
    {QT_TRANSLATE_NOOP("OptionTables", "Cube"), 7},          {QT_TRANSLATE_NOOP("OptionTables", "Sphere"), 8},
    {QT_TRANSLATE_NOOP("OptionTables", "Octahedron"), 9},    {QT_TRANSLATE_NOOP("OptionTables", "Character"), 255},
    {QT_TRANSLATE_NOOP("OptionTables", "PieChart"), 11},     {QT_TRANSLATE_NOOP("OptionTables", "LineArt"), 12},
};

const OptionRow<int> fileOrScreenAnimationDest[2] = {
    {QT_TRANSLATE_NOOP("OptionTables", "On screen"), 0},
    {QT_TRANSLATE_NOOP("OptionTables", "To file"), 1},
};

const OptionRow<int> animationOperations[4] = {
    {QT_TRANSLATE_NOOP("OptionTables", "Forward"), 0},
    {QT_TRANSLATE_NOOP("OptionTables", "Backward"), 1},
    {QT_TRANSLATE_NOOP("OptionTables", "Loop"), 2},
    {QT_TRANSLATE_NOOP("OptionTables", "Bounce"), 3},
};

const OptionRow<int> dataTypes[7] = {
    {QT_TRANSLATE_NOOP("OptionTables", "Auto"), 255},    {QT_TRANSLATE_NOOP("OptionTables", "Single"), 1},
    {QT_TRANSLATE_NOOP("OptionTables", "Double"), 2},    {QT_TRANSLATE_NOOP("OptionTables", "Long int"), 3},
    {QT_TRANSLATE_NOOP("OptionTables", "Short int"), 4}, {QT_TRANSLATE_NOOP("OptionTables", "Byte"), 5},
    {QT_TRANSLATE_NOOP("OptionTables", "Bit"), 6},
};

const OptionRow<int> valueLocations[3] = {
    {QT_TRANSLATE_NOOP("OptionTables", "Auto"), 255},
    {QT_TRANSLATE_NOOP("OptionTables", "Node"), 1},
    {QT_TRANSLATE_NOOP("OptionTables", "Cell center"), 0},
};

const OptionRow<int> auxDataLocations[7] = {
    {QT_TRANSLATE_NOOP("OptionTables", "Zone"), 0},     {QT_TRANSLATE_NOOP("OptionTables", "Data set"), 1},
    {QT_TRANSLATE_NOOP("OptionTables", "Frame"), 2},    {QT_TRANSLATE_NOOP("OptionTables", "Variable"), 3},
    {QT_TRANSLATE_NOOP("OptionTables", "Line map"), 4}, {QT_TRANSLATE_NOOP("OptionTables", "Page"), 5},
    {QT_TRANSLATE_NOOP("OptionTables", "Layout"), 6},
};

const OptionRow<double> patternLengthValues[5] = {
    {"0.5", 0.5}, {"0.8", 0.8}, {"2", 2.0}, {"3", 3.0}, {"5", 4.0},
};

const OptionRow<int> coordSystem[2] = {
    {QT_TRANSLATE_NOOP("OptionTables", "Frame"), 1},
    {QT_TRANSLATE_NOOP("OptionTables", "Grid"), 0},
};

const OptionRow<int> fontSizeUnits[2] = {
    {QT_TRANSLATE_NOOP("OptionTables", "Points"), 2},
    {QT_TRANSLATE_NOOP("OptionTables", "Frame%"), 1},
};

const OptionRow<int> fontSizeWithGridUnits[3] = {
    {QT_TRANSLATE_NOOP("OptionTables", "Points"), 2},
    {QT_TRANSLATE_NOOP("OptionTables", "Frame%"), 1},
    {QT_TRANSLATE_NOOP("OptionTables", "Grid"), 0},
};

const OptionRow<bool> drawGridLast[2] = {
    {QT_TRANSLATE_NOOP("OptionTables", "First"), false},
    {QT_TRANSLATE_NOOP("OptionTables", "Last"), true},
};

const OptionRow<int> contourColorMapData[45] = {
    {QT_TRANSLATE_NOOP("OptionTables", "Sm rainbow"), 0},
    {QT_TRANSLATE_NOOP("OptionTables", "Lg rainbow"), 1},
    {QT_TRANSLATE_NOOP("OptionTables", "Modern"), 2},
    {QT_TRANSLATE_NOOP("OptionTables", "Gray scale"), 3},
    {QT_TRANSLATE_NOOP("OptionTables", "Wild"), 4},
    {QT_TRANSLATE_NOOP("OptionTables", "User def"), 5},
    {QT_TRANSLATE_NOOP("OptionTables", "Two color"), 6},
    {QT_TRANSLATE_NOOP("OptionTables", "Raw user def"), 7},
    {QT_TRANSLATE_NOOP("OptionTables", "Diverging - brown/green"), 10},
    {QT_TRANSLATE_NOOP("OptionTables", "Diverging - pink/yellow/green"), 12},
    {QT_TRANSLATE_NOOP("OptionTables", "Diverging - purple/green"), 13},
    {QT_TRANSLATE_NOOP("OptionTables", "Diverging - orange/purple"), 11},
    {QT_TRANSLATE_NOOP("OptionTables", "Diverging - blue/red"), 8},
    {QT_TRANSLATE_NOOP("OptionTables", "Diverging - blue/yellow/red"), 9},
    {QT_TRANSLATE_NOOP("OptionTables", "Doppler"), 14},
    {QT_TRANSLATE_NOOP("OptionTables", "Elevation - above ground level"), 15},
    {QT_TRANSLATE_NOOP("OptionTables", "Elevation - absolute"), 16},
    {QT_TRANSLATE_NOOP("OptionTables", "Hot metal"), 17},
    {QT_TRANSLATE_NOOP("OptionTables", "Magma"), 18},
    {QT_TRANSLATE_NOOP("OptionTables", "Modified rainbow - dark ends"), 19},
    {QT_TRANSLATE_NOOP("OptionTables", "Modified rainbow - less green"), 20},
    {QT_TRANSLATE_NOOP("OptionTables", "Qualitative - accent"), 21},
    {QT_TRANSLATE_NOOP("OptionTables", "Qualitative - dark"), 22},
    {QT_TRANSLATE_NOOP("OptionTables", "Qualitative - dark 2"), 23},
    {QT_TRANSLATE_NOOP("OptionTables", "Qualitative - paired"), 24},
    {QT_TRANSLATE_NOOP("OptionTables", "Qualitative - pastel"), 25},
    {QT_TRANSLATE_NOOP("OptionTables", "Qualitative - pastel 2"), 26},
    {QT_TRANSLATE_NOOP("OptionTables", "Qualitative - pastel 3"), 27},
    {QT_TRANSLATE_NOOP("OptionTables", "Sequential - blue"), 28},
    {QT_TRANSLATE_NOOP("OptionTables", "Sequential - blue/green"), 29},
    {QT_TRANSLATE_NOOP("OptionTables", "Sequential - blue/purple"), 30},
    {QT_TRANSLATE_NOOP("OptionTables", "Sequential - green"), 31},
    {QT_TRANSLATE_NOOP("OptionTables", "Sequential - green/blue"), 32},
    {QT_TRANSLATE_NOOP("OptionTables", "Sequential - orange"), 33},
    {QT_TRANSLATE_NOOP("OptionTables", "Sequential - orange/red"), 34},
    {QT_TRANSLATE_NOOP("OptionTables", "Sequential - pink/purple"), 35},
    {QT_TRANSLATE_NOOP("OptionTables", "Sequential - purple"), 36},
    {QT_TRANSLATE_NOOP("OptionTables", "Sequential - purple/blue"), 37},
    {QT_TRANSLATE_NOOP("OptionTables", "Sequential - purple/blue/green"), 38},
    {QT_TRANSLATE_NOOP("OptionTables", "Sequential - purple/red"), 39},
    {QT_TRANSLATE_NOOP("OptionTables", "Sequential - red"), 40},
    {QT_TRANSLATE_NOOP("OptionTables", "Sequential - yellow/green"), 41},
    {QT_TRANSLATE_NOOP("OptionTables", "Sequential - yellow/green/blue"), 42},
    {QT_TRANSLATE_NOOP("OptionTables", "Sequential - yellow/orange/brn"), 43},
    {QT_TRANSLATE_NOOP("OptionTables", "Sequential - yellow/orange/red"), 44},
};

const OptionRow<int> pointSelection[3] = {
    {QT_TRANSLATE_NOOP("OptionTables", "Nearest N"), 1},
    {QT_TRANSLATE_NOOP("OptionTables", "Octant"), 2},
    {QT_TRANSLATE_NOOP("OptionTables", "All"), 0},
};

const OptionRow<int> smIntegerOneToThrityTwo[32] = {
    {"1", 1},   {"2", 2},   {"3", 3},   {"4", 4},   {"5", 5},   {"6", 6},   {"7", 7},   {"8", 8},
    {"9", 9},   {"10", 10}, {"11", 11}, {"12", 12}, {"13", 13}, {"14", 14}, {"15", 15}, {"16", 16},
    {"17", 17}, {"18", 18}, {"19", 19}, {"20", 20}, {"21", 21}, {"22", 22}, {"23", 23}, {"24", 24},
    {"25", 25}, {"26", 26}, {"27", 27}, {"28", 28}, {"29", 29}, {"30", 30}, {"31", 31}, {"32", 32},
};

const OptionRow<int> edgeType[3] = {
    {QT_TRANSLATE_NOOP("OptionTables", "Borders"), 0},
    {QT_TRANSLATE_NOOP("OptionTables", "Creases"), 1},
    {QT_TRANSLATE_NOOP("OptionTables", "Borders and creases"), 2},
};

const OptionRow<int> borderLocation[4] = {
    {QT_TRANSLATE_NOOP("OptionTables", "None"), 0},
    {QT_TRANSLATE_NOOP("OptionTables", "Min only"), 1},
    {QT_TRANSLATE_NOOP("OptionTables", "Max only"), 2},
    {QT_TRANSLATE_NOOP("OptionTables", "Both"), 3},
};

const OptionRow<int> meshType[3] = {
    {QT_TRANSLATE_NOOP("OptionTables", "Wire frame"), 0},
    {QT_TRANSLATE_NOOP("OptionTables", "Overlay"), 1},
    {QT_TRANSLATE_NOOP("OptionTables", "Hidden line"), 2},
};

const OptionRow<int> pointsToPlot[5] = {
    {QT_TRANSLATE_NOOP("OptionTables", "Surface nodes"), 0},
    {QT_TRANSLATE_NOOP("OptionTables", "All nodes"), 1},
    {QT_TRANSLATE_NOOP("OptionTables", "Surface cell centers"), 2},
    {QT_TRANSLATE_NOOP("OptionTables", "All cell centers"), 3},
    {QT_TRANSLATE_NOOP("OptionTables", "All connected nodes"), 4},
};

const OptionRow<int> surfacesToPlot[11] = {
    {QT_TRANSLATE_NOOP("OptionTables", "None"), 10},
    {QT_TRANSLATE_NOOP("OptionTables", "Boundary cell faces"), 0},
    {QT_TRANSLATE_NOOP("OptionTables", "Exposed cell faces"), 1},
    {QT_TRANSLATE_NOOP("OptionTables", "I-Planes"), 2},
    {QT_TRANSLATE_NOOP("OptionTables", "J-Planes"), 3},
    {QT_TRANSLATE_NOOP("OptionTables", "K-Planes"), 4},
    {QT_TRANSLATE_NOOP("OptionTables", "IJ-Planes"), 5},
    {QT_TRANSLATE_NOOP("OptionTables", "JK-Planes"), 6},
    {QT_TRANSLATE_NOOP("OptionTables", "IK-Planes"), 7},
    {QT_TRANSLATE_NOOP("OptionTables", "IJK-Planes"), 8},
    {QT_TRANSLATE_NOOP("OptionTables", "All surfaces"), 9},
};

const OptionRow<int> functionDependency[2] = {
    {QT_TRANSLATE_NOOP("OptionTables", "Vertical (y=f(x))"), 0},
    {QT_TRANSLATE_NOOP("OptionTables", "Horizontal (x=f(y))"), 1},
};

const OptionRow<int> functionDependencyXY[2] = {
    {QT_TRANSLATE_NOOP("OptionTables", "y=f(x)"), 0},
    {QT_TRANSLATE_NOOP("OptionTables", "x=f(y)"), 1},
};

const OptionRow<int> functionDependencyPolar[2] = {
    {QT_TRANSLATE_NOOP("OptionTables", "R=f(Theta)"), 0},
    {QT_TRANSLATE_NOOP("OptionTables", "Theta=f(R)"), 1},
};

const OptionRow<int> legendShow[3] = {
    {QT_TRANSLATE_NOOP("OptionTables", "Always"), 0},
    {QT_TRANSLATE_NOOP("OptionTables", "Never"), 1},
    {QT_TRANSLATE_NOOP("OptionTables", "Auto"), 2},
};

const OptionRow<int> errorBar[7] = {
    {QT_TRANSLATE_NOOP("OptionTables", "Up"), 0},         {QT_TRANSLATE_NOOP("OptionTables", "Down"), 1},
    {QT_TRANSLATE_NOOP("OptionTables", "Left"), 2},       {QT_TRANSLATE_NOOP("OptionTables", "Right"), 3},
    {QT_TRANSLATE_NOOP("OptionTables", "Horizontal"), 4}, {QT_TRANSLATE_NOOP("OptionTables", "Vertical"), 5},
    {QT_TRANSLATE_NOOP("OptionTables", "Cross"), 6},
};

const OptionRow<int> ijkLines[3] = {
    {QT_TRANSLATE_NOOP("OptionTables", "I-Varying"), 0},
    {QT_TRANSLATE_NOOP("OptionTables", "J-Varying"), 1},
    {QT_TRANSLATE_NOOP("OptionTables", "K-Varying"), 2},
};

const OptionRow<int> fillMode[4] = {
    {QT_TRANSLATE_NOOP("OptionTables", "None"), 0},
    {QT_TRANSLATE_NOOP("OptionTables", "Specific color"), 1},
    {QT_TRANSLATE_NOOP("OptionTables", "Line color"), 2},
    {QT_TRANSLATE_NOOP("OptionTables", "Background color"), 3},
};

const OptionRow<int> streamtracePlacementMethod[5] = {
    {QT_TRANSLATE_NOOP("OptionTables", "Using Streamtrace Placement Tool"), 0},
    {QT_TRANSLATE_NOOP("OptionTables", "On Surfaces of Selected Objects"), 1},
    {QT_TRANSLATE_NOOP("OptionTables", "On Surfaces of Active Objects"), 2},
    {QT_TRANSLATE_NOOP("OptionTables", "By Entering XYZ Positions"), 3},
    {QT_TRANSLATE_NOOP("OptionTables", "By Entering IJK Positions"), 4},
};

const OptionRow<int> angleUnits[2] = {
    {QT_TRANSLATE_NOOP("OptionTables", "Degrees"), 0},
    {QT_TRANSLATE_NOOP("OptionTables", "Radians"), 1},
};

} // namespace orrery::sdk::ui::dialogs::propertybindings::models
