#pragma once
#include "platform/kernel/OrrUtil.h"

// The stand-in kernel's C calls beyond what the dialogs use: for its own
// programs (the demo, its tools and tests). Conventions as in OrrUtil.h.

#ifdef __cplusplus
extern "C" {
#endif

char* OrrUtilDataSetGetTitle(void);
// Whether a zone or variable is enabled in the current frame.
bool OrrUtilZoneIsEnabled(int zone);
bool OrrUtilVarIsEnabled(int var);

// Points of a zone, and a variable's values there (pointCount of them, NaN where
// a value is missing). Null/0 for a zone or variable that does not exist. The
// pointer is valid until the data set changes.
long OrrUtilZoneGetNumPoints(int zone);
const double* OrrUtilVarGetValuesInZone(int zone, int var);

// An undo bracket that names its step directly.
void OrrUtilUndoStateBeginNamed(int category, const char* name);
bool OrrUtilUndoPerform(void);
bool OrrUtilRedoPerform(void);
// Names of the steps that undo and redo would take, or null when there is none.
char* OrrUtilUndoGetStepName(void);
char* OrrUtilRedoGetStepName(void);

#ifdef __cplusplus
}
#endif
