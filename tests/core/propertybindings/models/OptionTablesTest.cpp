// The option tables: order, exact texts and values where a slip would go unseen.
#include <gtest/gtest.h>

#include "platform/kernel/OrrTypes.h"
#include "core/propertybindings/models/OptionTables.h"
#include "core/propertybindings/models/PremappedListModel.h"

using namespace orrery::sdk::ui::dialogs::propertybindings::models;

namespace {

template <typename V, size_t N>
std::vector<std::pair<std::string, V>> rowsOf(const OptionRow<V> (&table)[N])
{
    std::vector<std::pair<std::string, V>> rows;
    for (const OptionRow<V>& row : table)
        rows.emplace_back(row.text, row.value);
    return rows;
}

} // namespace

TEST(OptionTablesTest, TablesHoldTheirRowsInDisplayOrder)
{
    typedef std::vector<std::pair<std::string, int>> IntRows;
    EXPECT_EQ(rowsOf(rgbMode), (IntRows{{"Specify R, G, and B", 0},
                                        {"Specify R&G, calculate B", 1},
                                        {"Specify R&B, calculate G", 2},
                                        {"Specify G&B, calculate R", 3}}));
    EXPECT_EQ(rowsOf(drawOrders), (IntRows{{"Before data", 1}, {"After data", 0}}));
    EXPECT_EQ(rowsOf(geomShape), (IntRows{{"Square", 0},
                                          {"Delta", 1},
                                          {"Gradient", 2},
                                          {"Right triangle", 3},
                                          {"Left triangle", 4},
                                          {"Diamond", 5},
                                          {"Circle", 6},
                                          {"Point", 10},
                                          {"Cube", 7},
                                          {"Sphere", 8},
                                          {"Octahedron", 9},
                                          {"Character", 255},
                                          {"PieChart", 11},
                                          {"LineArt", 12}}));
    EXPECT_EQ(
        rowsOf(dataTypes),
        (IntRows{
            {"Auto", 255}, {"Single", 1}, {"Double", 2}, {"Long int", 3}, {"Short int", 4}, {"Byte", 5}, {"Bit", 6}}));
    EXPECT_EQ(rowsOf(valueLocations), (IntRows{{"Auto", 255}, {"Node", 1}, {"Cell center", 0}}));
    EXPECT_EQ(rowsOf(surfaceGenerationMethod), (IntRows{{"Auto", 3},
                                                        {"Allow Quads (Smoother Contours)", 0},
                                                        {"All Triangles (Avoids Holes)", 1},
                                                        {"All Polygons (Preserves Mesh)", 2}}));
    EXPECT_EQ(rowsOf(sliceSurface), (IntRows{{"X-Planes", 0},
                                             {"Y-Planes", 1},
                                             {"Z-Planes", 2},
                                             {"I-Planes", 3},
                                             {"J-Planes", 4},
                                             {"K-Planes", 5},
                                             {"Arbitrary", 7}}));
    EXPECT_EQ(rowsOf(pointSelection), (IntRows{{"Nearest N", 1}, {"Octant", 2}, {"All", 0}}));
    EXPECT_EQ(rowsOf(fontSizeWithGridUnits), (IntRows{{"Points", 2}, {"Frame%", 1}, {"Grid", 0}}));
    EXPECT_EQ(rowsOf(functionDependency), (IntRows{{"Vertical (y=f(x))", 0}, {"Horizontal (x=f(y))", 1}}));
    EXPECT_EQ(rowsOf(surfacesToPlot).front(), std::make_pair(std::string("None"), 10));
    EXPECT_EQ(rowsOf(contourColorMapData)[8], std::make_pair(std::string("Diverging - brown/green"), 10));
    EXPECT_EQ(rowsOf(contourColorMapData)[43], std::make_pair(std::string("Sequential - yellow/orange/brn"), 43));
    EXPECT_EQ(rowsOf(streamtracePlacementMethod)[0].first, "Using Streamtrace Placement Tool");
    for (int i = 0; i < 32; ++i)
        EXPECT_EQ(rowsOf(smIntegerOneToThrityTwo)[static_cast<size_t>(i)],
                  std::make_pair(std::to_string(i + 1), i + 1));
}

TEST(OptionTablesTest, NumberTablesHoldExactValuesUnderTheirShortestTexts)
{
    typedef std::vector<std::pair<std::string, double>> DoubleRows;
    EXPECT_EQ(rowsOf(labelAngle), (DoubleRows{{"0", 0},
                                              {"90", 90},
                                              {"75", 75},
                                              {"60", 60},
                                              {"45", 45},
                                              {"30", 30},
                                              {"15", 15},
                                              {"-15", -15},
                                              {"-30", -30},
                                              {"-45", -45},
                                              {"-60", -60},
                                              {"-75", -75},
                                              {"-90", -90}}));
    EXPECT_EQ(rowsOf(patternLengthValues), (DoubleRows{{"0.5", 0.5}, {"0.8", 0.8}, {"2", 2}, {"3", 3}, {"5", 4}}));
    EXPECT_EQ(rowsOf(arrowheadSizes), (DoubleRows{{"1", 1}, {"3", 3}, {"5", 5}, {"8", 8}, {"12", 12}}));
    EXPECT_EQ(rowsOf(arrowheadAngles).back(), std::make_pair(std::string("22"), 22.0));
    EXPECT_EQ(rowsOf(drawGridLast), (std::vector<std::pair<std::string, bool>>{{"First", false}, {"Last", true}}));
}

TEST(OptionTablesTest, APremappedModelMapsRowsAndValuesByLookup)
{
    PremappedListModel<RGBMode_e> modes(rgbMode);
    EXPECT_EQ(modes.size(), 4);
    EXPECT_EQ(modes.get(3), RGBMode_SpecifyGB);
    EXPECT_EQ(modes.getStr(1), "Specify R&G, calculate B");
    EXPECT_EQ(modes.indexOf(RGBMode_SpecifyRB), 2);

    PremappedListModel<int> shapes(geomShape);
    EXPECT_EQ(shapes.indexOf(10), 7);
    EXPECT_EQ(shapes.indexOf(255), 11);
    EXPECT_EQ(shapes.indexOf(13), -1);

    PremappedListModel<double> angles(labelAngle);
    EXPECT_EQ(angles.indexOf(-15.0), 7);
    EXPECT_EQ(angles.indexOf(1.0), -1);
}
