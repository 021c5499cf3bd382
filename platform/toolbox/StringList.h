#pragma once
#include "platform/PlatformExport.h"
#include <cstddef>
#include <initializer_list>
#include <string>
#include <vector>

namespace orrery {
namespace toolbox {

// An ordered list of names; a style path is one.
class ORRERY_PLATFORM_EXPORT StringList
{
public:
    typedef std::vector<std::string>::const_iterator const_iterator;

    StringList() = default;
    StringList(std::initializer_list<std::string> strings);

    void append(const std::string& string);
    void append(const StringList& other);

    size_t count() const { return m_strings.size(); }
    bool empty() const { return m_strings.empty(); }
    // Both throw std::out_of_range for an index past the end.
    const std::string& operator[](size_t index) const;
    const std::string& getString(size_t index) const;

    const_iterator begin() const { return m_strings.begin(); }
    const_iterator end() const { return m_strings.end(); }

    std::string join(const std::string& separator) const;

    bool operator==(const StringList& other) const { return m_strings == other.m_strings; }
    bool operator!=(const StringList& other) const { return !(*this == other); }

private:
    std::vector<std::string> m_strings;
};

} // namespace toolbox
} // namespace orrery
