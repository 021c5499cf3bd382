#pragma once
#include <QString>

class ColorButtonDemoDialog;
class QWidget;
namespace orrery::dialogs::prompt {
class ColorChooserDialog;
} // namespace orrery::dialogs::prompt

// The colour chooser, opened the ways a style dialog's colour button opens
// it, and a colour button bound to a style value. A click ends the chooser,
// so each pick is the last thing the tour does in it.
class ColorPrompts
{
public:
    typedef orrery::dialogs::prompt::ColorChooserDialog ColorChooserDialog;

    static ColorChooserDialog* openColorChooser(QWidget& parent);
    static ColorChooserDialog* openColorChooserWithoutVarColoring(QWidget& parent);
    static void pickGridColor(ColorChooserDialog& d);
    static void pickMultiColor(ColorChooserDialog& d);
    static void pickRed(ColorChooserDialog& d);
    // Without channel variables the chooser asks for them first; the tour
    // takes the variables the dialog proposes.
    static void pickRGB(ColorChooserDialog& d);
    static QString colorChooserAnswers(ColorChooserDialog& d);

    static ColorButtonDemoDialog* openColorButton(QWidget& parent);
    static void driveColorButton(ColorButtonDemoDialog& d);
    static QString colorButtonAnswers(ColorButtonDemoDialog& d);
};
