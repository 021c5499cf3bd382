#pragma once
#include <cmath>
#include <cstring>
#include <set>
#include <vector>

namespace orrery {

/// Equality used to decide whether a new value is a change.
template <typename T>
struct ValueEquality
{
    /// operator== of T.
    static bool equal(const T& a, const T& b) { return a == b; }
};

/// A NaN is never equal to anything, so setting NaN always stores and announces.
template <>
struct ValueEquality<double>
{
    /// Equal values; a NaN equals nothing.
    static bool equal(double a, double b) { return !(a < b) && !(a > b) && !std::isnan(a) && !std::isnan(b); }
};

/// Same elements in the same order, compared as one block of memory.
template <>
struct ValueEquality<std::vector<int>>
{
    /// Equal sizes and equal elements.
    static bool equal(const std::vector<int>& a, const std::vector<int>& b)
    {
        return a.size() == b.size() && (a.empty() || std::memcmp(a.data(), b.data(), a.size() * sizeof(int)) == 0);
    }
};

} // namespace orrery
