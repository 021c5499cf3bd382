#pragma once
#include <algorithm>
#include <cstddef>
#include <string>
#include "platform/common/InvalidArgumentException.h"

namespace orrery {

// A growable plain array for identifier lists handed to the kernel. It can start
// on storage its creator supplies (so short lists never allocate) and keeps an
// outside data-pointer slot up to date after every reallocation, because the
// kernel's argument lists hold that pointer rather than the array.
// It lives in the platform because the toolbox's style values fill it.
template <typename T>
class RawArray
{
public:
    RawArray() : m_slot(&m_ownSlot) {}

    RawArray(T** dataSlot, T* storage, size_t capacity)
        : m_slot(dataSlot ? dataSlot : &m_ownSlot), m_data(storage), m_capacity(storage ? capacity : 0)
    {
        if (!storage && capacity > 0)
            throw InvalidArgumentException("RawArray: a capacity was given without storage");
        *m_slot = m_data;
    }

    RawArray(const RawArray&) = delete;
    RawArray& operator=(const RawArray&) = delete;
    ~RawArray() { releaseOwned(); }

    void push_back(const T& value)
    {
        if (m_size + 1 > m_capacity) {
            const size_t step = std::max<size_t>(m_capacity / 2, 32);
            const size_t wanted = (m_size / step + 1) * step;
            if (wanted > m_capacity)
                enlargeCapacity(wanted);
        }
        m_data[m_size++] = value;
    }

    void append(const RawArray& other)
    {
        if (m_size + other.m_size > m_capacity)
            enlargeCapacity(m_size + other.m_size);
        std::copy(other.m_data, other.m_data + other.m_size, m_data + m_size);
        m_size += other.m_size;
    }

    // Never below the size: the elements held must fit.
    void enlargeCapacity(size_t capacity)
    {
        if (capacity < m_size)
            throw InvalidArgumentException("RawArray: capacity " + std::to_string(capacity) + " is below the size "
                                           + std::to_string(m_size));
        T* grown = new T[capacity];
        std::copy(m_data, m_data + m_size, grown);
        releaseOwned();
        m_owned = true;
        m_data = grown;
        *m_slot = grown;
        m_capacity = capacity;
    }

    T& operator[](size_t i) { return m_data[i]; }
    const T& operator[](size_t i) const { return m_data[i]; }
    size_t size() const { return m_size; }
    size_t capacity() const { return m_capacity; }
    const T* data() const { return m_data; }

private:
    void releaseOwned()
    {
        if (m_owned)
            delete[] m_data;
        m_owned = false;
    }

    T* m_ownSlot = nullptr;
    T** m_slot;
    T* m_data = nullptr;
    size_t m_capacity = 0;
    size_t m_size = 0;
    bool m_owned = false;
};

} // namespace orrery
