#include <gtest/gtest.h>
#include "StyleCalls.h"

using namespace stylecalls;

namespace {
const StringList Mode{"GlobalRGB", "RGBMode"};
const StringList Red{"GlobalRGB", "RedChannelVar"};
} // namespace

typedef SampleKernelTest Undo;

TEST_F(Undo, BracketIsUndoneAndRedoneAsOneStepAndNestedBracketsJoinIt)
{
    OrrUtilUndoStateBegin(11);
    writeLong(Mode, 1);
    writeLong(Red, 4);
    OrrUtilUndoStateBegin(11);
    writeLong(Mode, 2);
    OrrUtilUndoStateEnd(false, false); // an inner bracket cannot drop its writes from the step
    OrrUtilUndoStateEnd(false, true);

    changes.events.clear();
    EXPECT_TRUE(OrrUtilUndoPerform());
    EXPECT_EQ(0, readLong(Mode));
    EXPECT_EQ(0, readLong(Red));
    EXPECT_EQ(std::vector<StateChange_e>(3, StateChange_Style), changes.codes());
    EXPECT_FALSE(OrrUtilUndoPerform());

    EXPECT_TRUE(OrrUtilRedoPerform());
    EXPECT_EQ(2, readLong(Mode));
    EXPECT_EQ(4, readLong(Red));
    EXPECT_FALSE(OrrUtilRedoPerform());
}

TEST_F(Undo, WritesOutsideBracketsAreStepsOfTheirOwnAndANewWriteDropsTheRedoHistory)
{
    writeLong(Mode, 1);
    writeLong(Mode, 2);
    OrrUtilUndoPerform();
    EXPECT_EQ(1, readLong(Mode));
    OrrUtilUndoPerform();
    EXPECT_EQ(0, readLong(Mode));
    writeLong(Mode, 3);
    EXPECT_FALSE(OrrUtilRedoPerform());
    EXPECT_EQ(3, readLong(Mode));
}

TEST_F(Undo, RevertTakesBackOnlyTheClosedBracket)
{
    OrrUtilUndoStateBegin(11);
    writeLong(Mode, 1);
    OrrUtilUndoStateBegin(11);
    writeLong(Red, 3);
    writeLong(Red, 5);
    OrrUtilUndoStateEnd(true, true);
    EXPECT_EQ(0, readLong(Red));
    EXPECT_EQ(1, readLong(Mode));
    OrrUtilUndoStateEnd(false, true);
    OrrUtilUndoPerform();
    EXPECT_EQ(0, readLong(Mode));
}

TEST_F(Undo, UnrecordedBracketKeepsWritesButLeavesNothingToUndo)
{
    writeLong(Mode, 1);
    OrrUtilUndoStateBegin(11);
    writeLong(Mode, 2);
    OrrUtilUndoStateEnd(false, false);
    EXPECT_EQ(2, readLong(Mode));
    OrrUtilUndoPerform(); // takes back the earlier, recorded write
    EXPECT_EQ(0, readLong(Mode));
}
