#pragma once

// Enumerations of the kernel's C interface. They are plain (unscoped) enums so
// that they cross a C boundary unchanged and stream as their numbers. Each has a
// fixed int base so that out-of-table markers such as 255 stay representable.

enum PlotType_e : int
{
    PlotType_ThreeD = 1,    // 3D Cartesian field plot
    PlotType_TwoD = 2,      // 2D Cartesian field plot
    PlotType_XYLine = 3,    // XY line plot
    PlotType_Sketch = 4,    // no data shown
    PlotType_PolarLine = 5, // polar line plot
    PlotType_Invalid = 255  // "none yet": callers use it as a never-matching start value
};

enum AnchorAlignment_e : int
{
    AnchorAlignment_TopLeft = 0,
    AnchorAlignment_TopCenter = 1,
    AnchorAlignment_TopRight = 2,
    AnchorAlignment_MiddleLeft = 3,
    AnchorAlignment_MiddleCenter = 4,
    AnchorAlignment_MiddleRight = 5,
    AnchorAlignment_BottomLeft = 6,
    AnchorAlignment_BottomCenter = 7,
    AnchorAlignment_BottomRight = 8
};

enum Font_e : int
{
    Font_Sans = 0,
    Font_SansBold = 1,
    Font_Greek = 2,
    Font_Math = 3,
    Font_UserDefined = 4,
    Font_Serif = 5,
    Font_SerifItalic = 6,
    Font_SerifBold = 7,
    Font_SerifItalicBold = 8,
    Font_Mono = 9,
    Font_MonoBold = 10,
    Font_Invalid = 255 // "no override": the base font applies
};

enum RGBMode_e : int
{
    RGBMode_SpecifyRGB = 0,
    RGBMode_SpecifyRG = 1, // blue is calculated
    RGBMode_SpecifyRB = 2, // green is calculated
    RGBMode_SpecifyGB = 3  // red is calculated
};

// 0..7 basic colours, 8..63 custom colours, negative values colour by variable.
typedef int ColorIndex_t;

// Codes carried by state-change events. 0-3, 5, 6, 8-10 and 44 change the data
// set or the frame in ways that can invalidate chosen variables; the others
// cannot.
enum StateChange_e : int
{
    StateChange_VarsAltered = 0, // values of variables changed
    StateChange_VarsAdded = 1,
    StateChange_ZonesDeleted = 2,
    StateChange_ZonesAdded = 3,
    StateChange_NodeMapsAltered = 4, // connectivity only; variables unaffected
    StateChange_FrameDeleted = 5,
    StateChange_NewTopFrame = 6,    // another frame became the current one
    StateChange_Style = 7,          // a style value changed; the event names its path
    StateChange_DataSetReset = 8,   // the data set was replaced or cleared
    StateChange_NewLayout = 9,      // everything was reset (pages, frames, data)
    StateChange_CompleteReset = 10, // a new data set was attached to the frame
    StateChange_PageCountChanged = 11,
    StateChange_FrameAdded = 12,
    StateChange_EnabledZonesChanged = 13, // the frame shows another set of zones
    StateChange_EnabledVarsChanged = 14,  // the frame uses another set of variables
    StateChange_VarsDeleted = 44
};

enum GetValueReturnCode_e : int
{
    GetValue_Ok = 0,
    GetValue_UnknownPath = 1,   // no such style path
    GetValue_NoFrame = 2,       // style lives in frames and there is none
    GetValue_InvalidOffset = 3, // collection member offset out of range
    GetValue_TypeMismatch = 4,  // no output argument of the value's type
    GetValue_BadArguments = 5   // the argument list lacks the path identifiers
};

enum SetValueReturnCode_e : int
{
    SetValue_Ok = 0,
    SetValue_UnknownPath = 1,
    SetValue_NoFrame = 2,
    SetValue_InvalidOffset = 3,
    SetValue_TypeMismatch = 4,
    SetValue_InvalidValue = 5,    // the value breaks the path's rule
    SetValue_InvalidOperator = 6, // arithmetic assignment on a non-numeric value
    SetValue_BadArguments = 7,
    // The kernel declines the write without an error: the value is kept and no
    // error text is left. Variable-number writes while the data set has no
    // variables end this way (there is nothing to check them against).
    SetValue_Declined = 15
};

enum AssignOp_e : int
{
    AssignOp_PlusEquals = 0,
    AssignOp_MinusEquals = 1,
    AssignOp_TimesEquals = 2,
    AssignOp_DivideEquals = 3,
    AssignOp_Equals = 255 // plain assignment
};

// Undo categories of OrrUtilUndoStateBegin that name their step.
enum UndoCategory_e : int
{
    UndoCategory_AssignVariables = 11
};

// Unit codes of OrrUtilConvertUnits.
enum Units_e : int
{
    Units_Grid = 0,  // axis grid units (vertical extent of the grid range)
    Units_Frame = 1, // percent of the frame height
    Units_Point = 2, // typographic points, 1/72 inch
    Units_Centimetre = 3
};

// Message box kinds of OrrUtilDialogMessageBox.
enum MessageBoxType_e : int
{
    MessageBoxType_Error = 0,       // OK button
    MessageBoxType_Warning = 1,     // OK button
    MessageBoxType_Information = 2, // OK button
    MessageBoxType_Question = 3     // Yes and No; returns 1 for Yes
};
