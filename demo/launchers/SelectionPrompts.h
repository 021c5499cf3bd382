#pragma once
#include <QString>

class QWidget;
namespace orrery::dialogs::prompt {
class AddonsVariableSelectDialog;
class VariableSelectDialog;
class ZoneSelectDialog;
} // namespace orrery::dialogs::prompt

// The dialogs that choose variables and zones of the current data set: how
// the host opens each, what the tour does in it, and how its answers read
// (for the variable dialogs, the style values they wrote).
class SelectionPrompts
{
public:
    typedef orrery::dialogs::prompt::VariableSelectDialog VariableSelectDialog;
    typedef orrery::dialogs::prompt::AddonsVariableSelectDialog AddonsVariableSelectDialog;
    typedef orrery::dialogs::prompt::ZoneSelectDialog ZoneSelectDialog;

    // Variable dialogs share one live dialog; the host drops the last one so
    // that each menu entry gets a dialog for its own style values.
    static void dropVariableDialog();

    static VariableSelectDialog* openAxisVariables(QWidget& parent);
    static void driveAxisVariables(VariableSelectDialog& d);
    // For the current frame's plot type.
    static VariableSelectDialog* openVectorVariables(QWidget& parent);
    static void driveVectorVariables(VariableSelectDialog& d);
    // As the colour chooser's RGB button asks them.
    static VariableSelectDialog* openRGBVariables(QWidget& parent);
    static void driveRGBVariables(VariableSelectDialog& d);
    static QString variableAnswers(VariableSelectDialog& d);

    // An add-on's two input variables, kept in the add-on's own properties.
    static AddonsVariableSelectDialog* openAddonVariables(QWidget& parent);
    static void driveAddonVariables(AddonsVariableSelectDialog& d);
    static QString addonAnswers(AddonsVariableSelectDialog& d);

    // As a mapping asks for its source zone.
    static ZoneSelectDialog* openZone(QWidget& parent);
    static void driveZone(ZoneSelectDialog& d);
    static QString zoneAnswers(ZoneSelectDialog& d);
};
