#include "demo/launchers/DialogCatalog.h"

#include <QCoreApplication>
#include "demo/launchers/ColorButtonDemoDialog.h"
#include "demo/launchers/ColorPrompts.h"
#include "demo/launchers/PlotEffects.h"
#include "demo/launchers/SelectionPrompts.h"
#include "demo/launchers/SimplePrompts.h"
#include "demo/launchers/StylePrompts.h"
#include "prompts/prompt/AddonsVariableSelectDialog.h"
#include "prompts/prompt/AnchorAlignmentDialog.h"
#include "prompts/prompt/ChooseLoaderDialog.h"
#include "prompts/prompt/ColorChooserDialog.h"
#include "prompts/prompt/EnterASCIICharacterDialog.h"
#include "prompts/prompt/EnterTextStringDialog.h"
#include "prompts/prompt/EnterThreeIntValuesDialog.h"
#include "prompts/prompt/RGBColorOptsDialog.h"
#include "prompts/prompt/ScatterSizeFontDialog.h"
#include "prompts/prompt/VariableSelectDialog.h"
#include "prompts/prompt/ZoneSelectDialog.h"

// In the tour's order: the RGB colouring options give the colour chooser the
// channel variables its last RGB pick uses.
const std::vector<DialogCatalog::Entry>& DialogCatalog::entries()
{
    using B = QDialogButtonBox;
    using P = SimplePrompts;
    using S = SelectionPrompts;
    using C = ColorPrompts;
    using St = StylePrompts;
    using E = PlotEffects;
    static const std::vector<Entry> all = {
        entry(QT_TRANSLATE_NOOP("DialogCatalog", "Text String..."), P::openTextString, P::driveTextString, B::Ok,
              P::textStringAnswers, E::frameTitle, "TextString"),
        entry(QT_TRANSLATE_NOOP("DialogCatalog", "Three Integer Values..."), P::openThreeInts, P::driveThreeInts, B::Ok,
              P::threeIntsAnswers, E::indexRange, "ThreeIntegerValues"),
        entry(QT_TRANSLATE_NOOP("DialogCatalog", "ASCII Character..."), P::openAsciiCharacter, P::driveAsciiCharacter,
              B::Ok, P::asciiCharacterAnswers, E::scatterSymbol, "ASCIICharacter"),
        entry(QT_TRANSLATE_NOOP("DialogCatalog", "Anchor Alignment..."), P::openAnchorAlignment,
              P::driveAnchorAlignment, B::Ok, P::anchorAlignmentAnswers, E::titleAnchor, "AnchorAlignment"),
        entry(QT_TRANSLATE_NOOP("DialogCatalog", "Choose Loader..."), P::openLoaderChooser, P::driveLoaderChooser,
              B::Ok, P::loaderChooserAnswers, E::loader, "LoaderChooser"),
        entry(QT_TRANSLATE_NOOP("DialogCatalog", "Axis Variables..."), S::openAxisVariables, S::driveAxisVariables,
              B::Ok, S::variableAnswers, E::axes, "AxisVariables"),
        entry(QT_TRANSLATE_NOOP("DialogCatalog", "Vector Variables..."), S::openVectorVariables,
              S::driveVectorVariables, B::Ok, S::variableAnswers, E::vectors, "VectorVariables"),
        entry(QT_TRANSLATE_NOOP("DialogCatalog", "RGB Variables..."), S::openRGBVariables, S::driveRGBVariables, B::Ok,
              S::variableAnswers, E::rgbChannels, "RGBVariables"),
        entry(QT_TRANSLATE_NOOP("DialogCatalog", "Add-on Variables..."), S::openAddonVariables, S::driveAddonVariables,
              B::Ok, S::addonAnswers, E::addon, "AddonVariables"),
        entry(QT_TRANSLATE_NOOP("DialogCatalog", "Select Zone..."), S::openZone, S::driveZone, B::Ok, S::zoneAnswers,
              E::activeZone, "ZoneSelection"),
        entry(QT_TRANSLATE_NOOP("DialogCatalog", "Color Chooser..."), C::openColorChooser, C::pickGridColor,
              B::NoButton, C::colorChooserAnswers, E::zoneColour, "ColourChooser"),
        entry(QT_TRANSLATE_NOOP("DialogCatalog", "Color Chooser, Multi Color..."), C::openColorChooser,
              C::pickMultiColor, B::NoButton, C::colorChooserAnswers, E::zoneColour),
        entry(QT_TRANSLATE_NOOP("DialogCatalog", "Color Chooser without Variable Coloring..."),
              C::openColorChooserWithoutVarColoring, C::pickRed, B::NoButton, C::colorChooserAnswers, E::zoneColour),
        entry(QT_TRANSLATE_NOOP("DialogCatalog", "Color Chooser, RGB..."), C::openColorChooser, C::pickRGB, B::NoButton,
              C::colorChooserAnswers, E::zoneColour),
        entry(QT_TRANSLATE_NOOP("DialogCatalog", "Color Button..."), C::openColorButton, C::driveColorButton, B::Close,
              C::colorButtonAnswers, E::colourButton),
        entry(QT_TRANSLATE_NOOP("DialogCatalog", "RGB Coloring Options..."), St::openRGBColorOpts,
              St::driveRGBColorOpts, B::Close, St::rgbColorOptsAnswers, E::rgbOptions, "RGBColouringOptions"),
        entry(QT_TRANSLATE_NOOP("DialogCatalog", "Color Chooser, RGB with Channel Variables..."), C::openColorChooser,
              C::pickRGB, B::NoButton, C::colorChooserAnswers, E::zoneColour),
        entry(QT_TRANSLATE_NOOP("DialogCatalog", "Scatter Size and Font..."), St::openScatterSizeFont,
              St::driveScatterSizeFont, B::Close, St::scatterSizeFontAnswers, E::scatterSize, "ScatterSizeAndFont"),
    };
    return all;
}

QString DialogCatalog::title(const Entry& entry)
{
    return QCoreApplication::translate("DialogCatalog", entry.name.toUtf8().constData());
}
