#pragma once
#include "core/CoreExport.h"
#include "core/propertybindings/models/OptionRow.h"

namespace orrery::sdk::ui::dialogs::propertybindings::models {

/// The option rows offered for the host's enumerated style settings, in the
/// order a combo box shows them (not sorted by value). Values of host
/// enumerations are held as int. Shown through a PremappedListModel.
///@{
ORRERY_CORE_EXPORT extern const OptionRow<int> isoSurfaceSelections[4];
ORRERY_CORE_EXPORT extern const OptionRow<int> valueBlankCellModes[3];
ORRERY_CORE_EXPORT extern const OptionRow<int> valueBlankRelOp[6];
ORRERY_CORE_EXPORT extern const OptionRow<int> linePatterns[6];
ORRERY_CORE_EXPORT extern const OptionRow<int> clippingValues[2];
ORRERY_CORE_EXPORT extern const OptionRow<int> drawOrders[2];
ORRERY_CORE_EXPORT extern const OptionRow<int> loadOnDemandUnloadStrategy[3];
ORRERY_CORE_EXPORT extern const OptionRow<int> tickDirection[3];
ORRERY_CORE_EXPORT extern const OptionRow<int> labelAlignment[3];
ORRERY_CORE_EXPORT extern const OptionRow<double> labelAngle[13];
ORRERY_CORE_EXPORT extern const OptionRow<int> sliceSurface[7];
ORRERY_CORE_EXPORT extern const OptionRow<int> sliceGroup[8];
ORRERY_CORE_EXPORT extern const OptionRow<int> contourType[5];
ORRERY_CORE_EXPORT extern const OptionRow<int> surfaceGenerationMethod[4];
ORRERY_CORE_EXPORT extern const OptionRow<int> lightingEffect[2];
ORRERY_CORE_EXPORT extern const OptionRow<int> rgbMode[4];
ORRERY_CORE_EXPORT extern const OptionRow<int> streamDirection[3];
ORRERY_CORE_EXPORT extern const OptionRow<int> vectorType[4];
ORRERY_CORE_EXPORT extern const OptionRow<int> arrowheadStyle[3];
ORRERY_CORE_EXPORT extern const OptionRow<double> arrowheadSizes[5];
ORRERY_CORE_EXPORT extern const OptionRow<double> arrowheadAngles[8];
ORRERY_CORE_EXPORT extern const OptionRow<int> geomShape[14];
ORRERY_CORE_EXPORT extern const OptionRow<int> fileOrScreenAnimationDest[2];
ORRERY_CORE_EXPORT extern const OptionRow<int> animationOperations[4];
ORRERY_CORE_EXPORT extern const OptionRow<int> dataTypes[7];
ORRERY_CORE_EXPORT extern const OptionRow<int> valueLocations[3];
ORRERY_CORE_EXPORT extern const OptionRow<int> auxDataLocations[7];
ORRERY_CORE_EXPORT extern const OptionRow<double> patternLengthValues[5];
ORRERY_CORE_EXPORT extern const OptionRow<int> coordSystem[2];
ORRERY_CORE_EXPORT extern const OptionRow<int> fontSizeUnits[2];
ORRERY_CORE_EXPORT extern const OptionRow<int> fontSizeWithGridUnits[3];
ORRERY_CORE_EXPORT extern const OptionRow<bool> drawGridLast[2];
ORRERY_CORE_EXPORT extern const OptionRow<int> contourColorMapData[45];
ORRERY_CORE_EXPORT extern const OptionRow<int> pointSelection[3];
ORRERY_CORE_EXPORT extern const OptionRow<int> smIntegerOneToThrityTwo[32];
ORRERY_CORE_EXPORT extern const OptionRow<int> edgeType[3];
ORRERY_CORE_EXPORT extern const OptionRow<int> borderLocation[4];
ORRERY_CORE_EXPORT extern const OptionRow<int> meshType[3];
ORRERY_CORE_EXPORT extern const OptionRow<int> pointsToPlot[5];
ORRERY_CORE_EXPORT extern const OptionRow<int> surfacesToPlot[11];
ORRERY_CORE_EXPORT extern const OptionRow<int> functionDependency[2];
ORRERY_CORE_EXPORT extern const OptionRow<int> functionDependencyXY[2];
ORRERY_CORE_EXPORT extern const OptionRow<int> functionDependencyPolar[2];
ORRERY_CORE_EXPORT extern const OptionRow<int> legendShow[3];
ORRERY_CORE_EXPORT extern const OptionRow<int> errorBar[7];
ORRERY_CORE_EXPORT extern const OptionRow<int> ijkLines[3];
ORRERY_CORE_EXPORT extern const OptionRow<int> fillMode[4];
ORRERY_CORE_EXPORT extern const OptionRow<int> streamtracePlacementMethod[5];
ORRERY_CORE_EXPORT extern const OptionRow<int> angleUnits[2];
///@}

} // namespace orrery::sdk::ui::dialogs::propertybindings::models
