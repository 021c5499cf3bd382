#include <gtest/gtest.h>
#include "StyleCalls.h"

using namespace stylecalls;

namespace {
const StringList ScatterColor{"FieldMap", "Scatter", "Color"};
} // namespace

typedef SampleKernelTest StyleCollection; // three zones, so three field maps

TEST_F(StyleCollection, AnOffsetOrASetSelectsTheMembersWritten)
{
    EXPECT_EQ(SetValue_Ok, writeLong(ScatterColor, 1, 2));
    EXPECT_EQ((std::vector<std::optional<long>>{0, 1, 0}),
              (std::vector<std::optional<long>>{readLong(ScatterColor, 1), readLong(ScatterColor, 2),
                                                readLong(ScatterColor, 3)}));
    const Set members{1, 3};
    EXPECT_EQ(SetValue_Ok, writeLong(ScatterColor, 5, -1, &members));
    EXPECT_EQ((std::vector<std::optional<long>>{5, 1, 5}),
              (std::vector<std::optional<long>>{readLong(ScatterColor, 1), readLong(ScatterColor, 2),
                                                readLong(ScatterColor, 3)}));
    // Members of removed zones are forgotten.
    Kernel::loadSampleDataSet("Small");
    Kernel::loadSampleDataSet("Sample");
    EXPECT_EQ(0, readLong(ScatterColor, 3));
}

TEST_F(StyleCollection, MembersOutsideTheDataSetAndBadValuesAreRefused)
{
    EXPECT_EQ(SetValue_InvalidOffset, writeLong(ScatterColor, 1, 4));
    EXPECT_EQ("Member 4 of FieldMap/Scatter/Color is out of range (the data set has 3 zones).", lastError());
    const Set members{2, 4};
    EXPECT_EQ(SetValue_InvalidOffset, writeLong(ScatterColor, 1, -1, &members));
    EXPECT_EQ(0, readLong(ScatterColor, 2)); // nothing written when one member is bad
    EXPECT_FALSE(readLong(ScatterColor, -1));
    EXPECT_FALSE(readLong(ScatterColor, 4));

    EXPECT_EQ(SetValue_Ok, writeLong(ScatterColor, -6, 1)); // colour by RGB
    EXPECT_EQ(SetValue_InvalidValue, writeLong(ScatterColor, -2, 1));
    EXPECT_EQ("Colour index -2 is not valid.", lastError());
    EXPECT_EQ(SetValue_InvalidValue, writeLong(ScatterColor, 64, 1));
}
