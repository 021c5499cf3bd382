#pragma once
#include "platform/kernel/OrrTypes.h"

// The kernel's C interface. Strings returned as char* are the caller's and are
// released with OrrUtilStringDealloc. Zone and variable numbers are 1-based.
// Everything runs on the user-interface thread.

#ifdef __cplusplus
extern "C" {
#endif

// Pages and frames. Frames live on the current page; the current frame is the
// one every other query refers to.
int OrrUtilPageGetCount(void);
int OrrUtilFrameGetCount(void);
// A number that names the current frame for as long as it exists (0: no frame).
long OrrUtilFrameGetUniqueID(void);
// PlotType_Sketch when there is no frame.
PlotType_e OrrUtilFrameGetPlotType(void);

// Data set of the current frame.
bool OrrUtilDataSetIsAvailable(void);
int OrrUtilDataSetGetNumZones(void);
int OrrUtilDataSetGetNumVars(void);
char* OrrUtilDataSetGetTitle(void);
char* OrrUtilZoneGetName(int zone);
char* OrrUtilVarGetName(int var);
bool OrrUtilZoneIsEnabled(int zone);
bool OrrUtilVarIsEnabled(int var);
// Range of a variable over the zones enabled in the current frame; false when the
// variable does not exist or no enabled zone has a value.
bool OrrUtilVarGetMinMax(int var, double* min, double* max);

// Points of a zone, and a variable's values there (pointCount of them, NaN where
// a value is missing). Null/0 for a zone or variable that does not exist. The
// pointer is valid until the data set changes.
long OrrUtilZoneGetNumPoints(int zone);
const double* OrrUtilVarGetValuesInZone(int zone, int var);

// Axis grid range of the current frame as (xMin, yMin, xMax, yMax): the ranges of
// the X and Y axis variables over the enabled zones, (0, 0, 1, 1) without data.
void OrrUtilAxisGetGridRange(double* xMin, double* yMin, double* xMax, double* yMax);

// Converts a length between the Units_e codes using the current frame's size and
// grid range. Grid units are measured along the vertical axis.
double OrrUtilConvertUnits(int fromUnits, int toUnits, double value);

// Components of basic (0..7) and custom (8..63) colours; any other index gives black.
void OrrUtilColorMapGetBasicColorRGB(int colorIndex, unsigned char* red,
                                     unsigned char* green, unsigned char* blue);

// Undo bracket. Style writes between Begin and End form one undoable step.
// Brackets nest; an inner bracket's writes join the enclosing one.
//   revert: take back the bracket's writes now (the operation failed);
//   record: keep the bracket as an undoable step (false: keep the writes but
//           leave nothing to undo). Ignored for inner brackets.
// The category names the step in the Edit menu (11: "Assign Variables");
// OrrUtilUndoStateBeginNamed names it directly.
void OrrUtilUndoStateBegin(int category);
void OrrUtilUndoStateBeginNamed(int category, const char* name);
void OrrUtilUndoStateEnd(bool revert, bool record);
bool OrrUtilUndoPerform(void);
bool OrrUtilRedoPerform(void);
// Names of the steps that undo and redo would take, or null when there is none.
char* OrrUtilUndoGetStepName(void);
char* OrrUtilRedoGetStepName(void);

// Text of the last refused style write, or null when the last write succeeded.
char* OrrUtilStyleGetLastErrorString(void);
// Frees a string returned by this interface and nulls the pointer.
void OrrUtilStringDealloc(char** string);

// Shows a message box (MessageBoxType_e) and returns 1 for OK/Yes, 0 for No.
// Without an interactive display it writes the text to stderr and returns 1.
int OrrUtilDialogMessageBox(const char* text, int type);

#ifdef __cplusplus
}
#endif
