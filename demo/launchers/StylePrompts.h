#pragma once
#include <QString>

class QWidget;
namespace orrery::dialogs::prompt {
class RGBColorOptsDialog;
class ScatterSizeFontDialog;
} // namespace orrery::dialogs::prompt

// The modeless plot-style dialogs: every edit goes to the style at once, and
// the answers read what the open dialog shows afterwards.
class StylePrompts
{
public:
    typedef orrery::dialogs::prompt::RGBColorOptsDialog RGBColorOptsDialog;
    typedef orrery::dialogs::prompt::ScatterSizeFontDialog ScatterSizeFontDialog;

    static RGBColorOptsDialog* openRGBColorOpts(QWidget& parent);
    // Picks a mode and a red variable, then takes the variable back with the
    // host's undo: the open dialog follows.
    static void driveRGBColorOpts(RGBColorOptsDialog& d);
    static QString rgbColorOptsAnswers(RGBColorOptsDialog& d);

    static ScatterSizeFontDialog* openScatterSizeFont(QWidget& parent);
    // Moves the size multiplier to centimetres and recalculates it.
    static void driveScatterSizeFont(ScatterSizeFontDialog& d);
    static QString scatterSizeFontAnswers(ScatterSizeFontDialog& d);
};
