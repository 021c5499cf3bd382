#include "demo/scene/HostScene.h"

#include <cmath>
#include <cstdint>
#include <limits>
#include <map>
#include <tuple>
#include <QCoreApplication>
#include "demo/scene/HostStyle.h"
#include "demo/scene/HostText.h"
#include "plot/AxisTicks.h"
#include "plot/PlotScene.h"
#include "host/kernel/Kernel.h"
#include "host/kernel/OrrUtilHost.h"

namespace {

QString tr(const char* text)
{
    return QCoreApplication::translate("HostScene", text);
}

std::vector<std::string> namedCategories(int var)
{
    const orrery::kernel::DataSet& data = orrery::kernel::Kernel::instance().dataSet();
    if (!data.hasVar(var) || data.categories(var).size() > AxisTicks::MaxNamed)
        return {};
    return data.categories(var);
}

// The smallest and largest finite values of one variable in one zone's drawn
// points, kept while the data set is the same: a zoom, a turn or a style change
// redraws ten million points without reading them twice more for their ranges.
class RangeCache
{
public:
    struct Range
    {
        double min, max;
        bool any;
        bool whole;   // every value a whole number
        long leftOut; // finite values too large or too small to draw
    };

    static RangeCache& instance()
    {
        // Never destroyed: a plot may still be drawn while the program ends.
        static RangeCache* cache = new RangeCache;
        return *cache;
    }

    Range of(const PlotScene& scene, int zone, int var, bool positiveOnly)
    {
        // The data set is never changed in place, only replaced: its number names its values.
        const std::uint64_t dataSet = orrery::kernel::Kernel::instance().dataSetNumber();
        if (dataSet != m_dataSet) {
            m_ranges.clear();
            m_dataSet = dataSet;
        }
        const Key key{zone, var, scene.begin, scene.end, scene.skip, positiveOnly};
        const auto found = m_ranges.find(key);
        if (found != m_ranges.end())
            return found->second;
        Range range{std::numeric_limits<double>::infinity(), -std::numeric_limits<double>::infinity(), false, true, 0};
        if (const double* values = OrrUtilVarGetValuesInZone(zone, var))
            scene.forEachIndex(OrrUtilZoneGetNumPoints(zone), [&](long i) {
                const double v = values[i];
                if (!PlotScene::drawable(v))
                    range.leftOut += std::isfinite(v);
                else if (!positiveOnly || v > 0.0) {
                    range.min = std::min(range.min, v);
                    range.max = std::max(range.max, v);
                    range.whole = range.whole && v == std::floor(v);
                }
            });
        range.any = range.min <= range.max;
        return m_ranges[key] = range;
    }

private:
    typedef std::tuple<int, int, long, long, long, bool> Key;

    std::uint64_t m_dataSet = 0;
    std::map<Key, Range> m_ranges;
};

// The drawable values of var in the drawn points, smallest and largest, and
// whether all are whole numbers; false when there are none. leftOut, when
// given, counts the finite values that cannot be drawn.
bool rangeOf(const PlotScene& scene, int var, bool positiveOnly, double& min, double& max, bool* whole = nullptr,
             long* leftOut = nullptr)
{
    min = std::numeric_limits<double>::infinity();
    max = -min;
    bool allWhole = true;
    for (const PlotScene::Zone& zone : scene.zones) {
        const RangeCache::Range range = RangeCache::instance().of(scene, zone.zone, var, positiveOnly);
        if (leftOut)
            *leftOut += range.leftOut;
        if (range.any) {
            min = std::min(min, range.min);
            max = std::max(max, range.max);
            allWhole = allWhole && range.whole;
        }
    }
    if (whole)
        *whole = allWhole;
    return min <= max;
}

// The same over several variables together.
bool rangeOfAll(const PlotScene& scene, const std::vector<int>& vars, bool positiveOnly, double& min, double& max,
                bool* whole, long* leftOut = nullptr)
{
    min = std::numeric_limits<double>::infinity();
    max = -min;
    bool allWhole = true;
    for (int var : vars) {
        double low = 0, high = 0;
        bool wholeVar = true;
        if (rangeOf(scene, var, positiveOnly, low, high, &wholeVar, leftOut)) {
            min = std::min(min, low);
            max = std::max(max, high);
            allWhole = allWhole && wholeVar;
        }
    }
    *whole = allWhole;
    return min <= max;
}

// The Y variables of an XY line plot: the axis's, then the further ones the
// style lists that name an enabled variable, each once.
std::vector<int> lineVarsOf(int first)
{
    std::vector<int> vars{first};
    for (const QString& word :
         QString::fromStdString(HostStyle::text("TwoDAxis/YDetail/MoreVarNums")).split(' ', Qt::SkipEmptyParts)) {
        const int var = word.toInt();
        if (var >= 1 && var <= OrrUtilDataSetGetNumVars() && OrrUtilVarIsEnabled(var)
            && std::find(vars.begin(), vars.end(), var) == vars.end())
            vars.push_back(var);
    }
    return vars;
}

// The variable colour maps follow when none is chosen: the first one not on an axis whose values vary.
int firstVaryingVar(const PlotScene& scene)
{
    int fallback = 0;
    for (int v = 1; v <= OrrUtilDataSetGetNumVars(); ++v) {
        if (!OrrUtilVarIsEnabled(v) || v == scene.axes[0].var || v == scene.axes[1].var
            || (scene.threeD && v == scene.axes[2].var))
            continue;
        double min = 0, max = 0;
        if (rangeOf(scene, v, false, min, max) && max > min)
            return v;
        fallback = fallback ? fallback : v;
    }
    return fallback ? fallback : scene.axes[1].var;
}

QRgb basicColour(int index)
{
    unsigned char r = 0, g = 0, b = 0;
    OrrUtilColorMapGetBasicColorRGB(index, &r, &g, &b);
    return qRgb(r, g, b);
}

// The colours of one zone's layer from the host's colour index: a basic colour,
// the colour map, or red, green and blue from the variables the style names.
PointColours coloursOf(int index, int zone, const PointColours::Contour& contour)
{
    const QRgb fixed = basicColour(index < 0 ? 0 : index);
    if (index == HostScene::RGBColoring) {
        PointColours::Channels channels;
        channels.mode = static_cast<int>(HostStyle::integer("GlobalRGB/RGBMode"));
        channels.min = HostStyle::number("GlobalRGB/RangeMin", -1, 0.0);
        channels.max = HostStyle::number("GlobalRGB/RangeMax", -1, 1.0);
        const char* names[] = {"GlobalRGB/RedChannelVar", "GlobalRGB/GreenChannelVar", "GlobalRGB/BlueChannelVar"};
        for (int c = 0; c < 3; ++c)
            channels.values[size_t(c)] = OrrUtilVarGetValuesInZone(zone, int(HostStyle::integer(names[c])));
        return PointColours::rgb(fixed, channels);
    }
    if (index < 0)
        return PointColours::mapped(fixed, OrrUtilVarGetValuesInZone(zone, contour.var), contour);
    return PointColours(fixed);
}

} // namespace

PlotScene HostScene::read()
{
    PlotScene scene;
    if (!OrrUtilDataSetIsAvailable() || OrrUtilFrameGetCount() < 1) {
        scene.problem = tr("No data set: open a file or a sample.");
        return scene;
    }
    const PlotType_e type = OrrUtilFrameGetPlotType();
    if (type != PlotType_TwoD && type != PlotType_ThreeD && type != PlotType_XYLine) {
        scene.problem = tr("Plot type %1 shows no data in this demo.").arg(int(type));
        return scene;
    }
    scene.keepAlive = orrery::kernel::Kernel::instance().sharedDataSet();
    scene.threeD = type == PlotType_ThreeD;
    scene.lines = type == PlotType_XYLine;
    scene.dims = scene.threeD ? 3 : 2;
    scene.title = QString::fromStdString(HostStyle::text("FrameLayout/Title"));
    if (scene.title.isEmpty())
        scene.title = takeHostText(OrrUtilDataSetGetTitle());
    scene.anchor = int(HostStyle::integer("FrameLayout/TitleAnchor", -1, 1));
    scene.begin = HostStyle::integer("IndexRange/Begin", -1, 1);
    scene.end = HostStyle::integer("IndexRange/End", -1, 0);
    scene.skip = std::max(1L, HostStyle::integer("IndexRange/Skip", -1, 1));

    const long active = HostStyle::integer("FrameLayout/ActiveZone");
    for (int zone = 1; zone <= OrrUtilDataSetGetNumZones(); ++zone) {
        if (!OrrUtilZoneIsEnabled(zone))
            continue;
        PlotScene::Zone z;
        z.zone = zone;
        z.name = takeHostText(OrrUtilZoneGetName(zone));
        z.points = OrrUtilZoneGetNumPoints(zone);
        z.mesh = HostStyle::flag("FieldMap/Mesh/Show", zone, true);
        z.scatter = !scene.lines && HostStyle::flag("FieldMap/Scatter/Show", zone);
        z.faded = active > 0 && active != zone;
        scene.zones.push_back(z);
    }
    // A data set of one zone is named by its title (the file's), not by the zone's kind.
    const QString dataTitle = takeHostText(OrrUtilDataSetGetTitle());
    if (OrrUtilDataSetGetNumZones() == 1 && scene.zones.size() == 1 && !dataTitle.isEmpty())
        scene.zones.front().name = dataTitle;
    for (const PlotScene::Zone& z : scene.zones) {
        if (z.scatter && scene.countIn(z.points) > PlotScene::MostSymbols) {
            scene.notes << tr("Symbols are drawn for the first %1 points of a zone.").arg(PlotScene::MostSymbols);
            break;
        }
    }

    const std::string root = scene.threeD ? "ThreeDAxis/" : "TwoDAxis/";
    const char* names[] = {"XDetail", "YDetail", "ZDetail"};
    for (int a = 0; a < scene.dims; ++a) {
        PlotScene::Axis& axis = scene.axes[a];
        axis.var = int(HostStyle::integer(root + names[a] + "/VarNum"));
        axis.name = takeHostText(OrrUtilVarGetName(axis.var));
        if (axis.name.isEmpty()) {
            scene.problem = tr("Choose the axis variables (Dialogs > Axis Variables).");
            return scene;
        }
        axis.title = QString::fromStdString(HostStyle::text(root + names[a] + "/Title"));
        if (axis.title.isEmpty())
            axis.title = axis.name;
        axis.categories = namedCategories(axis.var);
        axis.log = !scene.threeD && HostStyle::flag(root + names[a] + "/IsLog");
    }
    if (scene.lines) {
        scene.lineVars = lineVarsOf(scene.axes[1].var);
        for (int var : scene.lineVars)
            scene.lineNames << takeHostText(OrrUtilVarGetName(var));
        if (scene.lineVars.size() > 1) {
            // Several lines share the axis: their names are its title, its values numbers.
            scene.axes[1].categories.clear();
            if (HostStyle::text("TwoDAxis/YDetail/Title").empty())
                scene.axes[1].title = scene.lineNames.join(", ");
        }
    }
    for (PlotScene::Zone& z : scene.zones) {
        for (int a = 0; a < scene.dims; ++a)
            z.values[a] = OrrUtilVarGetValuesInZone(z.zone, scene.axes[a].var);
        for (int var : scene.lineVars)
            z.lineValues.push_back(OrrUtilVarGetValuesInZone(z.zone, var));
    }
    for (int a = 0; a < scene.dims; ++a) {
        PlotScene::Axis& axis = scene.axes[a];
        const std::vector<int> vars = a == 1 && scene.lines ? scene.lineVars : std::vector<int>{axis.var};
        long leftOut = 0;
        const bool any = rangeOfAll(scene, vars, axis.log, axis.min, axis.max, &axis.integers, &leftOut);
        if (leftOut > 0)
            scene.notes << tr("%1: %2 value(s) beyond ±1e306 or closer to 0 than 2.2e-308 cannot be drawn and are "
                              "left out.")
                               .arg(axis.name)
                               .arg(leftOut);
        if (!any) {
            if (axis.log && rangeOfAll(scene, vars, false, axis.min, axis.max, &axis.integers)) {
                scene.notes << tr("%1 has no positive values: its axis is linear.").arg(axis.name);
                axis.log = false;
            } else {
                scene.problem = leftOut > 0
                                    ? tr("Nothing to draw: every value of %1 is beyond ±1e306 or closer "
                                         "to 0 than 2.2e-308.")
                                          .arg(axis.name)
                                    : tr("Nothing to draw: %1 has no values in the points chosen.").arg(axis.name);
                return scene;
            }
        }
    }

    const int chosen = int(HostStyle::integer("GlobalContour/Var"));
    scene.automaticContourVar = firstVaryingVar(scene);
    scene.contour.var = chosen ? chosen : scene.automaticContourVar;
    scene.contour.map = int(HostStyle::integer("GlobalContour/ColorMap"));
    scene.contourName = takeHostText(OrrUtilVarGetName(scene.contour.var));
    scene.contourCategories = namedCategories(scene.contour.var);
    if (!rangeOf(scene, scene.contour.var, false, scene.contour.min, scene.contour.max, &scene.contourIntegers))
        scene.contour.min = scene.contour.max = 0.0;

    scene.vectors = !scene.lines && HostStyle::flag("FieldLayers/ShowVector");
    const std::string vectorRoot = scene.threeD ? "GlobalThreeDVector/" : "GlobalTwoDVector/";
    const char* components[] = {"UVar", "VVar", "WVar"};
    const int sizeVar = int(HostStyle::integer("GlobalScatter/Var"));
    for (PlotScene::Zone& z : scene.zones) {
        for (int c = 0; c < scene.dims; ++c)
            z.vectors[c] = OrrUtilVarGetValuesInZone(z.zone, int(HostStyle::integer(vectorRoot + components[c])));
        z.sizes = OrrUtilVarGetValuesInZone(z.zone, sizeVar);
        z.meshColours = coloursOf(int(HostStyle::integer("FieldMap/Mesh/Color", z.zone)), z.zone, scene.contour);
        z.scatterColours = coloursOf(int(HostStyle::integer("FieldMap/Scatter/Color", z.zone)), z.zone, scene.contour);
    }
    // Red, blue, green, purple, cyan: apart from each other and from white.
    for (int index : {1, 3, 2, 6, 4})
        scene.linePalette.push_back(basicColour(index));
    scene.sizeName = takeHostText(OrrUtilVarGetName(sizeVar));
    scene.relativeSize = HostStyle::number("GlobalScatter/RelativeSize", -1, 1.0);
    scene.sizeInCm = !HostStyle::flag("GlobalScatter/RelativeSizeInGridUnits", -1, true);
    scene.mediumPercent = HostStyle::number("BasicSize/SymbolSizes/Medium", -1, 2.5);
    scene.symbol = QString::fromStdString(HostStyle::text("GlobalScatter/Symbol"));
    return scene;
}
