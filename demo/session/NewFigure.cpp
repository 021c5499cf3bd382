#include "demo/session/NewFigure.h"
#include <QStringList>

namespace {

// The first entry whose path begins the reset path names it.
const struct
{
    const char* path;
    const char* name;
} Names[] = {
    {"IndexRange/", QT_TRANSLATE_NOOP("NewFigure", "the index range")},
    {"FrameLayout/ActiveZone", QT_TRANSLATE_NOOP("NewFigure", "the zone picked out")},
    {"FrameLayout/Title", QT_TRANSLATE_NOOP("NewFigure", "the title")},
    {"TwoDAxis/XDetail/IsLog", QT_TRANSLATE_NOOP("NewFigure", "the logarithmic X axis")},
    {"TwoDAxis/YDetail/IsLog", QT_TRANSLATE_NOOP("NewFigure", "the logarithmic Y axis")},
    {"TwoDAxis/", QT_TRANSLATE_NOOP("NewFigure", "the axis variables")},
    {"ThreeDAxis/", QT_TRANSLATE_NOOP("NewFigure", "the axis variables")},
    {"GlobalRGB/", QT_TRANSLATE_NOOP("NewFigure", "the RGB channel variables")},
    {"GlobalTwoDVector/", QT_TRANSLATE_NOOP("NewFigure", "the vector variables")},
    {"GlobalThreeDVector/", QT_TRANSLATE_NOOP("NewFigure", "the vector variables")},
    {"GlobalContour/Var", QT_TRANSLATE_NOOP("NewFigure", "the colouring variable")},
    {"GlobalScatter/Var", QT_TRANSLATE_NOOP("NewFigure", "the scatter size variable")},
};

QString nameOf(const std::string& path)
{
    for (const auto& entry : Names)
        if (path.rfind(entry.path, 0) == 0)
            return NewFigure::tr(entry.name);
    return QString::fromStdString(path);
}

} // namespace

QString NewFigure::summary(const std::vector<std::string>& resetPaths)
{
    QStringList names;
    for (const std::string& path : resetPaths) {
        const QString name = nameOf(path);
        if (!names.contains(name))
            names << name;
    }
    return names.isEmpty() ? QString() : tr("A new data set starts a new figure: reset %1.").arg(names.join(", "));
}
