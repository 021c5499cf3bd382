#pragma once
#include <string>
#include <QString>

class ColorButtonDemoDialog;
namespace orrery::dialogs::prompt {
class AddonsVariableSelectDialog;
class AnchorAlignmentDialog;
class ChooseLoaderDialog;
class ColorChooserDialog;
class EnterASCIICharacterDialog;
class EnterTextStringDialog;
class EnterThreeIntValuesDialog;
class RGBColorOptsDialog;
class ScatterSizeFontDialog;
class VariableSelectDialog;
class ZoneSelectDialog;
} // namespace orrery::dialogs::prompt

// What a dialog's answer does to the plot: each function writes the answer
// into the host's style as one undoable step, where the dialog has not
// already done so, and returns one line saying what the plot now shows, or
// why it cannot show the answer.
class PlotEffects
{
public:
    typedef orrery::dialogs::prompt::AddonsVariableSelectDialog AddonsVariableSelectDialog;
    typedef orrery::dialogs::prompt::AnchorAlignmentDialog AnchorAlignmentDialog;
    typedef orrery::dialogs::prompt::ChooseLoaderDialog ChooseLoaderDialog;
    typedef orrery::dialogs::prompt::ColorChooserDialog ColorChooserDialog;
    typedef orrery::dialogs::prompt::EnterASCIICharacterDialog EnterASCIICharacterDialog;
    typedef orrery::dialogs::prompt::EnterTextStringDialog EnterTextStringDialog;
    typedef orrery::dialogs::prompt::EnterThreeIntValuesDialog EnterThreeIntValuesDialog;
    typedef orrery::dialogs::prompt::RGBColorOptsDialog RGBColorOptsDialog;
    typedef orrery::dialogs::prompt::ScatterSizeFontDialog ScatterSizeFontDialog;
    typedef orrery::dialogs::prompt::VariableSelectDialog VariableSelectDialog;
    typedef orrery::dialogs::prompt::ZoneSelectDialog ZoneSelectDialog;

    static QString frameTitle(EnterTextStringDialog& d);
    static QString indexRange(EnterThreeIntValuesDialog& d);
    static QString scatterSymbol(EnterASCIICharacterDialog& d);
    static QString titleAnchor(AnchorAlignmentDialog& d);
    static QString loader(ChooseLoaderDialog& d);
    static QString axes(VariableSelectDialog& d);
    static QString vectors(VariableSelectDialog& d);
    static QString rgbChannels(VariableSelectDialog& d);
    static QString addon(AddonsVariableSelectDialog& d);
    static QString activeZone(ZoneSelectDialog& d);
    static QString zoneColour(ColorChooserDialog& d);
    static QString colourButton(ColorButtonDemoDialog& d);
    static QString rgbOptions(RGBColorOptsDialog& d);
    static QString scatterSize(ScatterSizeFontDialog& d);

    // Shows or hides the scatter symbols of every zone. Symbols shown where
    // the points are coloured by a map or by RGB take that colouring. Meant
    // for a step of HostStyle::inOneStep.
    static bool showSymbols(bool on, std::string& error);
    // The zone the colour chooser colours: the one picked out, else the first.
    static int currentZone();
    // The character a scatter symbol shows for a typed one in the given type face.
    static QString symbolFor(const std::string& typed, int typeFace);
};
