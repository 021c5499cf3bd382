#pragma once
#include "platform/PlatformExport.h"
#include <cstddef>
#include <initializer_list>
#include <vector>

namespace orrery {
namespace toolbox {

// A set of 1-based indices (zones, variables, collection members), iterated in
// ascending order. Held as a sorted array: data sets hand out sets of a
// million zones, which must copy and iterate cheaply; members are mostly
// added in ascending order.
class ORRERY_PLATFORM_EXPORT Set
{
public:
    typedef std::vector<int>::const_iterator const_iterator;

    Set() = default;
    Set(std::initializer_list<int> members);

    // Throws std::out_of_range for an index below 1.
    void add(int member);
    void remove(int member);
    void clear() { m_members.clear(); }

    bool contains(int member) const;
    size_t size() const { return m_members.size(); }
    bool isEmpty() const { return m_members.empty(); }

    const_iterator begin() const { return m_members.begin(); }
    const_iterator end() const { return m_members.end(); }

    bool operator==(const Set& other) const { return m_members == other.m_members; }
    bool operator!=(const Set& other) const { return !(*this == other); }

private:
    std::vector<int> m_members;
};

} // namespace toolbox
} // namespace orrery
