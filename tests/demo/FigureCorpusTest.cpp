// Every figure a user exports, checked on the picture itself. Data of many
// shapes (tiny and huge magnitudes, large offsets, negative and narrow ranges,
// counts, Unix times, categories, logarithmic spans) are written as CSV files,
// loaded and exported to SVG as `orrery-demo FILE --export` does, and the
// SVG's texts read back: every tick label whole and true to its place, the
// labels of an axis distinct, evenly and roundly stepped, three to ten of
// them; no two texts overlapping, none outside the figure. The test runs in
// English and German here and at 200 % as its own ctest entry.
#include <algorithm>
#include <cmath>
#include <map>
#include <optional>
#include <QFile>
#include <QImage>
#include <QLocale>
#include <QPainter>
#include <QRegularExpression>
#include <QTemporaryDir>
#include "demo/scene/HostStyle.h"
#include "demo/window/MainWindow.h"
#include "demo/session/Session.h"
#include "demo/window/PlotExport.h"
#include "demo/scene/HostPlotView.h"
#include "host/kernel/OrrUtilHost.h"
#include "tests/demo/InLanguage.h"
#include "tests/demo/SvgTexts.h"
#include "tests/support/TestSupport.h"

namespace {

enum class Kind
{
    Real,
    Integer, // counts and other whole numbers: whole ticks
    Log,     // both axes logarithmic
    Names    // X a text column of that many categories
};

struct Shape
{
    const char* name;
    double min, max;
    Kind kind = Kind::Real;
    int categories = 0;
};

const std::vector<Shape>& corpus()
{
    static const std::vector<Shape> shapes = {
        {"1e-300 wide", 1e-300, 3e-300},
        {"1e-300 from zero", 0.0, 5e-300},
        {"1e-200", 2.2e-200, 9.1e-200},
        {"1e-100 narrow", 1e-100, 1.001e-100},
        {"picoseconds", 0.0, 2.5e-12},
        {"micro", 3e-6, 7.5e-6},
        {"milli", 0.001, 0.002},
        {"unit", 0.0, 1.0},
        {"sepals", 4.3, 7.9},
        {"hundreds", 0.0, 950.0},
        {"1e5 to 1e6", 1e5, 1e6},
        {"1e9", 1.5e9, 2.5e9},
        {"1e100", 3e100, 8e100},
        {"1e300", 1e300, 5e300},
        {"1e300 either side", -1e300, 1e300},
        {"1e300 narrow", 1e300, 1.0001e300},
        {"pressure Pa", 101300.0, 101350.0},
        {"pressure 101325 +- 25", 101300.0, 101350.0},
        {"pressure 101325 +- 0.05", 101324.95, 101325.05},
        {"temperature 293.15 +- 0.05", 293.10, 293.20},
        {"pressure hPa", 1013.0, 1013.5},
        {"altitude", -4000.0, -3990.0},
        {"about 100", 99.5, 100.5},
        {"12345.678 +- 0.001", 12345.677, 12345.679},
        {"a million +- 1e-3", 999999.999, 1000000.001},
        {"one in 1e9", 1.0, 1.000000001},
        {"large negative narrow", -100000003.0, -99999998.0},
        {"small negative", -0.003, -0.001},
        {"symmetric", -1.0, 1.0},
        {"symmetric tiny", -2e-5, 2e-5},
        {"Celsius", -273.15, -200.0},
        {"mixed signs", -7.0, 10000.0},
        {"around zero, tiny", -1e-15, 3e-15},
        {"events", 0.0, 7.0, Kind::Integer},
        {"pair", 0.0, 2.0, Kind::Integer},
        {"counts to 100", 0.0, 100.0, Kind::Integer},
        {"years", 1990.0, 2024.0, Kind::Integer},
        {"counts to a million", 0.0, 1000000.0, Kind::Integer},
        {"identifiers", 1000000.0, 1000040.0, Kind::Integer},
        {"Unix time, an hour", 1700000000.0, 1700003600.0, Kind::Integer},
        {"Unix time, a day", 1700000000.0, 1700086400.0, Kind::Integer},
        {"Unix time, a year", 1672531200.0, 1704067200.0, Kind::Integer},
        {"three categories", 0.0, 1.0, Kind::Names, 3},
        {"twelve categories", 0.0, 1.0, Kind::Names, 12},
        {"thirty categories", 0.0, 1.0, Kind::Names, 30},
        {"log within a decade", 2.0, 8.0, Kind::Log},
        {"log one decade", 1.0, 10.0, Kind::Log},
        {"log two decades", 0.5, 20.0, Kind::Log},
        {"log three decades", 1e-3, 1.0, Kind::Log},
        {"log six decades", 1.0, 1e6, Kind::Log},
        {"log twelve decades", 1e-6, 1e6, Kind::Log},
        {"log near 1e-300", 1e-300, 1e-288, Kind::Log},
        {"log near 1e300", 1e290, 1e300, Kind::Log},
    };
    return shapes;
}

QString categoryName(int k, int count)
{
    static const char* const cities[] = {"Aberdeen", "Birmingham", "Cardiff",   "Dundee", "Edinburgh", "Falkirk",
                                         "Glasgow",  "Hull",       "Inverness", "Jarrow", "Kendal",    "Leicester"};
    return count <= 12 ? QString(cities[k]) : QString("item %1").arg(k + 1);
}

const int Points = 40;

std::vector<double> valuesOf(const Shape& shape)
{
    std::vector<double> values(Points);
    for (int i = 0; i < Points; ++i) {
        const double t = double(i) / (Points - 1);
        if (shape.kind == Kind::Log)
            values[i] = std::pow(10.0, std::log10(shape.min) + t * (std::log10(shape.max) - std::log10(shape.min)));
        else
            values[i] = shape.min + t * (shape.max - shape.min);
        if (shape.kind == Kind::Integer)
            values[i] = std::round(values[i]);
    }
    values.front() = shape.min;
    values.back() = shape.max;
    return values;
}

// X runs through the values, Y and the colouring variable through the same values in other orders.
QByteArray csvOf(const Shape& shape)
{
    const std::vector<double> v = valuesOf(shape);
    QByteArray text = shape.kind == Kind::Names ? "site_name,y_value,c_value\n" : "x_value,y_value,c_value\n";
    auto number = [](double value) { return QByteArray::number(value, 'g', 17); };
    for (int i = 0; i < Points; ++i)
        text +=
            (shape.kind == Kind::Names ? categoryName(i % shape.categories, shape.categories).toUtf8() : number(v[i]))
            + ',' + number(v[(i * 7) % Points]) + ',' + number(v[(i * 13) % Points]) + '\n';
    return text;
}

const QString Minus = QString(QChar(0x2212));

// A tick label as a number: plain ("0.5", "−3" with a true minus sign, "0,5" in
// German) or a power of ten ("10⁻³"). Nothing when the label is not whole.
std::optional<double> numberIn(QString text, const QLocale& locale)
{
    if (text.contains(QChar(0x2026)) || text.contains('-') || text.isEmpty())
        return std::nullopt;
    text.replace(Minus, "-");
    static const QRegularExpression power(QString::fromUtf8("^10([⁻]?[⁰¹²³⁴⁵⁶⁷⁸⁹]+)$"));
    const QRegularExpressionMatch match = power.match(text);
    if (match.hasMatch()) {
        static const QString digits = QString::fromUtf8("⁰¹²³⁴⁵⁶⁷⁸⁹");
        int exponent = 0;
        for (const QChar c : match.captured(1))
            if (digits.indexOf(c) >= 0)
                exponent = exponent * 10 + int(digits.indexOf(c));
        return std::pow(10.0, match.captured(1).startsWith(QString::fromUtf8("⁻")) ? -exponent : exponent);
    }
    QLocale strict(locale);
    strict.setNumberOptions(QLocale::RejectGroupSeparator);
    bool ok = false;
    const double value = strict.toDouble(text, &ok);
    return ok ? std::optional<double>(value) : std::nullopt;
}

// What an axis's labels leave out: shown = (value - offset) / factor. The
// note reads "×10ⁿ", "+101300", "−4000" or both ("×10⁻² +101325").
struct Note
{
    double factor = 1.0, offset = 0.0;
};

std::optional<Note> noteIn(const QString& text, const QLocale& locale)
{
    static const QRegularExpression form(QString::fromUtf8("^(?:×(10[⁻]?[⁰¹²³⁴⁵⁶⁷⁸⁹]+))?\\s*(?:([+−])\\s*(\\S+))?$"));
    const QRegularExpressionMatch match = form.match(text);
    if (text.isEmpty() || !match.hasMatch() || (match.captured(1).isEmpty() && match.captured(2).isEmpty()))
        return std::nullopt;
    Note note;
    if (!match.captured(1).isEmpty())
        note.factor = *numberIn(match.captured(1), locale);
    if (!match.captured(2).isEmpty()) {
        const std::optional<double> offset = numberIn(match.captured(3), locale);
        if (!offset)
            return std::nullopt;
        note.offset = match.captured(2) == "+" ? *offset : -*offset;
    }
    return note;
}

bool roundStep(double step)
{
    const double mantissa = step / std::pow(10.0, std::floor(std::log10(step) + 1e-9));
    for (double round : {1.0, 2.0, 2.5, 5.0, 10.0})
        if (std::abs(mantissa - round) < 1e-6)
            return true;
    return false;
}

// One axis's labels as read from the figure, in the order of their values' places.
struct Axis
{
    const char* name;
    std::vector<const SvgText*> labels;
    std::optional<Note> note;
    double (*along)(const QRectF&);        // the label's place along the axis, in pixels
    std::function<double(double)> pixelOf; // where a value belongs; empty when the figure alone cannot say
};

double acrossCentre(const QRectF& box)
{
    return box.center().x();
}
double upCentre(const QRectF& box)
{
    return box.center().y();
}

class FigureCheck
{
public:
    FigureCheck(const Shape& shape, const QLocale& locale) : m_shape(shape), m_locale(locale) {}

    QStringList problems;

    void check(const std::vector<SvgText>& texts, const PlotGeometry& g, const QSizeF& page)
    {
        checkWholeApartAndInside(texts, page);
        if (!g.navigable) {
            problems << "no 2D axes were drawn";
            return;
        }
        const double em = texts.empty() ? 12.0 : texts.front().box.height();
        Axis x{"X", {}, {}, acrossCentre, [&g](double v) { return g.toPixel(0, v); }};
        Axis y{"Y", {}, {}, upCentre, [&g](double v) { return g.toPixel(1, v); }};
        Axis bar{"colour bar", {}, {}, upCentre, nullptr};
        std::map<int, std::vector<const SvgText*>> keyColumns;
        for (const SvgText& t : texts) {
            if (t.turned || t.bold)
                continue;
            const QRectF& b = t.box;
            if (b.top() >= g.plot.bottom() && b.top() < g.plot.bottom() + em && b.center().x() > g.plot.left() - em
                && b.center().x() < g.plot.right() + em)
                x.labels.push_back(&t);
            else if (b.top() >= g.plot.bottom() + em && b.top() < g.plot.bottom() + 3 * em && noteIn(t.text, m_locale))
                x.note = noteIn(t.text, m_locale);
            else if (b.right() <= g.plot.left() + 0.5 && b.center().y() >= g.plot.top() - 1
                     && b.center().y() <= g.plot.bottom() + 1)
                y.labels.push_back(&t);
            else if (b.bottom() <= g.plot.top() + 0.5 && b.left() < g.plot.center().x() && noteIn(t.text, m_locale))
                y.note = noteIn(t.text, m_locale);
            else if (b.left() >= g.plot.right() && numberIn(t.text, m_locale))
                keyColumns[qRound(b.left())].push_back(&t);
        }
        // The colour bar's labels share their left edge; a key text beside them may be its note.
        for (const auto& [left, column] : keyColumns)
            if (column.size() > bar.labels.size())
                bar.labels = column;
        for (const SvgText& t : texts)
            if (t.box.left() >= g.plot.right() && !t.bold && noteIn(t.text, m_locale)
                && std::find(bar.labels.begin(), bar.labels.end(), &t) == bar.labels.end())
                bar.note = noteIn(t.text, m_locale);

        if (m_shape.kind == Kind::Names && m_shape.categories <= 12)
            checkNames(x);
        else if (m_shape.kind == Kind::Log)
            checkLog(x);
        else
            checkLinear(x);
        if (m_shape.kind == Kind::Log)
            checkLog(y);
        else
            checkLinear(y);
        checkLinear(bar);
        checkBarWithinData(bar);
    }

private:
    void checkWholeApartAndInside(const std::vector<SvgText>& texts, const QSizeF& page)
    {
        const QRectF figure = QRectF(QPointF(0, 0), page).adjusted(-0.5, -0.5, 0.5, 0.5);
        for (size_t i = 0; i < texts.size(); ++i) {
            const SvgText& t = texts[i];
            if (t.text.contains(QChar(0x2026)))
                problems << QString("\"%1\" is cut").arg(t.text);
            if (!figure.contains(t.box))
                problems << QString("\"%1\" reaches outside the figure").arg(t.text);
            for (size_t j = i + 1; j < texts.size(); ++j) {
                const QRectF both = t.box.intersected(texts[j].box);
                if (both.width() > 0.5 && both.height() > 0.5)
                    problems << QString("\"%1\" overlaps \"%2\"").arg(t.text, texts[j].text);
            }
        }
    }

    // Labels sorted along the axis, their shown numbers and the values they stand for; false when one is unreadable.
    bool read(Axis& axis, std::vector<double>& shown, std::vector<double>& values)
    {
        std::sort(axis.labels.begin(), axis.labels.end(), [&](const SvgText* a, const SvgText* b) {
            return axis.along == acrossCentre ? axis.along(a->box) < axis.along(b->box)
                                              : axis.along(a->box) > axis.along(b->box);
        });
        const Note note = axis.note.value_or(Note());
        for (const SvgText* label : axis.labels) {
            const std::optional<double> number = numberIn(label->text, m_locale);
            if (!number) {
                problems << QString("%1: \"%2\" is no whole number").arg(axis.name, label->text);
                return false;
            }
            shown.push_back(*number);
            values.push_back(note.offset + *number * note.factor);
        }
        return true;
    }

    void checkCount(const Axis& axis)
    {
        if (axis.labels.size() < 3 || axis.labels.size() > 10)
            problems << QString("%1: %2 labels").arg(axis.name).arg(axis.labels.size());
    }

    void checkDistinct(const Axis& axis)
    {
        QStringList texts;
        for (const SvgText* label : axis.labels)
            texts << label->text;
        if (texts.removeDuplicates() > 0)
            problems << QString("%1: repeated labels %2").arg(axis.name, texts.join(' '));
    }

    // Each label where its value belongs, within a pixel and a half.
    void checkPlaces(const Axis& axis, const std::vector<double>& values)
    {
        if (!axis.pixelOf)
            return;
        for (size_t i = 0; i < values.size(); ++i) {
            const double off = axis.pixelOf(values[i]) - axis.along(axis.labels[i]->box);
            if (!(std::abs(off) <= 1.5)) {
                problems << QString("%1: \"%2\" stands %3 px from its value %4")
                                .arg(axis.name, axis.labels[i]->text)
                                .arg(off)
                                .arg(values[i], 0, 'g', 17);
                return;
            }
        }
    }

    void checkLinear(Axis& axis)
    {
        checkCount(axis);
        checkDistinct(axis);
        std::vector<double> shown, values;
        if (!read(axis, shown, values) || shown.size() < 2)
            return;
        const double step = shown[1] - shown[0];
        for (size_t i = 1; i < shown.size(); ++i)
            if (!(std::abs(shown[i] - shown[i - 1] - step) <= 1e-6 * std::abs(step))) {
                problems << QString("%1: uneven steps at \"%2\"").arg(axis.name, axis.labels[i]->text);
                return;
            }
        if (!(step > 0) || !roundStep(step))
            problems << QString("%1: a step of %2").arg(axis.name).arg(step, 0, 'g', 17);
        if (m_shape.kind == Kind::Integer && axis.pixelOf)
            for (double v : values)
                if (std::abs(v - std::round(v)) > 1e-9 * std::max(1.0, std::abs(v)))
                    problems << QString("%1: %2 on an axis of whole numbers").arg(axis.name).arg(v, 0, 'g', 17);
        checkPlaces(axis, values);
    }

    // Decades, or 1, 2 and 5 times them, or round steps within a decade.
    void checkLog(Axis& axis)
    {
        checkCount(axis);
        checkDistinct(axis);
        std::vector<double> shown, values;
        if (!read(axis, shown, values) || shown.size() < 2)
            return;
        bool decades = true, series = true, even = true;
        const double stride = std::log10(values[1]) - std::log10(values[0]);
        for (size_t i = 0; i < values.size(); ++i) {
            const double exponent = std::log10(values[i]);
            const double mantissa = values[i] / std::pow(10.0, std::floor(exponent + 1e-9));
            decades &= std::abs(exponent - std::round(exponent)) < 1e-9
                       && (i == 0 || std::abs(exponent - std::log10(values[i - 1]) - std::round(stride)) < 1e-9);
            series &= std::abs(mantissa - 1) < 1e-9 || std::abs(mantissa - 2) < 1e-9 || std::abs(mantissa - 5) < 1e-9;
            even &= i == 0 || std::abs((shown[i] - shown[i - 1]) - (shown[1] - shown[0])) < 1e-6 * shown[1];
        }
        if (!decades && !series && !(even && roundStep(shown[1] - shown[0])))
            problems << QString("%1: labels neither decades nor round").arg(axis.name);
        checkPlaces(axis, values);
    }

    void checkNames(Axis& axis)
    {
        checkDistinct(axis);
        if (axis.labels.size() < 3)
            problems << QString("%1: %2 of %3 categories named")
                            .arg(axis.name)
                            .arg(axis.labels.size())
                            .arg(m_shape.categories);
        std::sort(axis.labels.begin(), axis.labels.end(),
                  [](const SvgText* a, const SvgText* b) { return a->box.center().x() < b->box.center().x(); });
        for (const SvgText* label : axis.labels) {
            int k = 0;
            while (k < m_shape.categories && categoryName(k, m_shape.categories) != label->text)
                ++k;
            if (k == m_shape.categories)
                problems << QString("%1: \"%2\" names no category").arg(axis.name, label->text);
            else if (std::abs(axis.pixelOf(k + 1) - label->box.center().x()) > 1.5)
                problems << QString("%1: \"%2\" is not at its category").arg(axis.name, label->text);
        }
    }

    // The bar spans the colouring variable's values: its labels lie within them.
    void checkBarWithinData(Axis& bar)
    {
        std::vector<double> shown, values;
        if (bar.labels.size() < 2 || !read(bar, shown, values))
            return;
        const double low = m_shape.kind == Kind::Names ? 0.0 : m_shape.min;
        const double high = m_shape.kind == Kind::Names ? 1.0 : m_shape.max;
        const double slack = 1e-9 * (high - low);
        for (double v : values)
            if (!(v >= low - slack && v <= high + slack))
                problems << QString("colour bar: %1 outside the data").arg(v, 0, 'g', 17);
    }

    const Shape& m_shape;
    QLocale m_locale;
};

class Figures : public testsupport::SampleKernelTest, public testing::WithParamInterface<const char*>
{
protected:
    InLanguage language{GetParam()};
};

void colourAndScale(const Shape& shape)
{
    HostStyle::setInteger("TwoDAxis/XDetail/VarNum", 1);
    HostStyle::setInteger("TwoDAxis/YDetail/VarNum", 2);
    HostStyle::setInteger("GlobalContour/Var", 3);
    for (int zone = 1; zone <= OrrUtilDataSetGetNumZones(); ++zone)
        HostStyle::setInteger("FieldMap/Mesh/Color", -1, nullptr, zone);
    HostStyle::setFlag("TwoDAxis/XDetail/IsLog", shape.kind == Kind::Log);
    HostStyle::setFlag("TwoDAxis/YDetail/IsLog", shape.kind == Kind::Log);
}

TEST_P(Figures, ShowEveryLabelWholeTrueAndApartWhateverTheData)
{
    // German figures write decimal commas.
    const QLocale locale = QString(GetParam()) == "de" ? QLocale(QLocale::German) : QLocale::c();
    QTemporaryDir folder;
    MainWindow window;
    HostPlotView& view = window.plot();
    const QSize size = view.sizeHint();
    QStringList failures;
    for (const Shape& shape : corpus()) {
        const QString csv = folder.filePath("shape.csv"), svg = folder.filePath("shape.svg");
        QFile file(csv);
        ASSERT_TRUE(file.open(QIODevice::WriteOnly | QIODevice::Truncate));
        file.write(csvOf(shape));
        file.close();
        ASSERT_TRUE(window.session().loadFile(csv)) << shape.name;
        colourAndScale(shape);
        QString error;
        ASSERT_TRUE(PlotExport::write(view.scene(), view.viewpoint(), svg, size, 1.0, &error)) << error.toStdString();
        const std::vector<SvgText> texts = readSvgTexts(svg, &error);
        ASSERT_FALSE(texts.empty()) << shape.name << error.toStdString();
        // Where the axes went, from the same drawing on a page of the same size and resolution.
        QImage page(size, QImage::Format_RGB32);
        page.setDotsPerMeterX(qRound(96 / 0.0254));
        page.setDotsPerMeterY(qRound(96 / 0.0254));
        QPainter painter(&page);
        const PlotGeometry geometry = view.render(painter, QRectF(QPointF(0, 0), QSizeF(size)));
        painter.end();

        FigureCheck check(shape, locale);
        check.check(texts, geometry, QSizeF(size));
        if (!check.problems.isEmpty()) {
            check.problems.removeDuplicates();
            failures << QString("%1: %2").arg(shape.name, check.problems.mid(0, 4).join("; "));
        }
    }
    EXPECT_TRUE(failures.isEmpty()) << failures.size() << " of " << corpus().size() << " shapes fail:\n"
                                    << failures.join('\n').toStdString();
}

INSTANTIATE_TEST_SUITE_P(Languages, Figures, testing::Values("en", "de"),
                         [](const testing::TestParamInfo<const char*>& info) { return std::string(info.param); });

} // namespace
