#include <gtest/gtest.h>
#include "StyleCalls.h"

using namespace stylecalls;
using orrery::kernel::testing::KernelTestSupport;

namespace {

const StringList ScatterColor{"FieldMap", "Scatter", "Color"};

class StyleCollection : public ::testing::Test
{
protected:
    void SetUp() override
    {
        KernelTestSupport::resetKernel();
        KernelTestSupport::loadSampleDataSet(); // three zones, so three field maps
    }
};

} // namespace

TEST_F(StyleCollection, FirstOffsetSelectsOneMember)
{
    EXPECT_EQ(SetValue_Ok, writeLong(ScatterColor, 1, 2));
    EXPECT_EQ(0, readLong(ScatterColor, 1));
    EXPECT_EQ(1, readLong(ScatterColor, 2));
    EXPECT_EQ(0, readLong(ScatterColor, 3));
}

TEST_F(StyleCollection, SetSelectsSeveralMembers)
{
    const Set members{1, 3};
    EXPECT_EQ(SetValue_Ok, writeLong(ScatterColor, 5, -1, &members));
    EXPECT_EQ(5, readLong(ScatterColor, 1));
    EXPECT_EQ(0, readLong(ScatterColor, 2));
    EXPECT_EQ(5, readLong(ScatterColor, 3));
}

TEST_F(StyleCollection, MembersOutsideTheDataSetAreRefused)
{
    EXPECT_EQ(SetValue_InvalidOffset, writeLong(ScatterColor, 1, 4));
    EXPECT_EQ("Member 4 of FieldMap/Scatter/Color is out of range (the data set has 3 zones).", lastError());
    const Set members{2, 4};
    EXPECT_EQ(SetValue_InvalidOffset, writeLong(ScatterColor, 1, -1, &members));
    EXPECT_EQ(0, readLong(ScatterColor, 2)); // nothing written when one member is bad
    EXPECT_FALSE(readLong(ScatterColor, -1));
    EXPECT_FALSE(readLong(ScatterColor, 4));
}

TEST_F(StyleCollection, MemberValuesFollowTheirRule)
{
    EXPECT_EQ(SetValue_Ok, writeLong(ScatterColor, -6, 1)); // colour by RGB
    EXPECT_EQ(SetValue_InvalidValue, writeLong(ScatterColor, -2, 1));
    EXPECT_EQ("Colour index -2 is not valid.", lastError());
    EXPECT_EQ(SetValue_InvalidValue, writeLong(ScatterColor, 64, 1));
}

TEST_F(StyleCollection, MembersOfRemovedZonesAreForgotten)
{
    writeLong(ScatterColor, 3, 3);
    KernelTestSupport::loadSampleDataSet("Small");
    KernelTestSupport::loadSampleDataSet("Sample");
    EXPECT_EQ(0, readLong(ScatterColor, 3));
}
