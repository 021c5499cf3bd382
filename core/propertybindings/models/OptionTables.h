#pragma once
#include "core/propertybindings/models/OptionRow.h"

// The option rows offered for the host's enumerated style settings, in the
// order a combo box shows them (not sorted by value). Values of host
// enumerations are held as int.
namespace orrery::sdk::ui::dialogs::propertybindings::models {

extern const OptionRow<int> isoSurfaceSelections[4];
extern const OptionRow<int> valueBlankCellModes[3];
extern const OptionRow<int> valueBlankRelOp[6];
extern const OptionRow<int> linePatterns[6];
extern const OptionRow<int> clippingValues[2];
extern const OptionRow<int> drawOrders[2];
extern const OptionRow<int> loadOnDemandUnloadStrategy[3];
extern const OptionRow<int> tickDirection[3];
extern const OptionRow<int> labelAlignment[3];
extern const OptionRow<double> labelAngle[13];
extern const OptionRow<int> sliceSurface[7];
extern const OptionRow<int> sliceGroup[8];
extern const OptionRow<int> contourType[5];
extern const OptionRow<int> surfaceGenerationMethod[4];
extern const OptionRow<int> lightingEffect[2];
extern const OptionRow<int> rgbMode[4];
extern const OptionRow<int> streamDirection[3];
extern const OptionRow<int> vectorType[4];
extern const OptionRow<int> arrowheadStyle[3];
extern const OptionRow<double> arrowheadSizes[5];
extern const OptionRow<double> arrowheadAngles[8];
extern const OptionRow<int> geomShape[14];
extern const OptionRow<int> fileOrScreenAnimationDest[2];
extern const OptionRow<int> animationOperations[4];
extern const OptionRow<int> dataTypes[7];
extern const OptionRow<int> valueLocations[3];
extern const OptionRow<int> auxDataLocations[7];
extern const OptionRow<double> patternLengthValues[5];
extern const OptionRow<int> coordSystem[2];
extern const OptionRow<int> fontSizeUnits[2];
extern const OptionRow<int> fontSizeWithGridUnits[3];
extern const OptionRow<bool> drawGridLast[2];
extern const OptionRow<int> contourColorMapData[45];
extern const OptionRow<int> pointSelection[3];
extern const OptionRow<int> smIntegerOneToThrityTwo[32];
extern const OptionRow<int> edgeType[3];
extern const OptionRow<int> borderLocation[4];
extern const OptionRow<int> meshType[3];
extern const OptionRow<int> pointsToPlot[5];
extern const OptionRow<int> surfacesToPlot[11];
extern const OptionRow<int> functionDependency[2];
extern const OptionRow<int> functionDependencyXY[2];
extern const OptionRow<int> functionDependencyPolar[2];
extern const OptionRow<int> legendShow[3];
extern const OptionRow<int> errorBar[7];
extern const OptionRow<int> ijkLines[3];
extern const OptionRow<int> fillMode[4];
extern const OptionRow<int> streamtracePlacementMethod[5];
extern const OptionRow<int> angleUnits[2];

} // namespace orrery::sdk::ui::dialogs::propertybindings::models
