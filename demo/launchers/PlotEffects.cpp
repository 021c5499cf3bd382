#include "demo/launchers/PlotEffects.h"

#include <functional>
#include "demo/scene/HostStyle.h"
#include "demo/scene/HostScene.h"
#include "demo/common/Translations.h"
#include "host/kernel/OrrUtilHost.h"
#include "prompts/prompt/AnchorAlignmentDialog.h"
#include "prompts/prompt/ColorChooserDialog.h"
#include "prompts/prompt/EnterASCIICharacterDialog.h"
#include "prompts/prompt/EnterTextStringDialog.h"
#include "prompts/prompt/EnterThreeIntValuesDialog.h"
#include "prompts/prompt/ZoneSelectDialog.h"

namespace {

QString text(const char* english)
{
    return Translations::text(english);
}

// The writes as one undo step; a refusal is the line.
QString inOneStep(const char* stepName, const std::function<bool(std::string& error)>& writes, const QString& done)
{
    std::string error;
    return HostStyle::inOneStep(stepName, writes, &error)
               ? done
               : text(QT_TRANSLATE_NOOP("DialogCatalog", "the plot is unchanged: %1"))
                     .arg(QString::fromStdString(error));
}

bool anyZone(const std::function<bool(int zone)>& test)
{
    for (int zone = 1; zone <= OrrUtilDataSetGetNumZones(); ++zone)
        if (OrrUtilZoneIsEnabled(zone) && test(zone))
            return true;
    return false;
}

bool anyRGB()
{
    return anyZone([](int zone) {
        return (HostStyle::flag("FieldMap/Mesh/Show", zone, true)
                && HostStyle::integer("FieldMap/Mesh/Color", zone) == HostScene::RGBColoring)
               || (HostStyle::flag("FieldMap/Scatter/Show", zone)
                   && HostStyle::integer("FieldMap/Scatter/Color", zone) == HostScene::RGBColoring);
    });
}

QString rgbNote()
{
    return anyRGB() ? QString()
                    : text(QT_TRANSLATE_NOOP("DialogCatalog",
                                             "no zone is coloured by RGB yet: choose RGB in the Color Chooser"));
}

bool anyScatter()
{
    return anyZone([](int zone) { return HostStyle::flag("FieldMap/Scatter/Show", zone); });
}

} // namespace

bool PlotEffects::showSymbols(bool on, std::string& error)
{
    for (int zone = 1; zone <= OrrUtilDataSetGetNumZones(); ++zone) {
        const long points = HostStyle::integer("FieldMap/Mesh/Color", zone);
        const bool colouring = points < 0 && HostStyle::integer("FieldMap/Scatter/Color", zone) >= 0;
        if ((on && colouring && !HostStyle::setInteger("FieldMap/Scatter/Color", points, &error, zone))
            || !HostStyle::setFlag("FieldMap/Scatter/Show", on, &error, zone))
            return false;
    }
    return true;
}

int PlotEffects::currentZone()
{
    const long active = HostStyle::integer("FrameLayout/ActiveZone");
    return active > 0 ? int(active) : 1;
}

QString PlotEffects::symbolFor(const std::string& typed, int typeFace)
{
    const QString character = QString::fromStdString(typed).left(1);
    // The Greek type face puts Greek letters on the Latin keys.
    static const QString latin = "abgdezhqiklmnxoprstufcywABGDEZHQIKLMNXOPRSTUFCYW";
    static const QString greek = QString::fromUtf8("αβγδεζηθικλμνξοπρστυφχψωΑΒΓΔΕΖΗΘΙΚΛΜΝΞΟΠΡΣΤΥΦΧΨΩ");
    const int at = latin.indexOf(character);
    return typeFace == Font_Greek && at >= 0 ? QString(greek[at]) : character;
}

QString PlotEffects::frameTitle(EnterTextStringDialog& d)
{
    const std::string title = d.text().toStdString();
    return inOneStep(
        "Frame Title", [&](std::string& error) { return HostStyle::setText("FrameLayout/Title", title, &error); },
        text(QT_TRANSLATE_NOOP("DialogCatalog", "the plot's title is \"%1\"")).arg(d.text()));
}

QString PlotEffects::indexRange(EnterThreeIntValuesDialog& d)
{
    return inOneStep(
        "Index Range",
        [&](std::string& error) {
            return HostStyle::setInteger("IndexRange/Begin", d.value1(), &error)
                   && HostStyle::setInteger("IndexRange/End", d.value2(), &error)
                   && HostStyle::setInteger("IndexRange/Skip", d.value3(), &error);
        },
        text(QT_TRANSLATE_NOOP("DialogCatalog", "points %1 to %2 of each zone are drawn, every %3"))
            .arg(d.value1())
            .arg(d.value2())
            .arg(d.value3()));
}

QString PlotEffects::scatterSymbol(EnterASCIICharacterDialog& d)
{
    const QString symbol = symbolFor(d.selectedChar(), d.typeFaceOverride());
    return inOneStep(
        "Scatter Symbol",
        [&](std::string& error) {
            return HostStyle::setText("GlobalScatter/Symbol", symbol.toStdString(), &error) && showSymbols(true, error);
        },
        text(QT_TRANSLATE_NOOP("DialogCatalog", "the scatter symbols are \"%1\"")).arg(symbol));
}

QString PlotEffects::titleAnchor(AnchorAlignmentDialog& d)
{
    return inOneStep(
        "Title Position",
        [&](std::string& error) {
            return HostStyle::setInteger("FrameLayout/TitleAnchor", d.selectedAlignment(), &error);
        },
        text(QT_TRANSLATE_NOOP("DialogCatalog", "the title is placed by the anchor chosen")));
}

QString PlotEffects::loader(ChooseLoaderDialog&)
{
    return text(QT_TRANSLATE_NOOP("DialogCatalog", "the plot is unchanged: a loader reads a file when one is opened"));
}

QString PlotEffects::axes(VariableSelectDialog&)
{
    return QString();
}

// Components chosen are meant to be seen: the vector layer is shown with them.
QString PlotEffects::vectors(VariableSelectDialog&)
{
    if (HostStyle::flag("FieldLayers/ShowVector"))
        return QString();
    return inOneStep(
        "Show Vectors", [](std::string& error) { return HostStyle::setFlag("FieldLayers/ShowVector", true, &error); },
        text(QT_TRANSLATE_NOOP("DialogCatalog", "vectors are shown")));
}

QString PlotEffects::rgbChannels(VariableSelectDialog&)
{
    return rgbNote();
}

QString PlotEffects::addon(AddonsVariableSelectDialog&)
{
    return text(QT_TRANSLATE_NOOP("DialogCatalog", "the plot is unchanged: the add-on's inputs are its own"));
}

QString PlotEffects::activeZone(ZoneSelectDialog& d)
{
    const int zone = d.selectedZone();
    return inOneStep(
        "Pick Out Zone",
        [&](std::string& error) { return HostStyle::setInteger("FrameLayout/ActiveZone", zone, &error); },
        text(QT_TRANSLATE_NOOP("DialogCatalog", "zone %1 is picked out, the others are pale")).arg(zone));
}

QString PlotEffects::zoneColour(ColorChooserDialog& d)
{
    const int zone = currentZone(), colour = d.selectedColor();
    return inOneStep(
        "Zone Color",
        [&](std::string& error) {
            return HostStyle::setInteger("FieldMap/Mesh/Color", colour, &error, zone)
                   && HostStyle::setInteger("FieldMap/Scatter/Color", colour, &error, zone);
        },
        text(QT_TRANSLATE_NOOP("DialogCatalog", "the points of zone %1 are coloured %2"))
            .arg(zone)
            .arg(ColorChooserDialog::colorDisplayName(colour, false)));
}

QString PlotEffects::colourButton(ColorButtonDemoDialog&)
{
    return QString();
}

QString PlotEffects::rgbOptions(RGBColorOptsDialog&)
{
    return rgbNote();
}

QString PlotEffects::scatterSize(ScatterSizeFontDialog&)
{
    return anyScatter()
               ? QString()
               : text(QT_TRANSLATE_NOOP("DialogCatalog", "symbols are hidden: View > Show Scatter Symbols shows them"));
}
