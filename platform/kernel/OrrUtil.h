#pragma once
#include "platform/kernel/OrrTypes.h"

#ifdef __cplusplus
namespace orrery {
namespace toolbox {
class ArgList;
}
} // namespace orrery
typedef const orrery::toolbox::ArgList* ArgList_pa;
#endif

// The kernel's C interface: with ApplicationSettings::getInstance() (the settings
// store), everything a host supplies for the dialogs. The rest of platform/ is
// built on these operations. Zone and variable numbers are 1-based.
//
// What a host's definitions must do:
// - run on the user-interface thread, the only one the dialogs call from;
// - return strings as char* the caller owns and releases with
//   OrrUtilStringDealloc, UTF-8 encoded; a name is never null;
// - never throw: the dialogs stop an exception at their one door into the host
//   (HostCall), tell it once through OrrUtilDialogMessageBox and carry on with a
//   neutral answer, but what the operation was doing is lost;
// - announce every change of data, frames and style through the state-change
//   observable (StateChange_ZonesAdded, StateChange_Style, ...), so that open
//   dialogs follow it;
// - take back every write of an undo bracket closed with revert set.

#ifdef __cplusplus
extern "C" {
#endif
// A host built with -fvisibility=hidden still exports its definitions of these:
// the dialogs' libraries look them up in the process at run time.
#pragma GCC visibility push(default)

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
char* OrrUtilZoneGetName(int zone);
char* OrrUtilVarGetName(int var);
// Whether a zone or variable is enabled in the frame with that unique ID; false
// for an unknown frame.
bool OrrUtilFrameZoneIsEnabled(long frameUniqueID, int zone);
bool OrrUtilFrameVarIsEnabled(long frameUniqueID, int var);
// Range of a variable over the zones enabled in the current frame; false when the
// variable does not exist or no enabled zone has a value.
bool OrrUtilVarGetMinMax(int var, double* min, double* max);

// Axis grid range of the current frame as (xMin, yMin, xMax, yMax): the ranges of
// the X and Y axis variables over the enabled zones, (0, 0, 1, 1) without data.
void OrrUtilAxisGetGridRange(double* xMin, double* yMin, double* xMax, double* yMax);

// Converts a length between the Units_e codes using the current frame's size and
// grid range. Grid units are measured along the vertical axis.
double OrrUtilConvertUnits(int fromUnits, int toUnits, double value);

// Components of basic (0..7) and custom (8..63) colours; any other index gives black.
void OrrUtilColorMapGetBasicColorRGB(int colorIndex, unsigned char* red, unsigned char* green, unsigned char* blue);

// Undo bracket. Style writes between Begin and End form one undoable step,
// named by its category (11: "Assign Variables").
// Brackets nest; an inner bracket's writes join the enclosing one.
//   revert: take back the bracket's writes now (the operation failed);
//   record: keep the bracket as an undoable step (false: keep the writes but
//           leave nothing to undo). Ignored for inner brackets.
void OrrUtilUndoStateBegin(int category);
void OrrUtilUndoStateEnd(bool revert, bool record);

// Style state. A style name ("GlobalRGB", "RedChannelVar", ...) has one stable
// identifier for the life of the process; unknown names get one too, and a path
// that uses them is refused when read or written.
long OrrUtilStyleNameGetID(const char* name);
// Reads or writes the value the argument list names ("IDs", "Offset1", "Set",
// "AssignOp", and the value in "IValue", "DValue" or "SValue"; see StyleValue).
// A refused write leaves its text for OrrUtilStyleGetLastErrorString.
GetValueReturnCode_e OrrUtilStyleGetValue(ArgList_pa args);
SetValueReturnCode_e OrrUtilStyleSetValue(ArgList_pa args);

// Text of the last refused style write, or null when the last write succeeded.
char* OrrUtilStyleGetLastErrorString(void);
// Frees a string returned by this interface and nulls the pointer.
void OrrUtilStringDealloc(char** string);

// Shows a message box (MessageBoxType_e) and returns 1 for OK/Yes, 0 for No.
// Without an interactive display it writes the text to stderr and returns 1.
int OrrUtilDialogMessageBox(const char* text, int type);

#pragma GCC visibility pop

#ifdef __cplusplus
}
#endif
