#include <gtest/gtest.h>
#include "platform/toolbox/RawArray.h"

using orrery::RawArray;

TEST(RawArrayGrowth, InPlaceStorageIsUsedUntilFullTheSlotFollowsReallocationAndAppendKeepsBoth)
{
    long storage[3];
    long* slot = nullptr;
    RawArray<long> a(&slot, storage, 3);
    EXPECT_EQ(storage, slot);
    a.push_back(7);
    a.push_back(8);
    a.push_back(9);
    EXPECT_EQ(storage, a.data());
    a.push_back(10);
    EXPECT_NE(storage, a.data());
    EXPECT_EQ(a.data(), slot);
    EXPECT_EQ(4u, a.size());
    EXPECT_EQ(7, a[0]);
    EXPECT_EQ(10, a[3]);

    RawArray<long> b;
    for (long i = 0; i < 40; ++i)
        b.push_back(i);
    a.append(b);
    EXPECT_EQ(44u, a.size());
    EXPECT_EQ(44u, a.capacity());
    EXPECT_EQ(10, a[3]);
    EXPECT_EQ(39, a[43]);
}

TEST(RawArrayGrowth, StepIsHalfTheCapacityButAtLeast32)
{
    RawArray<long> a;
    a.push_back(0);
    EXPECT_EQ(32u, a.capacity());
    for (long i = 1; i <= 64; ++i)
        a.push_back(i);
    EXPECT_EQ(96u, a.capacity());
    a.enlargeCapacity(100);
    for (long i = 65; i <= 100; ++i)
        a.push_back(i);
    EXPECT_EQ(150u, a.capacity());
    EXPECT_EQ(100, a[100]);
}

TEST(RawArrayGrowth, ACapacityBelowTheSizeOrWithoutStorageIsRefusedAndTheElementsAreKept)
{
    RawArray<long> a;
    for (long i = 0; i < 40; ++i)
        a.push_back(i);
    EXPECT_THROW(a.enlargeCapacity(10), orrery::InvalidArgumentException);
    EXPECT_EQ(40u, a.size());
    a.push_back(40); // still room where the elements are, no overflow
    EXPECT_EQ(40, a[40]);
    EXPECT_EQ(0, a[0]);
    a.enlargeCapacity(a.size()); // exactly the size is fine
    EXPECT_EQ(41u, a.capacity());

    long* slot = nullptr;
    EXPECT_THROW(RawArray<long>(&slot, nullptr, 8), orrery::InvalidArgumentException);
}
